#pragma once

#include "platform/LXGUI/LXDialog.h"

#include <QDialogButtonBox>

class QPushButton;

namespace LXGUI {

/// The host's dialog frame: title bar, a central widget for the user's form, standard buttons. It only emits
/// its button signals, its user decides what happens; Escape and the close button mean cancel. Where nobody
/// listens to the cancel signal they close the dialog.
class LXGUI_EXPORT LXCustomDialog : public LXDialog
{
    Q_OBJECT

public:
    /// `iStandardButtons` as in QDialogButtonBox (0x400 OK, 0x400000 Cancel). `bPopup`: a slim frame without
    /// the room around the form, for small pickers.
    explicit LXCustomDialog(int iStandardButtons, QWidget* parent = nullptr, bool bPopup = false);
    ~LXCustomDialog() override;

    QWidget* GetCentralWidget() const; ///< owned by the dialog; the user builds the form on it
    void SetTitle(const QString& strTitle);
    QString GetTitle() const;
    QPushButton* GetButton(QDialogButtonBox::StandardButton button) const; ///< null when not among them

Q_SIGNALS:
    void SignalOkButtonClicked();
    void SignalCancelButtonClicked();

public Q_SLOTS:
    /// Outside a button slot the same as pressing Cancel; inside one it closes the dialog with result 0.
    void reject() override;

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void Answer(void (LXCustomDialog::*signal)());
    void DressButtons(bool bPopup);

    QWidget* m_pCentral;
    QDialogButtonBox* m_pButtons;
    bool m_bAnswering = false; ///< a button signal is under way: what its user calls is the decision
    bool m_bClosing = false;   ///< closed by program: the decision has been taken
};

} // namespace LXGUI
