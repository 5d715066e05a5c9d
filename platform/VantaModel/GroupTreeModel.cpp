#include "platform/VantaModel/GroupTreeModel.h"

#include "platform/VantaModel/TreeGrowth.h"

#include <QPointer>
#include <QSet>
#include <QTimer>

using namespace VantaLogic;

namespace VantaModel {

class GroupTreeModel::Private : public IDeviceObserver
{
public:
    Private(GroupTreeModel* pModel, IDeviceManager* pManager, int iTreeMode)
        : q(pModel)
        , pDeviceManager(pManager)
        , iMode(iTreeMode)
        , order(pManager)
        , growth(look, order, iTreeMode == 1)
    {
        buildSoon.setSingleShot(true);
        buildSoon.setInterval(0);
        connect(&buildSoon, &QTimer::timeout, q, &GroupTreeModel::EnsureBuilt);
    }

    void OnDeviceAdded(int64_t iDeviceId) override { Refresh(iDeviceId); }
    void OnDeviceChanged(int64_t iDeviceId) override { Refresh(iDeviceId); }
    void OnDeviceRemoved(int64_t iDeviceId) override;
    void OnDeviceOnline(int64_t iDeviceId, bool bOnline) override;
    void OnGroupsChanged() override;

    void BuildLater();
    void Build();
    void Refresh(int64_t iDeviceId);
    bool WorkIn(const DeviceInfo& device);
    void TellCheckable(const QModelIndex& parent);

