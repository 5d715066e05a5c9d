#include "platform/VantaComponent/GroupTreeCtrlPrivate.h"

#include "platform/LXGUI/LXMessageBox.h"
#include "platform/LXGUI/Theme.h"
#include "platform/SystemLibrary/QCommon.h"
#include "platform/VantaLogic/ITreeExpansion.h"

#include <QMenu>

using VantaModel::GroupTreeModel;

namespace VantaComponent {

GroupTreeCtrl::Private::Private(GroupTreeCtrl* pCtrl)
    : q(pCtrl)
    , pFilter(new TreeFilterModel(pCtrl))
{
}

void GroupTreeCtrl::Private::Connect()
{
    ui.treeDevices->setModel(pFilter);
    connect(ui.edtSearch, &QLineEdit::textChanged, q,
            [this](const QString& strText) { OnSearchEdited(strText); });
    connect(ui.treeDevices, &DeviceTreeView::RowPicked, q,
            [this](const QModelIndex& index) { Remember(pFilter->ItemOf(index)); });
    connect(ui.treeDevices, &DeviceTreeView::RowClicked, q,
            [this](const QModelIndex& index, bool bOnBox) { OnRowClicked(index, bOnBox); });
    connect(ui.treeDevices, &DeviceTreeView::RowFolded, q,
            [this](const QModelIndex& index, bool bUnfolded) { OnRowFolded(index, bUnfolded); });
    connect(ui.treeDevices, &DeviceTreeView::MenuWanted, q,
            [this](const QModelIndex& index, QPoint pos) { OnMenuWanted(index, pos); });
    // A reset leaves the view folded and without selection; rows that come stand folded.
    connect(pFilter, &QAbstractItemModel::modelReset, q, [this] {
        UnfoldRows(QModelIndex(), 0, pFilter->rowCount() - 1);
        ShowSelection();
        ShowEmptyText();
    });
    connect(pFilter, &QAbstractItemModel::rowsInserted, q,
            [this](const QModelIndex& parent, int a, int b) { UnfoldRows(parent, a, b); });
}

void GroupTreeCtrl::Private::AttachModel(GroupTreeModel* pNewModel)
{
    if (pModel)
        pModel->disconnect(q);
    pModel = pNewModel;
    m_selected = Key();
    if (pModel) {
        if (filter == VantaModel::NodeFilter())
            filter = pModel->GetNodeFilter();
        pModel->SetNodeFilter(filter);
        bCheckBoxes = bCheckBoxes || pModel->IsCheckBoxEnabled();
        pModel->EnableCheckBox(bCheckBoxes);
        TakeThemeColours();
    }
    pFilter->setSourceModel(pModel);
    if (!pModel)
        return;
    connect(pModel, &GroupTreeModel::TreeUpdated, q, [this] { OnTreeUpdated(); });
    connect(pModel, &GroupTreeModel::DeviceRemoved, q, &GroupTreeCtrl::SignalRemoveDevice);
}

void GroupTreeCtrl::Private::EditFilter(void (*edit)(VantaModel::NodeFilter&, int), int iValue)
{
    edit(filter, iValue);
    if (pModel)
        pModel->SetNodeFilter(filter);
}

void GroupTreeCtrl::Private::TakeThemeColours()
{
    const QColor dim = LXGUI::Theme::Current().Colour(QStringLiteral("dim"));
    ui.treeDevices->SetEmptyColour(dim);
    if (pModel)
        pModel->SetDimBrush(dim);
}

void GroupTreeCtrl::Private::OnSearchEdited(const QString& strText)
{
    if (pModel)
        pModel->EnsureBuilt();
    pFilter->SetSearch(strText);
    ShowEmptyText();
    if (!pFilter->IsSearching() && ui.treeDevices->SelectedRow().isValid())
        ui.treeDevices->Reveal(ui.treeDevices->SelectedRow());
    Q_EMIT q->SignalSearchChanged();
}

void GroupTreeCtrl::Private::OnTreeUpdated()
{
    pFilter->Refilter();
    ShowSelection();
    ShowEmptyText();
    if (pFilter->TakeShownChanged())
        Q_EMIT q->SignalSearchChanged();
}

void GroupTreeCtrl::Private::OnRowClicked(const QModelIndex& index, bool bOnCheckBox)
{
    const QPointer<GroupTreeCtrl> guard(q);
    QStandardItem* pItem = pFilter->ItemOf(index);
    if (!pItem || !pModel)
        return;
    Remember(pItem);
    const QPersistentModelIndex node = pItem->index();
    const int iKind = pItem->data(VantaModel::NodeKindRole).toInt();
    if (bOnCheckBox) {
        const bool bTick = !AllShownTicked(pItem);
        SetChecked(pItem, bTick);
        Q_EMIT q->SignalChecked(node, bTick);
    }
    if (guard && node.isValid())
        Q_EMIT q->SignalClicked(node, iKind);
}

void GroupTreeCtrl::Private::OnRowFolded(const QModelIndex& index, bool bUnfolded)
{
    const QStandardItem* pItem = pFilter->ItemOf(index);
    if (!pItem || !pModel)
        return;
    const int32_t iKind = pItem->data(VantaModel::NodeKindRole).toInt();
    const int64_t iId = pItem->data(VantaModel::NodeIdRole).toLongLong();
    if (VantaLogic::ITreeExpansion* pMemory = pModel->GetExpandInterface()) {
        pMemory->SetExpanded(iKind, iId, bUnfolded);
    } else if (bUnfolded) {
        m_unfolded.insert({iKind, iId});
    } else {
        m_unfolded.remove({iKind, iId});
    }
}

bool GroupTreeCtrl::Private::IsUnfolded(const QStandardItem* pItem) const
{
    if (pFilter->IsSearching())
        return pFilter->HasHitsBelow(pItem);
    const int32_t iKind = pItem->data(VantaModel::NodeKindRole).toInt();
    const int64_t iId = pItem->data(VantaModel::NodeIdRole).toLongLong();
    const VantaLogic::ITreeExpansion* pMemory = pModel ? pModel->GetExpandInterface() : nullptr;
    return pMemory ? pMemory->IsExpanded(iKind, iId) : m_unfolded.contains({iKind, iId});
}

void GroupTreeCtrl::Private::CollectUnfolded(const QModelIndex& row, QModelIndexList& rows) const
{
    const int iChildren = pFilter->rowCount(row);
    if (iChildren == 0)
        return;
    if (IsUnfolded(pFilter->ItemOf(row)))
        rows.append(row);
    for (int i = 0; i < iChildren; ++i)
        CollectUnfolded(pFilter->index(i, 0, row), rows);
}

void GroupTreeCtrl::Private::UnfoldRows(const QModelIndex& parent, int iFirst, int iLast)
{
    QModelIndexList rows;
    if (parent.isValid() && pFilter->IsSearching() && IsUnfolded(pFilter->ItemOf(parent)))
        rows.append(parent); // a hit came below it
    for (int i = iFirst; i <= iLast; ++i)
        CollectUnfolded(pFilter->index(i, 0, parent), rows);
    ui.treeDevices->Unfold(rows);
}

bool GroupTreeCtrl::Private::MayRemove() const
{
    return bRemoveOffered && pDeviceManager && QCommon::CheckMenuRight(QCommon::RightAdministrator);
}

void GroupTreeCtrl::Private::OnMenuWanted(const QModelIndex& index, const QPoint& globalPos)
{
    const QStandardItem* pItem = pFilter->ItemOf(index);
    if (!pItem || !MayRemove() || pItem->data(VantaModel::NodeKindRole).toInt() != VantaModel::NodeKindDevice)
        return;
    const int64_t iDeviceId = pItem->data(VantaModel::NodeIdRole).toLongLong();
    auto* pMenu = new QMenu(q);
    pMenu->setAttribute(Qt::WA_DeleteOnClose);
    pMenu->setObjectName(QStringLiteral("menuDevice"));
    QAction* pRemove = pMenu->addAction(GroupTreeCtrl::tr("Remove device"));
    pRemove->setObjectName(QStringLiteral("actRemoveDevice"));
    // The question waits in an event loop of its own; the menu must have finished before.
    connect(
        pRemove, &QAction::triggered, q, [this, iDeviceId] { AskToRemove(iDeviceId); }, Qt::QueuedConnection);
    pMenu->popup(globalPos);
}

void GroupTreeCtrl::Private::AskToRemove(int64_t iDeviceId)
{
    VantaLogic::DeviceInfo device;
    if (!MayRemove() || pDeviceManager->GetDevice(iDeviceId, device) != 0)
        return;
    const QPointer<GroupTreeCtrl> guard(q);
    const int iAnswer = LXGUI::LXMessageBox::ShowWarning(
        q, GroupTreeCtrl::tr("Remove device"),
        GroupTreeCtrl::tr("Remove \"%1\" from the site? Its alarm schemes go with it.").arg(device.strName),
        LXGUI::LXMessageBox::ButtonOk | LXGUI::LXMessageBox::ButtonNo);
    if (guard && iAnswer == LXGUI::LXMessageBox::ButtonOk && MayRemove())
        pDeviceManager->RemoveDevice(iDeviceId);
}

QStandardItem* GroupTreeCtrl::Private::SelectedNode() const
{
    return pModel ? pModel->FindNode(m_selected.iId, m_selected.iKind) : nullptr;
}

void GroupTreeCtrl::Private::Remember(const QStandardItem* pNode)
{
    m_selected = Key();
    if (pNode) {
        m_selected.iId = pNode->data(VantaModel::NodeIdRole).toLongLong();
        m_selected.iKind = pNode->data(VantaModel::NodeKindRole).toInt();
    }
}

/// Brings the view's selection into line with the node that is selected.
void GroupTreeCtrl::Private::ShowSelection()
{
    const QStandardItem* pNode = SelectedNode();
    if (!pNode)
        m_selected = Key();
    ui.treeDevices->SelectRow(pFilter->IndexOf(pNode));
}

void GroupTreeCtrl::Private::ShowEmptyText()
{
    QString strText;
    if (pFilter->rowCount() > 0) {
        strText.clear();
    } else if (pModel && pModel->rowCount() > 0) {
        strText = GroupTreeCtrl::tr("No device matches \"%1\"; clear the search to see all devices.")
                      .arg(pFilter->SearchText().left(40));
    } else if (pDeviceManager && !pDeviceManager->GetDeviceIds().isEmpty()) {
        strText = GroupTreeCtrl::tr("The site has no device that can be chosen here.");
    } else {
        strText = GroupTreeCtrl::tr("The site has no devices; add one to see it here.");
    }
    ui.treeDevices->SetEmptyText(strText);
}

/// Whether a click on the check box has nothing left to tick. Under a search a parent can stay partly ticked
/// although all of its shown rows are ticked; the next click must then untick them.
bool GroupTreeCtrl::Private::AllShownTicked(const QStandardItem* pItem) const
{
    if (!pItem->hasChildren() || !pFilter->IsSearching())
        return pItem->checkState() == Qt::Checked;
    for (int i = 0; i < pItem->rowCount(); ++i) {
        const QStandardItem* pChild = pItem->child(i);
        if (pFilter->IsShown(pChild) && !AllShownTicked(pChild))
            return false;
    }
    return true;
}

void GroupTreeCtrl::Private::SetChecked(QStandardItem* pItem, bool bChecked)
{
    if (!pModel)
        return;
    if (!pFilter->IsSearching()) {
        pModel->SetChecked(pItem, bChecked);
    } else {
        pModel->SetChecked(pItem, bChecked, [this](const QModelIndex& index) {
            return pFilter->IsShown(pModel->itemFromIndex(index));
        });
    }
}

void GroupTreeCtrl::Private::Collect(QStandardItem* pItem, bool bTicked, bool bShownOnly,
                                     QVector<QStandardItem*>& out) const
{
    if (bShownOnly && !pFilter->IsShown(pItem))
        return;
    if ((pItem->checkState() == Qt::Checked) == bTicked)
        out.append(pItem);
    for (int i = 0; i < pItem->rowCount(); ++i)
        Collect(pItem->child(i), bTicked, bShownOnly, out);
}

void GroupTreeCtrl::Private::CollectUnder(const QModelIndex& index, bool bTicked,
                                          QVector<QStandardItem*>& out) const
{
    if (pModel && index.isValid() && index.model() == pModel)
        Collect(pModel->itemFromIndex(index), bTicked, pFilter->IsSearching(), out);
}

void GroupTreeCtrl::Private::CollectAll(bool bTicked, QVector<QStandardItem*>& out) const
{
    if (!pModel)
        return;
    pModel->EnsureBuilt();
    for (int i = 0; i < pModel->rowCount(); ++i)
        Collect(pModel->item(i), bTicked, false, out);
}

} // namespace VantaComponent
