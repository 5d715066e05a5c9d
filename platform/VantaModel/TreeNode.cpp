#include "platform/VantaModel/TreeNode.h"

#include "platform/VantaModel/GroupTreeModel.h"

#include <QGuiApplication>
#include <QPalette>

namespace VantaModel {

namespace {

QIcon TreeIcon(const char* name)
{
    return QIcon(QStringLiteral("./Skin/theme1/tree/%1.png").arg(QLatin1String(name)));
}

/// The role under which QStandardItem keeps an item's flags.
constexpr int flagsRole = Qt::UserRole - 1;

} // namespace

TreeLook::TreeLook()
    : group(TreeIcon("group"))
    , device(TreeIcon("device"))
    , deviceOffline(TreeIcon("device_offline"))
    , door(TreeIcon("door"))
    , alarmIn(TreeIcon("alarm_in"))
    , alarmOut(TreeIcon("alarm_out"))
    , channel(TreeIcon("channel"))
    , dim(QGuiApplication::palette().brush(QPalette::PlaceholderText))
{
}

const QIcon& TreeLook::IconOf(const TreeNode& node) const
{
    if (node.Kind() == NodeKindGroup)
        return group;
    if (node.Kind() == NodeKindDevice)
        return node.IsDimmed() ? deviceOffline : device;
    switch (node.ChannelType()) {
    case VantaLogic::ChannelTypeDoor:
        return door;
    case VantaLogic::ChannelTypeAlarmInput:
        return alarmIn;
    case VantaLogic::ChannelTypeAlarmOutput:
        return alarmOut;
    default:
        return channel;
    }
}

TreeNode::TreeNode(const TreeLook& look, const VantaLogic::GroupInfo& group)
    : m_look(look)
    , m_strName(group.strName)
    , m_iId(group.iGroupId)
    , m_kind(NodeKindGroup)
{
}

TreeNode::TreeNode(const TreeLook& look, const VantaLogic::DeviceInfo& device)
    : m_look(look)
    , m_strName(device.strName)
    , m_iId(device.iDeviceId)
    , m_kind(NodeKindDevice)
    , m_bOnline(device.bOnline)
    , m_bEnabled(device.bEnabled)
{
}

TreeNode::TreeNode(const TreeLook& look, const VantaLogic::ChannelInfo& channel)
    : m_look(look)
    , m_strName(channel.strName)
    , m_iId(channel.iChannelId)
    , m_kind(NodeKindChannel)
    , m_iChannelType(channel.iChannelType)
    , m_iNumber(channel.iNumber)
{
}

/// One signal with its roles, where QStandardItem's own would name none.
void TreeNode::Changed(const QVector<int>& roles)
{
    if (QStandardItemModel* pModel = model()) {
        const QModelIndex at = index();
        Q_EMIT pModel->dataChanged(at, at, roles);
    }
}

void TreeNode::Show(const VantaLogic::GroupInfo& group)
{
    if (m_strName == group.strName)
        return;
    m_strName = group.strName;
    Changed({Qt::DisplayRole, Qt::EditRole});
}

void TreeNode::Show(const VantaLogic::DeviceInfo& device)
{
    QVector<int> roles;
    if (m_strName != device.strName)
        roles << Qt::DisplayRole << Qt::EditRole << Qt::ToolTipRole;
    if (m_bOnline != device.bOnline || m_bEnabled != device.bEnabled)
        roles << Qt::DecorationRole << Qt::ForegroundRole << Qt::ToolTipRole << Qt::AccessibleTextRole;
    m_strName = device.strName;
    m_bOnline = device.bOnline;
    m_bEnabled = device.bEnabled;
    if (!roles.isEmpty())
        Changed(roles);
}

void TreeNode::Show(const VantaLogic::ChannelInfo& channel)
{
    QVector<int> roles;
    if (m_strName != channel.strName || m_iNumber != channel.iNumber)
        roles << Qt::DisplayRole << Qt::EditRole << NodeNumberRole << Qt::ToolTipRole;
    if (m_iChannelType != channel.iChannelType)
        roles << ChannelKindRole << Qt::DecorationRole;
    m_strName = channel.strName;
    m_iNumber = channel.iNumber;
    m_iChannelType = channel.iChannelType;
    if (!roles.isEmpty())
        Changed(roles);
}

void TreeNode::ShowOnline(bool bOnline)
{
    if (m_bOnline == bOnline)
        return;
    m_bOnline = bOnline;
    Changed({Qt::DecorationRole, Qt::ForegroundRole, Qt::ToolTipRole, Qt::AccessibleTextRole});
}

Qt::CheckState TreeNode::State() const
{
    const int iChildren = rowCount();
    if (iChildren == 0)
        return m_bOwnTick ? Qt::Checked : Qt::Unchecked;
    if (m_iTicked == iChildren)
        return Qt::Checked;
    return m_iTicked == 0 && m_iPartly == 0 ? Qt::Unchecked : Qt::PartiallyChecked;
}

void TreeNode::Count(Qt::CheckState state, int iBy)
{
    if (state == Qt::Checked) {
        m_iTicked += iBy;
    } else if (state == Qt::PartiallyChecked) {
        m_iPartly += iBy;
    }
}

/// Tells of a change of this node's state and works it into the counts of the nodes above.
void TreeNode::Bubble(Qt::CheckState before)
{
    const Qt::CheckState now = State();
    if (now == before)
        return;
    Changed({Qt::CheckStateRole});
    if (TreeNode* pParent = ParentNode()) {
        const Qt::CheckState parentBefore = pParent->State();
        pParent->Count(before, -1);
        pParent->Count(now, 1);
        pParent->Bubble(parentBefore);
    }
}

void TreeNode::SetChecked(bool bChecked, const Accept& accept)
{
    const Qt::CheckState before = State();
    Cascade(bChecked ? Qt::Checked : Qt::Unchecked, accept);
    Bubble(before);
}

/// Brings the node and what lies below it to the state, with one signal for each run of children; whether
/// the node's own state changed is left to the caller to tell.
bool TreeNode::Cascade(Qt::CheckState state, const Accept& accept)
{
    const Qt::CheckState before = State();
    if (before == state)
        return false;
    const int iChildren = rowCount();
    if (iChildren == 0) {
        m_bOwnTick = state == Qt::Checked;
        return true;
    }
    int iFirst = -1;
    int iLast = -1;
    for (int i = 0; i < iChildren; ++i) {
        TreeNode* pChild = ChildNode(i);
        if (accept && !accept(pChild->index()))
            continue;
        const Qt::CheckState childBefore = pChild->State();
        if (!pChild->Cascade(state, accept))
            continue;
        Count(childBefore, -1);
        Count(pChild->State(), 1);
        iFirst = iFirst < 0 ? i : iFirst;
        iLast = i;
    }
    QStandardItemModel* pModel = model();
    if (pModel && iFirst >= 0)
        Q_EMIT pModel->dataChanged(child(iFirst)->index(), child(iLast)->index(), {Qt::CheckStateRole});
    return State() != before;
}

void TreeNode::Attach(QStandardItem* pParent, int iRow, TreeNode* pNode)
{
    if (pParent->type() != pNode->type()) {
        pParent->insertRow(iRow, pNode);
        return;
    }
    auto* pAbove = static_cast<TreeNode*>(pParent);
    const Qt::CheckState before = pAbove->State();
    pAbove->insertRow(iRow, pNode);
    pAbove->Count(pNode->State(), 1);
    pAbove->Bubble(before);
}

TreeNode* TreeNode::Detach(TreeNode* pNode)
{
    TreeNode* pAbove = pNode->ParentNode();
    if (!pAbove) {
        if (QStandardItemModel* pModel = pNode->model())
            pModel->takeRow(pNode->row());
        return pNode;
    }
    const Qt::CheckState before = pAbove->State();
    pAbove->Count(pNode->State(), -1);
    if (pAbove->rowCount() == 1) // the last one leaves its tick behind
        pAbove->m_bOwnTick = before == Qt::Checked;
    pAbove->takeRow(pNode->row());
    pAbove->Bubble(before);
    return pNode;
}

/// Names come from outside and must not be taken for mark-up.
QString TreeNode::ToolTip() const
{
    const QString strName = m_strName.toHtmlEscaped();
    QString strText;
    if (m_kind == NodeKindChannel) {
        strText = GroupTreeModel::tr("Number %1, id %2").arg(m_iNumber).arg(m_iId);
    } else if (m_kind == NodeKindDevice && !m_bEnabled) {
        strText = GroupTreeModel::tr("Id %1, switched off in the configuration").arg(m_iId);
    } else if (m_kind == NodeKindDevice && !m_bOnline) {
        strText = GroupTreeModel::tr("Id %1, offline: it can be configured but does not answer").arg(m_iId);
    } else if (m_kind == NodeKindDevice) {
        strText = GroupTreeModel::tr("Id %1").arg(m_iId);
    }
    return strText.isEmpty() ? QStringLiteral("<p>%1</p>").arg(strName)
                             : QStringLiteral("<p>%1<br>%2</p>").arg(strName, strText.toHtmlEscaped());
}

QVariant TreeNode::data(int iRole) const
{
    switch (iRole) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return m_strName;
    case Qt::DecorationRole:
        return m_look.IconOf(*this);
    case Qt::CheckStateRole:
        return m_look.bCheckable ? QVariant(State()) : QVariant();
    case Qt::ForegroundRole:
        return IsDimmed() ? QVariant(m_look.dim) : QVariant();
    case Qt::ToolTipRole:
        return ToolTip();
    case Qt::AccessibleTextRole:
        return IsDimmed() ? GroupTreeModel::tr("%1, not available").arg(m_strName) : m_strName;
    case NodeIdRole:
        return QVariant(static_cast<qlonglong>(m_iId));
    case NodeKindRole:
        return static_cast<int>(m_kind);
    case ChannelKindRole:
        return m_kind == NodeKindChannel ? QVariant(static_cast<int>(m_iChannelType)) : QVariant();
    case NodeNumberRole:
        return m_kind == NodeKindChannel ? QVariant(static_cast<int>(m_iNumber)) : QVariant();
    case flagsRole:
        return static_cast<int>(Qt::ItemIsSelectable | Qt::ItemIsEnabled |
                                (m_look.bCheckable ? Qt::ItemIsUserCheckable : Qt::NoItemFlags));
    default:
        return QStandardItem::data(iRole);
    }
}

void TreeNode::setData(const QVariant& value, int iRole)
{
    switch (iRole) {
    case Qt::CheckStateRole:
        if (value.toInt() != Qt::PartiallyChecked)
            SetChecked(value.toInt() == Qt::Checked, {});
        return;
    case Qt::DisplayRole:
    case Qt::EditRole:
    case Qt::DecorationRole:
    case Qt::ForegroundRole:
    case Qt::ToolTipRole:
    case Qt::AccessibleTextRole:
    case NodeIdRole:
    case NodeKindRole:
    case ChannelKindRole:
    case NodeNumberRole:
    case flagsRole:
        return;
    default:
        QStandardItem::setData(value, iRole);
    }
}

} // namespace VantaModel
