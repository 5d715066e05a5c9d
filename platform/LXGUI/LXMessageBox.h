#pragma once

#include "platform/LXGUI/LXDialog.h"

namespace LXGUI {

/// Questions and statements that wait for an answer.
class LXGUI_EXPORT LXMessageBox final : public LXDialog
{
    Q_OBJECT

public:
    enum Button : int
    {
        ButtonOk = 0x400,  ///< the accepting button
        ButtonNo = 0x2000, ///< the refusing button; Escape refuses
    };

    /// Shows a modal box and returns the button's number. `iButtons` is a mask of Button; with ButtonNo the
    /// accepting button reads "Yes", else "OK". Escape and closing answer ButtonNo when it is offered, else
    /// ButtonOk. Runs an event loop: guard what you come back to.
    static int ShowInformation(QWidget* parent, const QString& strTitle, const QString& strText,
                               int iButtons);
    static int ShowWarning(QWidget* parent, const QString& strTitle, const QString& strText, int iButtons);

public Q_SLOTS:
    void reject() override;

private:
    enum class Kind
    {
        Information,
        Warning
    };
    LXMessageBox(QWidget* parent, Kind kind, const QString& strTitle, const QString& strText, int iButtons);
    ~LXMessageBox() override;
    static int Show(QWidget* parent, Kind kind, const QString& strTitle, const QString& strText,
                    int iButtons);
    static int RefusalOf(int iButtons);
    QWidget* MakeText(const QString& strText);
    QWidget* MakeButtons(int iButtons);

    int m_iRefusal;
};

} // namespace LXGUI
