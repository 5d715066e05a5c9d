#pragma once

#include "platform/VantaModel/NodeFilter.h"
#include "platform/VantaModel/SiteOrder.h"
#include "platform/VantaModel/TreeNode.h"

#include <QHash>
#include <QVector>

#include <array>

namespace VantaModel {

/// Grows and prunes the nodes of one tree under a root item, row by row, and finds them by id. Groups come
/// before devices, both in the site's order; a group without devices is not shown.
class TreeGrowth
{
public:
    /// `bDoorsFirst`: doors stand before a device's other channels.
    TreeGrowth(const TreeLook& look, const SiteOrder& order, bool bDoorsFirst);

    TreeNode* Find(int64_t iNodeId, int32_t iNodeKind) const;

    /// All offered devices under a root without rows; ticks what was ticked before.
    void Rebuild(QStandardItem* pRoot, const NodeFilter& filter, const QVector<VantaLogic::DeviceInfo>& site);
    void AddDevice(QStandardItem* pRoot, const NodeFilter& filter, const VantaLogic::DeviceInfo& device);
    void UpdateDevice(QStandardItem* pRoot, const NodeFilter& filter, const VantaLogic::DeviceInfo& device);
    void RemoveDevice(int64_t iDeviceId);
    /// Works new names of groups in; false when the shown groups do not stand as the site has them.
    bool UpdateGroups();

private:
    void Register(TreeNode* pNode);
    void Forget(TreeNode* pNode);
    void ForgetTree(TreeNode* pNode);
    TreeNode* NewChannel(const VantaLogic::ChannelInfo& channel);
    TreeNode* NewDevice(const NodeFilter& filter, const VantaLogic::DeviceInfo& device);
    QVector<VantaLogic::ChannelInfo> OfferedChannels(const NodeFilter& filter,
                                                     const VantaLogic::DeviceInfo& device) const;
    void UpdateChannels(TreeNode* pDevice, const QVector<VantaLogic::ChannelInfo>& channels);
    void Place(QStandardItem* pRoot, int64_t iGroupId, TreeNode* pNode);
    bool StandsRight(const TreeNode& node, int64_t iGroupId) const;
    void RemoveWithEmptyGroups(TreeNode* pNode);
    bool Precedes(const TreeNode& a, const TreeNode& b) const;
    QVector<int64_t> TickedLeaves(int32_t iNodeKind) const;

    const TreeLook& m_look;
    const SiteOrder& m_order;
    const bool m_bDoorsFirst;
    std::array<QHash<int64_t, TreeNode*>, 3> m_nodes; ///< by kind: groups, devices, channels
};

} // namespace VantaModel
