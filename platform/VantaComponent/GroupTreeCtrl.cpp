#include "platform/VantaComponent/GroupTreeCtrl.h"

#include "platform/VantaComponent/GroupTreeCtrlPrivate.h"

#include <QCoreApplication>
#include <QEvent>
#include <QKeyEvent>
#include <QMetaType>

namespace VantaComponent {

GroupTreeCtrl::GroupTreeCtrl(QWidget* parent)
    : QWidget(parent)
    , d(std::make_unique<Private>(this))
{
    qRegisterMetaType<int64_t>("int64_t"); // connections by text and queued ones name the type so
    d->ui.setupUi(this);
    d->Connect();
    d->TakeThemeColours();
    d->ShowEmptyText();
}

GroupTreeCtrl::~GroupTreeCtrl()
{
    // The children go after the working parts; nothing they still say may arrive there.
    d->ui.edtSearch->disconnect(this);
    d->ui.treeDevices->disconnect(this);
    d->pFilter->disconnect(this);
    if (d->pModel)
        d->pModel->disconnect(this);
}

void GroupTreeCtrl::SetDeviceManager(VantaLogic::IDeviceManager* pDeviceManager)
{
    d->pDeviceManager = pDeviceManager;
    d->ShowEmptyText();
}

void GroupTreeCtrl::SetModel(VantaModel::GroupTreeModel* pModel)
{
    d->AttachModel(pModel);
}

void GroupTreeCtrl::SetDragDropMode(int iMode)
{
    const bool bKnown = iMode >= QAbstractItemView::NoDragDrop && iMode <= QAbstractItemView::InternalMove;
    d->ui.treeDevices->setDragDropMode(bKnown ? static_cast<QAbstractItemView::DragDropMode>(iMode)
                                              : QAbstractItemView::NoDragDrop);
}

void GroupTreeCtrl::HideNodeEmap(bool bHide)
{
    d->EditFilter([](VantaModel::NodeFilter& filter, int iHide) { filter.bHideEmaps = iHide != 0; }, bHide);
}

void GroupTreeCtrl::HideNodeChannel(bool bHide)
{
    d->EditFilter([](VantaModel::NodeFilter& filter, int iHide) { filter.bHideChannels = iHide != 0; },
                  bHide);
}

void GroupTreeCtrl::EnableCheckBox(bool bEnable)
{
    d->bCheckBoxes = bEnable;
    if (d->pModel)
        d->pModel->EnableCheckBox(bEnable);
}

void GroupTreeCtrl::EnableRemoveDevice(bool bEnable)
{
    d->bRemoveOffered = bEnable;
}

void GroupTreeCtrl::AddDeviceWhiteList(int iDeviceType)
{
    d->EditFilter([](VantaModel::NodeFilter& filter, int iType) { filter.deviceWhiteList.insert(iType); },
                  iDeviceType);
}

void GroupTreeCtrl::AddDeviceBlackList(int iDeviceType)
{
    d->EditFilter([](VantaModel::NodeFilter& filter, int iType) { filter.deviceBlackList.insert(iType); },
                  iDeviceType);
}

void GroupTreeCtrl::AddChannelWhiteList(int iChannelType)
{
    d->EditFilter([](VantaModel::NodeFilter& filter, int iType) { filter.channelWhiteList.insert(iType); },
                  iChannelType);
}

void GroupTreeCtrl::AddChannelBlackList(int iChannelType)
{
    d->EditFilter([](VantaModel::NodeFilter& filter, int iType) { filter.channelBlackList.insert(iType); },
                  iChannelType);
}

QStandardItem* GroupTreeCtrl::GetSelectedItem() const
{
    if (d->pModel)
        d->pModel->EnsureBuilt();
    QStandardItem* pNode = d->SelectedNode();
    return d->pFilter->IsShown(pNode) ? pNode : nullptr;
}

bool GroupTreeCtrl::SelectNode(int64_t iNodeId, int32_t iNodeKind)
{
    if (!d->pModel)
        return false;
    d->pModel->EnsureBuilt();
    const QStandardItem* pNode = d->pModel->FindNode(iNodeId, iNodeKind);
    const QModelIndex row = d->pFilter->IndexOf(pNode);
    if (!row.isValid())
        return false;
    d->Remember(pNode);
    d->ShowSelection();
    d->ui.treeDevices->Reveal(row);
    return true;
}

void GroupTreeCtrl::ClearSearch()
{
    d->ui.edtSearch->clear();
}

void GroupTreeCtrl::FocusSearch()
{
    d->ui.edtSearch->setFocus(Qt::ShortcutFocusReason);
    d->ui.edtSearch->selectAll();
}

void GroupTreeCtrl::UpdateSelectedState(QStandardItem* pItem, bool bChecked)
{
    d->SetChecked(pItem, bChecked);
}

void GroupTreeCtrl::GetCheckedItem(const QModelIndex& index, QVector<QStandardItem*>& out) const
{
    d->CollectUnder(index, true, out);
}

void GroupTreeCtrl::GetUnCheckedItem(const QModelIndex& index, QVector<QStandardItem*>& out) const
{
    d->CollectUnder(index, false, out);
}

void GroupTreeCtrl::GetAllCheckedItem(QVector<QStandardItem*>& out) const
{
    d->CollectAll(true, out);
}

void GroupTreeCtrl::GetAllUnCheckedItem(QVector<QStandardItem*>& out) const
{
    d->CollectAll(false, out);
}

bool GroupTreeCtrl::event(QEvent* event)
{
    // At the latest when it becomes visible the tree stands; no empty text flashes up.
    if (event->type() == QEvent::Show && d->pModel)
        d->pModel->EnsureBuilt();
    return QWidget::event(event);
}

void GroupTreeCtrl::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        d->ui.retranslateUi(this);
        d->ShowEmptyText();
    } else if (event->type() == QEvent::PaletteChange || event->type() == QEvent::StyleChange) {
        d->TakeThemeColours();
    }
    QWidget::changeEvent(event);
}

// Keys that nobody in the tree has taken; a host's shortcut comes before.
void GroupTreeCtrl::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Find)) {
        FocusSearch();
    } else if (event->key() == Qt::Key_Down && d->ui.edtSearch->hasFocus()) {
        d->ui.treeDevices->setFocus(Qt::TabFocusReason);
        if (!GetSelectedItem())
            QCoreApplication::sendEvent(d->ui.treeDevices, event);
    } else {
        QWidget::keyPressEvent(event);
    }
}

} // namespace VantaComponent
