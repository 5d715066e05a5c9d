#pragma once

#include <QPointer>
#include <QWidget>

class ClientDriver;
class QTreeView;

/// A hand on the popup that "Copy to" opens.
class CopyPopupHand
{
public:
    explicit CopyPopupHand(ClientDriver& driver); ///< clicks "Copy to"

    bool IsOpen() const { return !m_popup.isNull(); }
    QTreeView* Tree() const;
    bool Tick(qint64 iId, int iKind) const;
    /// These end the popup, which deletes itself; false when it has not.
    bool ClickOk() const;
    bool ClickCancel() const;
    bool PressEscape() const;

private:
    bool IsGone() const;

    QPointer<QWidget> m_popup;
};
