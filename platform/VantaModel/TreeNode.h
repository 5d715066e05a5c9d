#pragma once

#include "platform/VantaLogic/Records.h"
#include "platform/VantaModel/NodeRoles.h"

#include <QBrush>
#include <QIcon>
#include <QStandardItem>

#include <functional>

namespace VantaModel {

/// What all nodes of a tree share, so that a node of a large site stays small.
struct TreeLook
{
    TreeLook();
    const QIcon& IconOf(const class TreeNode& node) const;

    QIcon group;
    QIcon device;
    QIcon deviceOffline;
    QIcon door;
    QIcon alarmIn;
    QIcon alarmOut;
    QIcon channel;
    QBrush dim;
    bool bCheckable = false;
};

/// A node of a device tree. Answers its roles from plain fields and keeps, for its children, how many are
/// ticked and how many partly, so that a change of one costs a step for each level above it.
class TreeNode final : public QStandardItem
{
public:
    using Accept = std::function<bool(const QModelIndex&)>;

    /// `look` must outlive the node.
    TreeNode(const TreeLook& look, const VantaLogic::GroupInfo& group);
    TreeNode(const TreeLook& look, const VantaLogic::DeviceInfo& device);
    TreeNode(const TreeLook& look, const VantaLogic::ChannelInfo& channel);

    NodeKind Kind() const { return m_kind; }
    int64_t Id() const { return m_iId; }
    int32_t ChannelType() const { return m_iChannelType; }
    bool IsDimmed() const { return m_kind == NodeKindDevice && (!m_bOnline || !m_bEnabled); }
    TreeNode* ParentNode() const { return static_cast<TreeNode*>(parent()); }
    TreeNode* ChildNode(int iRow) const { return static_cast<TreeNode*>(child(iRow)); }

    void Show(const VantaLogic::GroupInfo& group);
    void Show(const VantaLogic::DeviceInfo& device);
    void Show(const VantaLogic::ChannelInfo& channel);
    void ShowOnline(bool bOnline);

    Qt::CheckState State() const;
    /// Ticks or unticks the node and what is accepted below it, see GroupTreeModel::SetChecked.
    void SetChecked(bool bChecked, const Accept& accept);

    /// Rows come and go through these, so that the counts hold. The parent is a TreeNode or a model's root.
    static void Attach(QStandardItem* pParent, int iRow, TreeNode* pNode);
    static TreeNode* Detach(TreeNode* pNode); ///< the caller owns the node then

    QVariant data(int iRole = Qt::UserRole + 1) const override;
    /// Check states keep parents and children in line; of the other roles only those can be set that no
    /// device tree node has of its own.
    void setData(const QVariant& value, int iRole = Qt::UserRole + 1) override;
    int type() const override { return UserType + 1; }

private:
    void Changed(const QVector<int>& roles);
    bool Cascade(Qt::CheckState state, const Accept& accept);
    void Count(Qt::CheckState state, int iBy);
    void Bubble(Qt::CheckState before);
    QString ToolTip() const;

    const TreeLook& m_look;
    QString m_strName;
    int64_t m_iId;
    NodeKind m_kind;
    int32_t m_iChannelType = -1;
    int32_t m_iNumber = 0;
    int m_iTicked = 0; ///< children that are ticked
    int m_iPartly = 0; ///< children that are partly ticked
    bool m_bOwnTick = false;
    bool m_bOnline = true;
    bool m_bEnabled = true;
};

} // namespace VantaModel
