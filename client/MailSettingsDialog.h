#pragma once

#include "client/MailCheck.h"
#include "client/mail/MailSender.h"
#include "platform/LXGUI/LXCustomDialog.h"
#include "platform/SystemLibrary/QSystem.h"

#include <memory>

namespace Ui {
class MailSettingsDialog;
}

/// Asks for the mail servers. Accepting checks what was entered and stays open at the first thing that is
/// wrong; what is handed out after acceptance is sound. A test mail is sent in the background through the
/// server that is shown, with what is typed; closing the dialog stops it.
class MailSettingsDialog : public LXGUI::LXCustomDialog
{
    Q_OBJECT

public:
    explicit MailSettingsDialog(const SystemMailSettings& settings, QWidget* parent = nullptr);
    ~MailSettingsDialog() override;

    /// What is entered, blanks taken off and empty entries left out.
    SystemMailSettings Settings() const;

private:
    void OnAccept();
    void OnAdd();
    void OnRemove();
    void OnEnabled();
    void OnEncryption();
    void OnBrowse();
    void OnTest();
    void OnTestFinished(const MailOutcome& outcome);
    void ShowTest(const QString& strIcon, const QString& strText);
    void ShowServer(int iServer);
    void StoreFields();
    void ShowProblem(const MailCheck::Problem& problem);
    void FocusField(MailCheck::Field field);
    void RefreshRow(int iServer);
    void UpdateState();

    std::unique_ptr<Ui::MailSettingsDialog> ui;
    SystemMailSettings m_settings;
    MailSender* m_pSender;
    SystemMailServer m_tested; ///< as it was when the test began
    bool m_bShowing = false;   ///< fields are being filled, their changes are not a person's
};
