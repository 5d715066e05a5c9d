#pragma once

#include "AlarmCtrl/DeviceTreePicker.h"

#include <QList>
#include <QString>

#include <cstdint>
#include <optional>

/// A kind of event source that schemes can be copied to: which nodes a picker offers for it and how a ticked
/// node becomes an event-source key. Pickers differ by a table of these and nothing else.
struct CopyMode
{
    /// What of the node must be among the accepted types.
    enum class Test
    {
        DeviceType, ///< the type of the device with the node's id, whatever the node's kind
        ChannelKind ///< the kind of the channel with the node's id, whatever the node's kind
    };
    /// The facts that a key is made of.
    struct Source
    {
        int64_t iNodeId = -1;
        int64_t iDeviceId = -1;       ///< the device that owns the node, or the node itself
        int64_t iChannelId = -1;      ///< the channel record's own id; -1 where no channel was asked for
        int64_t iChannelOwnerId = -1; ///< the device in that record; differs where a device shares its id
    };

    int32_t iMode;
    DeviceTreeOffer offer;
    TypeSet nodeKinds; ///< VantaModel::NodeKind values that can yield a key
    Test test;
    TypeSet accepted; ///< may hold more than the tree offers
    QString (*pMakeKey)(const Source& source);

    /// The key of a ticked node; nothing when it yields none in this mode, when its device or channel is not
    /// known (any more) or when its device is disabled. Offline devices yield keys.
    std::optional<QString> SourceKey(const DeviceTreeNode& node,
                                     const VantaLogic::IDeviceManager& manager) const;
    /// The keys of all nodes that yield one, in the set's own order.
    QList<QString> SourceKeys(const QSet<DeviceTreeNode>& nodes,
                              const VantaLogic::IDeviceManager& manager) const;

    /// The mode of this number in a table; null when it holds none.
    template <typename Table>
    static const CopyMode* Find(const Table& table, int32_t iMode)
    {
        for (const CopyMode& mode : table) {
            if (mode.iMode == iMode)
                return &mode;
        }
        return nullptr;
    }
};
