#pragma once

#include "platform/LXGUI/LXCustomDialog.h"

#include <QList>
#include <QString>

#include <memory>

class DeviceTreePicker;
class QModelIndex;
class TickedNodes;

namespace Ui {
class ACSEventCopyToPopup;
}

/// A small dialog above its parent with the access-control devices of the host: hands out the ticked doors
/// (mode ACSCopy::Door) or alarm inputs (mode ACSCopy::AlarmInput) as event-source keys. Its title says how
/// many targets are ticked. Deletes itself when it closes. Takes the host's device manager and tree expansion
/// from HostServices. User-interface thread only.
class ACSEventCopyToPopup : public LXGUI::LXCustomDialog
{
    Q_OBJECT

public:
    explicit ACSEventCopyToPopup(int iMode, QWidget* parent = nullptr);
    ~ACSEventCopyToPopup() override;

    int GetMode() const { return m_iMode; }
    /// The source that is copied: ticked, it is no target. Only the number of targets in the title asks for
    /// it.
    void SetSource(const QString& strSource);

Q_SIGNALS:
    /// The keys of the ticked event sources, in no particular order; never an empty list.
    void SignalCopyTo(QList<QString> listKeys);

private Q_SLOTS:
    void OnGroupTreeChkChanged(const QModelIndex& index, bool bChecked);
    void OnOk();
    void OnCancel();

private:
    QList<QString> TickedKeys() const;
    void ShowTargets();

    std::unique_ptr<Ui::ACSEventCopyToPopup> m_ui;
    int m_iMode;
    DeviceTreePicker* m_pPicker;
    TickedNodes* m_pTicked;
    QString m_strSource;
};
