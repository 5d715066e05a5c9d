#include "AlarmCtrl/DeviceTreePicker.h"

#include "platform/VantaComponent/GroupTreeCtrl.h"
#include "platform/VantaModel/GroupTreeModel.h"

#include <QAbstractItemView>
#include <QHBoxLayout>
#include <QStandardItem>

DeviceTreePicker::DeviceTreePicker(VantaLogic::IDeviceManager* pDeviceManager,
                                   VantaModel::GroupTreeModel* pModel, QWidget* pContainer)
    : QObject(pContainer)
    , m_pTree(new VantaComponent::GroupTreeCtrl(pContainer))
{
    m_pTree->SetDeviceManager(pDeviceManager);
    m_pTree->SetModel(pModel);
    m_pTree->SetDragDropMode(QAbstractItemView::NoDragDrop);
    m_pTree->HideNodeEmap(true);
    m_pTree->EnableCheckBox(true);

    auto* const pLayout = new QHBoxLayout(pContainer);
    pLayout->setContentsMargins(1, 1, 1, 1);
    pLayout->setSpacing(0);
    pLayout->addWidget(m_pTree);
}

void DeviceTreePicker::Offer(const DeviceTreeOffer& offer)
{
    for (int type = 0; type < DeviceTypeCount; ++type) {
        if (!offer.devices.Contains(type))
            m_pTree->AddDeviceBlackList(type);
    }
    for (int kind = 0; kind < ChannelKindCount; ++kind) {
        if (!offer.channels.Contains(kind))
            m_pTree->AddChannelBlackList(kind);
    }
    if (offer.bHideChannels)
        m_pTree->HideNodeChannel(true);
}

DeviceTreePicker::CheckChange DeviceTreePicker::FollowCheck(const QModelIndex& index, bool bChecked)
{
    m_pTree->UpdateSelectedState(m_pTree->GetSelectedItem(), bChecked);
    CheckChange change;
    m_pTree->GetCheckedItem(index, change.checked);
    m_pTree->GetUnCheckedItem(index, change.unchecked);
    return change;
}

DeviceTreeNode DeviceTreePicker::NodeOf(const QStandardItem& item)
{
    return {item.data(VantaModel::NodeIdRole).toLongLong(), item.data(VantaModel::NodeKindRole).toInt()};
}

bool DeviceTreePicker::IsChannelOfKind(const QStandardItem& item, int32_t iChannelKind)
{
    if (item.data(VantaModel::NodeKindRole).toInt() != VantaModel::NodeKindChannel)
        return false;
    // A node without a kind must not pass for kind 0.
    bool ok = false;
    const int kind = item.data(VantaModel::ChannelKindRole).toInt(&ok);
    return ok && kind == iChannelKind;
}

TickedNodes::TickedNodes(VantaModel::GroupTreeModel* pModel, QObject* parent)
    : QObject(parent)
    , m_pModel(pModel)
{
    connect(pModel, &VantaModel::GroupTreeModel::TreeUpdated, this, &TickedNodes::OnTreeUpdated);
}

void TickedNodes::Apply(const DeviceTreePicker::CheckChange& change)
{
    for (const QStandardItem* const pItem : change.unchecked)
        m_nodes.remove(DeviceTreePicker::NodeOf(*pItem));
    for (const QStandardItem* const pItem : change.checked)
        m_nodes.insert(DeviceTreePicker::NodeOf(*pItem));
}

void TickedNodes::OnTreeUpdated()
{
    for (auto it = m_nodes.begin(); it != m_nodes.end();) {
        if (m_pModel->FindNode(it->iId, it->iKind) == nullptr) {
            it = m_nodes.erase(it);
        } else {
            ++it;
        }
    }
}
