#include "AlarmCtrl/QAlarmNotifyEditor.h"

#include "ui_QAlarmNotifyEditor.h"

QAlarmNotifyEditor::QAlarmNotifyEditor(QWidget* parent)
    : QWidget(parent)
    , m_ui(std::make_unique<Ui::QAlarmNotifyEditor>())
{
    m_ui->setupUi(this);
    connect(m_ui->btnSendEmail, &LXGUI::LXSwitchButton::toggled, this, &QAlarmNotifyEditor::OnOpenEmail);
}

QAlarmNotifyEditor::~QAlarmNotifyEditor() = default;

int QAlarmNotifyEditor::GetNotifyInfo(AlarmNotifyInfo& notify) const
{
    notify.bOpenSound = m_ui->btnAlarmSound->isToggled();
    notify.bEmapTwinkle = m_ui->btnEmapTinkle->isToggled();
    notify.bSendEmail = m_ui->btnSendEmail->isToggled();
    return 0;
}

void QAlarmNotifyEditor::SetNotifyInfo(const AlarmNotifyInfo& notify)
{
    m_ui->btnAlarmSound->setToggle(notify.bOpenSound);
    m_ui->btnEmapTinkle->setToggle(notify.bEmapTwinkle);
    m_ui->btnSendEmail->setToggle(notify.bSendEmail);
}

void QAlarmNotifyEditor::SetSimpleMode(bool bHide)
{
    const QList<QWidget*> others = {m_ui->label_2, m_ui->btnEmapTinkle, m_ui->label_3, m_ui->btnSendEmail};
    for (QWidget* const pWidget : others)
        pWidget->setHidden(bHide);
}

void QAlarmNotifyEditor::OnOpenEmail()
{
}
