#include "AlarmCtrl/CopyMode.h"

#include "platform/VantaModel/NodeRoles.h"

std::optional<QString> CopyMode::SourceKey(const DeviceTreeNode& node,
                                           const VantaLogic::IDeviceManager& manager) const
{
    Source source;
    source.iNodeId = node.iId;
    if (node.iKind == VantaModel::NodeKindChannel) {
        VantaLogic::ChannelInfo channel;
        if (manager.GetChannel(node.iId, channel) == 0)
            source.iDeviceId = channel.iDeviceId;
    } else if (node.iKind == VantaModel::NodeKindDevice) {
        source.iDeviceId = node.iId;
    }
    if (source.iDeviceId < 0 || !manager.IsDeviceEnabled(source.iDeviceId))
        return std::nullopt;
    if (!nodeKinds.Contains(node.iKind))
        return std::nullopt;

    if (test == Test::DeviceType) {
        if (!accepted.Contains(manager.GetDeviceType(node.iId)))
            return std::nullopt;
    } else {
        VantaLogic::ChannelInfo channel;
        if (manager.GetChannel(node.iId, channel) != 0 || !accepted.Contains(channel.iChannelType))
            return std::nullopt;
        source.iChannelId = channel.iChannelId;
        source.iChannelOwnerId = channel.iDeviceId;
    }
    return pMakeKey(source);
}

QList<QString> CopyMode::SourceKeys(const QSet<DeviceTreeNode>& nodes,
                                    const VantaLogic::IDeviceManager& manager) const
{
    QList<QString> keys;
    for (const DeviceTreeNode& node : nodes) {
        if (const std::optional<QString> key = SourceKey(node, manager))
            keys.append(*key);
    }
    return keys;
}
