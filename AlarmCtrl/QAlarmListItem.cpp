#include "AlarmCtrl/QAlarmListItem.h"

#include "ui_QAlarmListItem.h"

QAlarmListItem::QAlarmListItem(QWidget* parent)
    : QPushButton(parent)
    , m_ui(std::make_unique<Ui::QAlarmListItem>())
{
    m_ui->setupUi(this);
    m_ui->lblPix->hide();
}

QAlarmListItem::~QAlarmListItem() = default;

int32_t QAlarmListItem::GetType() const
{
    return m_iType;
}

void QAlarmListItem::SetType(int32_t iType)
{
    m_iType = iType;
}

void QAlarmListItem::SetMark(bool bShow)
{
    m_ui->lblPix->setVisible(bShow);
    setAccessibleDescription(bShow ? tr("alarm scheme on") : QString());
}

bool QAlarmListItem::HasMark() const
{
    return !m_ui->lblPix->isHidden();
}
