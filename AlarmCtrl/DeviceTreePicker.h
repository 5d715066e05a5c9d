#pragma once

#include "platform/VantaLogic/IDeviceManager.h"

#include <QObject>
#include <QSet>
#include <QVector>

#include <cstdint>
#include <initializer_list>

class QModelIndex;
class QStandardItem;
class QWidget;

namespace VantaComponent {
class GroupTreeCtrl;
}

namespace VantaModel {
class GroupTreeModel;
}

/// What a node of a device tree stands for. Stays meaningful when the node's row goes.
struct DeviceTreeNode
{
    int64_t iId = -1;
    int32_t iKind = 0; ///< VantaModel::NodeKind
};

inline bool operator==(const DeviceTreeNode& a, const DeviceTreeNode& b)
{
    return a.iId == b.iId && a.iKind == b.iKind;
}
inline bool operator!=(const DeviceTreeNode& a, const DeviceTreeNode& b)
{
    return !(a == b);
}
inline uint qHash(const DeviceTreeNode& node, uint seed = 0)
{
    return ::qHash(node.iId, seed) ^ static_cast<uint>(node.iKind);
}

/// A set of device types (0 to 18) or channel kinds (0 to 6).
class TypeSet
{
public:
    constexpr TypeSet(std::initializer_list<int> types)
    {
        for (const int type : types)
            m_bits |= uint32_t{1} << type;
    }
    static constexpr TypeSet All()
    {
        TypeSet all({});
        all.m_bits = ~uint32_t{0};
        return all;
    }
    constexpr bool Contains(int iType) const
    {
        return iType >= 0 && iType < 32 && ((m_bits >> iType) & 1U) != 0;
    }

private:
    uint32_t m_bits = 0;
};

/// What a tree offers: everything else goes on its black lists.
struct DeviceTreeOffer
{
    TypeSet devices = TypeSet::All();
    TypeSet channels = TypeSet::All();
    bool bHideChannels = false;
};

/// A device tree with check boxes that fills a container widget. The tree and this object belong to the
/// container; so should the model. User-interface thread only.
class DeviceTreePicker : public QObject
{
    Q_OBJECT

public:
    static constexpr int DeviceTypeCount = 19;
    static constexpr int ChannelKindCount = 7;

    /// The items of a changed subtree, in the order of the tree.
    struct CheckChange
    {
        QVector<QStandardItem*> checked;
        QVector<QStandardItem*> unchecked;
    };

    /// Neither manager nor model is owned; a null manager gives an empty tree.
    DeviceTreePicker(VantaLogic::IDeviceManager* pDeviceManager, VantaModel::GroupTreeModel* pModel,
                     QWidget* pContainer);

    VantaComponent::GroupTreeCtrl* Tree() const { return m_pTree; }
    /// Puts the types and kinds that are not offered on the tree's black lists, in ascending order.
    void Offer(const DeviceTreeOffer& offer);
    /// To be called for every change of a check box: tells the tree the new state of its selected item (the
    /// selected item, not the one at the index; the tree relies on that) and hands out the items under the
    /// index by their states.
    CheckChange FollowCheck(const QModelIndex& index, bool bChecked);

    static DeviceTreeNode NodeOf(const QStandardItem& item);
    /// Whether the item stands for a channel of this kind.
    static bool IsChannelOfKind(const QStandardItem& item, int32_t iChannelKind);

private:
    VantaComponent::GroupTreeCtrl* m_pTree;
};

/// The nodes that are ticked in a tree, by what they stand for, so that nothing dangles when rows go. A node
/// that leaves the tree leaves the set: it would come back unticked.
class TickedNodes : public QObject
{
    Q_OBJECT

public:
    TickedNodes(VantaModel::GroupTreeModel* pModel, QObject* parent);

    void Apply(const DeviceTreePicker::CheckChange& change);
    const QSet<DeviceTreeNode>& Nodes() const { return m_nodes; }

private Q_SLOTS:
    void OnTreeUpdated();

private:
    VantaModel::GroupTreeModel* m_pModel;
    QSet<DeviceTreeNode> m_nodes;
};
