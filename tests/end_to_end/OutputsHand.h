#pragma once

#include <QString>
#include <QtGlobal>

class ClientDriver;
class QLineEdit;
class QTreeView;
class QWidget;

/// A hand on the tab of the alarm outputs.
class OutputsHand
{
public:
    explicit OutputsHand(const ClientDriver& driver);

    QTreeView* Tree() const;
    QLineEdit* TimeEdit() const;
    bool Tick(qint64 iOutput) const; ///< or untick
    bool ClickAutoOpen() const;
    bool IsTicked(qint64 iOutput) const;
    /// "time, opens" or "time, stays" as the panel shows them after a click on the output; empty when there
    /// is nothing to set.
    QString SettingsOf(qint64 iOutput) const;

private:
    QWidget* m_pEditor;
};
