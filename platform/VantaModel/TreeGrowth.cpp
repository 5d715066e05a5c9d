#include "platform/VantaModel/TreeGrowth.h"

#include <QSet>

#include <algorithm>
#include <memory>

using namespace VantaLogic;

namespace VantaModel {

TreeGrowth::TreeGrowth(const TreeLook& look, const SiteOrder& order, bool bDoorsFirst)
    : m_look(look)
    , m_order(order)
    , m_bDoorsFirst(bDoorsFirst)
{
}

TreeNode* TreeGrowth::Find(int64_t iNodeId, int32_t iNodeKind) const
{
    if (iNodeKind < NodeKindGroup || iNodeKind > NodeKindChannel)
        return nullptr;
    return m_nodes[static_cast<size_t>(iNodeKind - NodeKindGroup)].value(iNodeId);
}

void TreeGrowth::Register(TreeNode* pNode)
{
    m_nodes[static_cast<size_t>(pNode->Kind() - NodeKindGroup)].insert(pNode->Id(), pNode);
}

/// A host may move an id to another device before it says so; then the id belongs to the newer node.
void TreeGrowth::Forget(TreeNode* pNode)
{
    auto& nodes = m_nodes[static_cast<size_t>(pNode->Kind() - NodeKindGroup)];
    const auto it = nodes.find(pNode->Id());
    if (it != nodes.end() && *it == pNode)
        nodes.erase(it);
}

void TreeGrowth::ForgetTree(TreeNode* pNode)
{
    for (int i = 0; i < pNode->rowCount(); ++i)
        ForgetTree(pNode->ChildNode(i));
    Forget(pNode);
}

TreeNode* TreeGrowth::NewChannel(const ChannelInfo& channel)
{
    auto node = std::make_unique<TreeNode>(m_look, channel);
    Register(node.get());
    return node.release();
}

TreeNode* TreeGrowth::NewDevice(const NodeFilter& filter, const DeviceInfo& device)
{
    auto node = std::make_unique<TreeNode>(m_look, device);
    QList<QStandardItem*> rows;
    const QVector<ChannelInfo> channels = OfferedChannels(filter, device);
    rows.reserve(channels.size());
    for (const ChannelInfo& channel : channels)
        rows.append(NewChannel(channel));
    node->appendRows(rows); // all of them unticked, so no counts change
    Register(node.get());
    return node.release();
}

QVector<ChannelInfo> TreeGrowth::OfferedChannels(const NodeFilter& filter, const DeviceInfo& device) const
{
    QVector<ChannelInfo> channels;
    for (const ChannelInfo& channel : device.channels) {
        if (filter.OffersChannel(channel.iChannelType))
            channels.append(channel);
    }
    if (m_bDoorsFirst) {
        std::stable_partition(channels.begin(), channels.end(), [](const ChannelInfo& channel) {
            return channel.iChannelType == ChannelTypeDoor;
        });
    }
    return channels;
}

QVector<int64_t> TreeGrowth::TickedLeaves(int32_t iNodeKind) const
{
    QVector<int64_t> ids;
    const auto& nodes = m_nodes[static_cast<size_t>(iNodeKind - NodeKindGroup)];
    for (const TreeNode* pNode : nodes) {
        if (pNode->rowCount() == 0 && pNode->State() == Qt::Checked)
            ids.append(pNode->Id());
    }
    return ids;
}

void TreeGrowth::Rebuild(QStandardItem* pRoot, const NodeFilter& filter, const QVector<DeviceInfo>& site)
{
    const QVector<int64_t> tickedDevices = TickedLeaves(NodeKindDevice);
    const QVector<int64_t> tickedChannels = TickedLeaves(NodeKindChannel);
    for (auto& nodes : m_nodes)
        nodes.clear();
    pRoot->removeRows(0, pRoot->rowCount());

    QSet<int64_t> needed;
    for (const DeviceInfo& device : site) {
        for (int64_t iGroup = m_order.GroupOf(device); iGroup != -1 && !needed.contains(iGroup);
             iGroup = m_order.ParentOf(iGroup))
            needed.insert(iGroup);
    }

    // Whole branches are put together before they are hung into the tree.
    QHash<int64_t, QList<QStandardItem*>> rows; // by the group that they stand in, -1 for the top
    for (const GroupInfo& group : m_order.Groups()) {
        if (!needed.contains(group.iGroupId))
            continue;
        auto node = std::make_unique<TreeNode>(m_look, group);
        Register(node.get());
        rows[m_order.ParentOf(group.iGroupId)].append(node.release());
    }
    for (const DeviceInfo& device : site)
        rows[m_order.GroupOf(device)].append(NewDevice(filter, device));
    for (auto it = rows.cbegin(); it != rows.cend(); ++it) {
        if (TreeNode* pGroup = Find(it.key(), NodeKindGroup))
            pGroup->appendRows(*it);
    }
    for (const int64_t iId : tickedDevices) {
        TreeNode* pNode = Find(iId, NodeKindDevice);
        if (pNode && pNode->rowCount() == 0)
            pNode->SetChecked(true, {});
    }
    for (const int64_t iId : tickedChannels) {
        if (TreeNode* pNode = Find(iId, NodeKindChannel))
            pNode->SetChecked(true, {});
    }
    // One by one: a whole list of rows would leave the items below them without their model.
    const QList<QStandardItem*> branches = rows.value(-1);
    for (QStandardItem* pBranch : branches)
        pRoot->appendRow(pBranch);
}

bool TreeGrowth::Precedes(const TreeNode& a, const TreeNode& b) const
{
    if (a.Kind() != b.Kind())
        return a.Kind() < b.Kind();
    return a.Kind() == NodeKindGroup ? m_order.GroupRank(a.Id()) < m_order.GroupRank(b.Id())
                                     : m_order.DeviceRank(a.Id()) < m_order.DeviceRank(b.Id());
}

/// Hangs a device in its place, together with the groups above it that are not shown yet.
void TreeGrowth::Place(QStandardItem* pRoot, int64_t iGroupId, TreeNode* pNode)
{
    TreeNode* pBranch = pNode;
    while (iGroupId != -1 && !Find(iGroupId, NodeKindGroup)) {
        auto group = std::make_unique<TreeNode>(m_look, *m_order.FindGroup(iGroupId));
        Register(group.get());
        TreeNode::Attach(group.get(), 0, pBranch);
        pBranch = group.release();
        iGroupId = m_order.ParentOf(iGroupId);
    }
    QStandardItem* pParent = iGroupId == -1 ? pRoot : Find(iGroupId, NodeKindGroup);
    int iFrom = 0;
    int iTo = pParent->rowCount();
    while (iFrom < iTo) {
        const int iMiddle = iFrom + (iTo - iFrom) / 2;
        if (Precedes(*static_cast<TreeNode*>(pParent->child(iMiddle)), *pBranch)) {
            iFrom = iMiddle + 1;
        } else {
            iTo = iMiddle;
        }
    }
    TreeNode::Attach(pParent, iFrom, pBranch);
}

bool TreeGrowth::StandsRight(const TreeNode& node, int64_t iGroupId) const
{
    const TreeNode* pParent = node.ParentNode();
    if ((pParent ? pParent->Id() : -1) != iGroupId)
        return false;
    const QStandardItem* pAbove = pParent ? pParent : node.model()->invisibleRootItem();
    const int iRow = node.row();
    const auto* pBefore = static_cast<const TreeNode*>(pAbove->child(iRow - 1));
    const auto* pAfter = static_cast<const TreeNode*>(pAbove->child(iRow + 1));
    return (!pBefore || Precedes(*pBefore, node)) && (!pAfter || Precedes(node, *pAfter));
}

void TreeGrowth::RemoveWithEmptyGroups(TreeNode* pNode)
{
    TreeNode* pBranch = pNode;
    while (pBranch->ParentNode() && pBranch->ParentNode()->Kind() == NodeKindGroup &&
           pBranch->ParentNode()->rowCount() == 1)
        pBranch = pBranch->ParentNode();
    ForgetTree(pBranch);
    delete TreeNode::Detach(pBranch);
}

void TreeGrowth::AddDevice(QStandardItem* pRoot, const NodeFilter& filter, const DeviceInfo& device)
{
    Place(pRoot, m_order.GroupOf(device), NewDevice(filter, device));
}

void TreeGrowth::RemoveDevice(int64_t iDeviceId)
{
    if (TreeNode* pNode = Find(iDeviceId, NodeKindDevice))
        RemoveWithEmptyGroups(pNode);
}

void TreeGrowth::UpdateDevice(QStandardItem* pRoot, const NodeFilter& filter, const DeviceInfo& device)
{
    TreeNode* pNode = Find(device.iDeviceId, NodeKindDevice);
    pNode->Show(device);
    UpdateChannels(pNode, OfferedChannels(filter, device));
    const int64_t iGroupId = m_order.GroupOf(device);
    if (StandsRight(*pNode, iGroupId))
        return;
    TreeNode* pOldGroup = pNode->ParentNode();
    TreeNode::Detach(pNode);
    Place(pRoot, iGroupId, pNode);
    if (pOldGroup && pOldGroup->rowCount() == 0)
        RemoveWithEmptyGroups(pOldGroup);
}

void TreeGrowth::UpdateChannels(TreeNode* pDevice, const QVector<ChannelInfo>& channels)
{
    QSet<int64_t> wanted;
    for (const ChannelInfo& channel : channels)
        wanted.insert(channel.iChannelId);
    for (int i = pDevice->rowCount() - 1; i >= 0; --i) {
        TreeNode* pChannel = pDevice->ChildNode(i);
        if (wanted.contains(pChannel->Id()))
            continue;
        Forget(pChannel);
        delete TreeNode::Detach(pChannel);
    }
    for (int i = 0; i < channels.size(); ++i) {
        TreeNode* pChannel = Find(channels[i].iChannelId, NodeKindChannel);
        if (pChannel && pChannel->ParentNode() == pDevice) {
            pChannel->Show(channels[i]);
            if (pChannel->row() == i)
                continue;
            TreeNode::Detach(pChannel);
        } else {
            pChannel = NewChannel(channels[i]);
        }
        TreeNode::Attach(pDevice, i, pChannel);
    }
}

bool TreeGrowth::UpdateGroups()
{
    for (TreeNode* pNode : qAsConst(m_nodes.front())) {
        const GroupInfo* pGroup = m_order.FindGroup(pNode->Id());
        if (!pGroup || !StandsRight(*pNode, m_order.ParentOf(pNode->Id())))
            return false;
    }
    for (TreeNode* pNode : qAsConst(m_nodes.front()))
        pNode->Show(*m_order.FindGroup(pNode->Id()));
    return true;
}

} // namespace VantaModel