    GroupTreeModel* q;
    IDeviceManager* pDeviceManager;
    ITreeExpansion* pExpansion = nullptr;
    const int iMode;
    NodeFilter filter;
    TreeLook look;
    SiteOrder order;
    TreeGrowth growth;
    QHash<int64_t, int32_t> types; ///< of all devices of the site: a device that has gone cannot be asked
    QSet<int64_t> offered;         ///< devices that this tree has shown
    bool bStale = true;
    QTimer buildSoon; ///< fires when control returns to the event loop
};

void GroupTreeModel::Private::BuildLater()
{
    bStale = true;
    buildSoon.start();
}

void GroupTreeModel::Private::Build()
{
    order.ReadGroups();
    order.ReadDevices();
    types.clear();
    QVector<DeviceInfo> devices;
    const QVector<int64_t> ids = pDeviceManager ? pDeviceManager->GetDeviceIds() : QVector<int64_t>();
    for (const int64_t iDeviceId : ids) {
        DeviceInfo device;
        if (pDeviceManager->GetDevice(iDeviceId, device) != 0)
            continue;
        types.insert(iDeviceId, device.iDeviceType);
        if (!filter.OffersDevice(device.iDeviceType))
            continue;
        offered.insert(iDeviceId);
        devices.append(device);
    }
    growth.Rebuild(q->invisibleRootItem(), filter, devices);
}

void GroupTreeModel::Private::Refresh(int64_t iDeviceId)
{
    DeviceInfo device;
    if (pDeviceManager->GetDevice(iDeviceId, device) != 0)
        return; // has gone again; its removal is told next
    types.insert(iDeviceId, device.iDeviceType);
    if (bStale)
        return;
    order.ReadDevices();
    if (WorkIn(device))
        Q_EMIT q->TreeUpdated();
}

/// False when the device neither is nor was shown.
bool GroupTreeModel::Private::WorkIn(const DeviceInfo& device)
{
    const bool bShown = growth.Find(device.iDeviceId, NodeKindDevice) != nullptr;
    if (!filter.OffersDevice(device.iDeviceType)) {
        growth.RemoveDevice(device.iDeviceId);
        return bShown;
    }
    offered.insert(device.iDeviceId);
    if (bShown) {
        growth.UpdateDevice(q->invisibleRootItem(), filter, device);
    } else {
        growth.AddDevice(q->invisibleRootItem(), filter, device);
    }
    return true;
}

void GroupTreeModel::Private::OnDeviceRemoved(int64_t iDeviceId)
{
    const QPointer<GroupTreeModel> guard(q);
    const auto it = types.constFind(iDeviceId);
    const bool bOffered =
        offered.remove(iDeviceId) || (it != types.cend() && filter.OffersDevice(it.value()));
    types.remove(iDeviceId);
    if (bStale) {
        q->EnsureBuilt();
    } else if (growth.Find(iDeviceId, NodeKindDevice)) {
        growth.RemoveDevice(iDeviceId);
        Q_EMIT q->TreeUpdated();
    }
    if (guard && bOffered)
        Q_EMIT q->DeviceRemoved(iDeviceId);
}

void GroupTreeModel::Private::OnDeviceOnline(int64_t iDeviceId, bool bOnline)
{
    if (bStale)
        return;
    if (TreeNode* pNode = growth.Find(iDeviceId, NodeKindDevice)) {
        pNode->ShowOnline(bOnline);
        Q_EMIT q->TreeUpdated();
    }
}

void GroupTreeModel::Private::OnGroupsChanged()
{
    if (bStale)
        return;
    order.ReadGroups();
    if (growth.UpdateGroups()) {
        Q_EMIT q->TreeUpdated();
        return;
    }
    bStale = true;
    q->EnsureBuilt();
}

GroupTreeModel::GroupTreeModel(IDeviceManager* pDeviceManager, int iMode, QObject* parent)
    : QStandardItemModel(parent)
    , d(std::make_unique<Private>(this, pDeviceManager, iMode))
{
    qRegisterMetaType<int64_t>("int64_t"); // spies and queued connections name the type so
    setColumnCount(1);
    if (pDeviceManager) {
        const QVector<int64_t> ids = pDeviceManager->GetDeviceIds();
        for (const int64_t iDeviceId : ids)
            d->types.insert(iDeviceId, pDeviceManager->GetDeviceType(iDeviceId));
        pDeviceManager->AddObserver(d.get());
    }
    d->BuildLater();
}

GroupTreeModel::~GroupTreeModel()
{
    if (d->pDeviceManager)
        d->pDeviceManager->RemoveObserver(d.get());
}

void GroupTreeModel::SetNodeFilter(const NodeFilter& filter)
{
    if (d->filter == filter)
        return;
    d->filter = filter;
    d->BuildLater();
}

const NodeFilter& GroupTreeModel::GetNodeFilter() const
{
    return d->filter;
}

void GroupTreeModel::EnableCheckBox(bool bEnable)
{
    if (d->look.bCheckable == bEnable)
        return;
    d->look.bCheckable = bEnable;
    d->TellCheckable(QModelIndex());
}

void GroupTreeModel::Private::TellCheckable(const QModelIndex& parent)
{
    const int iRows = q->rowCount(parent);
    if (iRows == 0)
        return;
    Q_EMIT q->dataChanged(q->index(0, 0, parent), q->index(iRows - 1, 0, parent), {Qt::CheckStateRole});
    for (int i = 0; i < iRows; ++i)
        TellCheckable(q->index(i, 0, parent));
}

bool GroupTreeModel::IsCheckBoxEnabled() const
{
    return d->look.bCheckable;
}

void GroupTreeModel::SetExpandInterface(ITreeExpansion* pExpansion)
{
    d->pExpansion = pExpansion;
}

ITreeExpansion* GroupTreeModel::GetExpandInterface() const
{
    return d->pExpansion;
}

int GroupTreeModel::GetMode() const
{
    return d->iMode;
}

void GroupTreeModel::SetDimBrush(const QBrush& brush)
{
    d->look.dim = brush;
}

void GroupTreeModel::EnsureBuilt()
{
    if (!d->bStale)
        return;
    d->bStale = false;
    d->buildSoon.stop();
    // One reset for the whole change; nobody sees the tree while it is empty.
    beginResetModel();
    {
        const QSignalBlocker blocker(this);
        d->Build();
    }
    endResetModel();
    Q_EMIT TreeUpdated();
}

QStandardItem* GroupTreeModel::FindNode(int64_t iNodeId, int32_t iNodeKind) const
{
    return d->growth.Find(iNodeId, iNodeKind);
}

void GroupTreeModel::SetChecked(QStandardItem* pItem, bool bChecked,
                                const std::function<bool(const QModelIndex&)>& accept)
{
    if (pItem && pItem->model() == this && pItem != invisibleRootItem())
        static_cast<TreeNode*>(pItem)->SetChecked(bChecked, accept);
}

} // namespace VantaModel
