#pragma once

#include "client/MailCheck.h"
#include "platform/LXGUI/LXCustomDialog.h"
#include "platform/SystemLibrary/QSystem.h"

#include <memory>

namespace Ui {
class MailSettingsDialog;
}

/// Asks for the mail servers. Accepting checks what was entered and stays open at the first thing that is
/// wrong; what is handed out after acceptance is sound.
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
    void ShowServer(int iServer);
    void StoreFields();
    void ShowProblem(const MailCheck::Problem& problem);
    void RefreshRow(int iServer);
    void UpdateState();

    std::unique_ptr<Ui::MailSettingsDialog> ui;
    SystemMailSettings m_settings;
    bool m_bShowing = false; ///< fields are being filled, their changes are not a person's
};
