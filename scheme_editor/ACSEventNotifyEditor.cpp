#include "scheme_editor/ACSEventNotifyEditor.h"

#include "platform/LXGUI/LXMessageBox.h"
#include "platform/LXGUI/LXMessageNotify.h"
#include "platform/SystemLibrary/QCommon.h"
#include "platform/SystemLibrary/QSystem.h"
#include "plugin/host_services/HostServices.h"
#include "ui_ACSEventNotifyEditor.h"

#include <QPointer>

namespace {

bool IsMailUsable(const SystemMailSettings& settings)
{
    return settings.bEnable && !settings.servers.isEmpty() &&
           !settings.servers.constFirst().strServer.isEmpty();
}

} // namespace

ACSEventNotifyEditor::ACSEventNotifyEditor(QWidget* parent)
    : QWidget(parent)
    , m_ui(std::make_unique<Ui::ACSEventNotifyEditor>())
{
    m_ui->setupUi(this);
    connect(m_ui->btnSendEmail, &QAbstractButton::toggled, this, &ACSEventNotifyEditor::OnOpenEmail);
}

ACSEventNotifyEditor::~ACSEventNotifyEditor() = default;

void ACSEventNotifyEditor::SetNotifyInfo(const AlarmNotifyInfo& notify)
{
    m_ui->btnAlarmSound->setToggle(notify.bOpenSound);
    m_ui->btnSendEmail->setToggle(notify.bSendEmail);
}

int ACSEventNotifyEditor::GetNotifyInfo(AlarmNotifyInfo& notify) const
{
    notify.bOpenSound = m_ui->btnAlarmSound->isToggled();
    notify.bSendEmail = m_ui->btnSendEmail->isToggled();
    return 0;
}

void ACSEventNotifyEditor::SetSimpleMode(bool bHide)
{
    m_ui->label_2->setHidden(bHide);
    m_ui->btnSendEmail->setHidden(bHide);
}

void ACSEventNotifyEditor::OnOpenEmail()
{
    if (!m_ui->btnSendEmail->isToggled() || IsMailUsable(QSystem::GetInstance()->GetMailSettings()))
        return;

    // The question and the mail settings run event loops in which the page may be closed.
    const QPointer<ACSEventNotifyEditor> guard(this);
    const int iAnswer = LXGUI::LXMessageBox::ShowInformation(
        nullptr, tr("Prompt"), tr("The SMTP setting is not enabled. Do you want to edit it right now?"),
        LXGUI::LXMessageBox::ButtonOk | LXGUI::LXMessageBox::ButtonNo);
    if (guard.isNull())
        return;
    if (iAnswer == LXGUI::LXMessageBox::ButtonOk) {
        if (!QCommon::CheckMenuRight(QCommon::RightSystemConfig)) {
            // The switch stays on: who may change the settings can still make mail usable later.
            LXGUI::LXSingleton<LXGUI::LXMessageNotify>::Instance()->AddTextNotification(
                tr("You do not have system config right."));
            return;
        }
        QCommon::QtSendMessage(HostServices::MainWindowObject(), QCommon::MessageOpenMailSettings, 0, 0);
        if (guard.isNull() || IsMailUsable(QSystem::GetInstance()->GetMailSettings()))
            return;
    }
    m_ui->btnSendEmail->setToggle(false);
}
