#pragma once

#include "platform/VantaLogic/IDeviceManager.h"
#include "platform/VantaModel/NodeFilter.h"
#include "platform/VantaModel/NodeRoles.h"
#include "vantamodel_export.h"

#include <QStandardItemModel>

#include <functional>
#include <memory>

namespace VantaLogic {
class ITreeExpansion;
}

namespace VantaModel {

/// Groups, devices and channels of a site as a tree of QStandardItems, kept live while devices come and go.
/// User-interface thread only. The device manager and the expansion object must outlive the model; a null
/// manager gives an empty tree.
class VANTAMODEL_EXPORT GroupTreeModel : public QStandardItemModel
{
    Q_OBJECT

public:
    /// iMode 0: channels in the device's own order; 1: doors first, then the device's own order.
    GroupTreeModel(VantaLogic::IDeviceManager* pDeviceManager, int iMode, QObject* parent = nullptr);
    ~GroupTreeModel() override;

    /// The nodes to offer. The tree is rebuilt on the next call of EnsureBuilt(), at the latest when control
    /// returns to the event loop, so a row of changes costs one rebuild.
    void SetNodeFilter(const NodeFilter& filter);
    const NodeFilter& GetNodeFilter() const;
    void EnableCheckBox(bool bEnable);
    bool IsCheckBoxEnabled() const;
    void SetExpandInterface(VantaLogic::ITreeExpansion* pExpansion);
    VantaLogic::ITreeExpansion* GetExpandInterface() const;
    int GetMode() const;
    /// Colour of devices that are offline or switched off; at first the palette's for placeholders.
    void SetDimBrush(const QBrush& brush);

    /// Builds the tree if something has changed since the last build.
    void EnsureBuilt();

    /// The node of an id and kind, null when the tree does not hold it. Constant time.
    QStandardItem* FindNode(int64_t iNodeId, int32_t iNodeKind) const;

    /// Sets an item's check state, cascades it to the items below that `accept` admits (all of them when
    /// empty; what lies below a refused item is not asked about) and brings the states of the items above
    /// into line. Items that already are in the state asked for are not touched. Null is accepted and
    /// ignored. The state of an item with items below it always follows from theirs.
    void SetChecked(QStandardItem* pItem, bool bChecked,
                    const std::function<bool(const QModelIndex&)>& accept = {});

Q_SIGNALS:
    /// A change of the site has been worked in completely (rows, names, states), or the tree was rebuilt.
    void TreeUpdated();
    /// Once for every device that really left the site, after its rows are gone. Not for devices that were
    /// never offered by this tree's lists.
    void DeviceRemoved(int64_t iDeviceId);

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace VantaModel
