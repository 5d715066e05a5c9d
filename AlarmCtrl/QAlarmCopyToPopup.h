#pragma once

#include "platform/LXGUI/LXCustomDialog.h"

#include <QList>
#include <QString>

#include <memory>

class DeviceTreePicker;
class QModelIndex;
class TickedNodes;

namespace Ui {
class QAlarmCopyToPopup;
}

/// A small dialog above its parent with the host's device tree: hands out the ticked event sources as keys,
/// so that a scheme can be copied to them. The mode (1 to 5, see AlarmCopyModes) decides what is offered and
/// how a node becomes a key; any other mode offers everything and yields no key. Takes the host's device
/// manager from HostServices. User-interface thread only.
class QAlarmCopyToPopup : public LXGUI::LXCustomDialog
{
    Q_OBJECT

public:
    explicit QAlarmCopyToPopup(int iMode, QWidget* parent = nullptr);
    ~QAlarmCopyToPopup() override;

    int GetMode() const { return m_iMode; }

Q_SIGNALS:
    /// The keys of the ticked event sources, in no particular order; never an empty list.
    void SignalCopyTo(QList<QString> listKeys);

private Q_SLOTS:
    void OnOk();
    void OnCancel();
    void OnGroupTreeChkChanged(const QModelIndex& index, bool bChecked);

private:
    QList<QString> TickedKeys() const;
    void ShowTargets(); ///< in the title: how many there are

    std::unique_ptr<Ui::QAlarmCopyToPopup> m_ui;
    int m_iMode;
    DeviceTreePicker* m_pPicker;
    TickedNodes* m_pTicked;
};
