#pragma once

#include "vantacomponent_export.h"

#include <QModelIndex>
#include <QVector>
#include <QWidget>

#include <cstdint>
#include <memory>

class QStandardItem;

namespace VantaLogic {
class IDeviceManager;
}

namespace VantaModel {
class GroupTreeModel;
}

namespace VantaComponent {

/// A device tree with a search box above it. User-interface thread only.
///
/// Every index given out and taken belongs to the model given to SetModel. The control owns its selection by
/// node id: while the search hides the selected row, GetSelectedItem() is null until the row reappears; when
/// the row vanishes, the selection is cleared and never moves to a neighbour. A change of row by a person
/// (click, arrow keys, type-ahead, right click) emits SignalClicked once; a change by program emits nothing.
/// A person's click on a check box selects the row, changes and cascades the state, emits SignalChecked and
/// then SignalClicked. A cascade under a search touches visible rows only.
class VANTACOMPONENT_EXPORT GroupTreeCtrl : public QWidget
{
    Q_OBJECT

public:
    explicit GroupTreeCtrl(QWidget* parent = nullptr);
    ~GroupTreeCtrl() override;

    void SetDeviceManager(VantaLogic::IDeviceManager* pDeviceManager); ///< not owned, null allowed
    void SetModel(VantaModel::GroupTreeModel* pModel); ///< not owned; null leaves the tree empty
    void SetDragDropMode(int iMode);                   ///< QAbstractItemView::DragDropMode; 0 is none
    void HideNodeEmap(bool bHide);
    void HideNodeChannel(bool bHide);
    void EnableCheckBox(bool bEnable);
    /// Offers "Remove device" in the context menu of device rows to administrators; off at the start.
    void EnableRemoveDevice(bool bEnable);
    void AddDeviceWhiteList(int iDeviceType);
    void AddDeviceBlackList(int iDeviceType);
    void AddChannelWhiteList(int iChannelType);
    void AddChannelBlackList(int iChannelType);

    /// The selected item, null while none is selected or the search hides it.
    QStandardItem* GetSelectedItem() const;
    /// Selects the node of this id and kind by program (no signal); false when the tree does not show it.
    bool SelectNode(int64_t iNodeId, int32_t iNodeKind);
    void ClearSearch(); ///< as emptying the search field does
    /// Puts the keyboard into the search field, with its text selected. Ctrl+F in the tree does the same. The
    /// down key leads from the field into the tree: to the selected row, or to the first one when none is.
    void FocusSearch();
    /// Sets the check state of an item, of the visible items below it and of its parents; null is ignored.
    void UpdateSelectedState(QStandardItem* pItem, bool bChecked);

    /// Append the ticked (or not fully ticked) items of the subtree that begins at the index, itself
    /// included, in the order of the tree. Partly ticked items count as not ticked. What the search hides
    /// stays out, as it stays out of a cascade.
    void GetCheckedItem(const QModelIndex& index, QVector<QStandardItem*>& out) const;
    void GetUnCheckedItem(const QModelIndex& index, QVector<QStandardItem*>& out) const;
    /// The same for the whole tree, rows that the search hides included.
    void GetAllCheckedItem(QVector<QStandardItem*>& out) const;
    void GetAllUnCheckedItem(QVector<QStandardItem*>& out) const;

Q_SIGNALS:
    void SignalClicked(const QModelIndex& index, int iNodeKind);
    void SignalChecked(const QModelIndex& index, bool bChecked);
    /// The search text changed, or the set of visible rows did because devices came or went under a search.
    void SignalSearchChanged();
    /// Once for every device of this tree that was really removed from the site, after its rows are gone.
    void SignalRemoveDevice(int64_t iDevUniqueId);

protected:
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace VantaComponent
