#pragma once

#include "platform/VantaComponent/GroupTreeCtrl.h"
#include "platform/VantaComponent/TreeFilterModel.h"
#include "platform/VantaModel/GroupTreeModel.h"

#include "ui_GroupTreeCtrl.h"

#include <QPointer>
#include <QSet>

namespace VantaComponent {

/// The working parts of a device tree control: what is selected, what is unfolded, what a click does.
class GroupTreeCtrl::Private
{
public:
    explicit Private(GroupTreeCtrl* pCtrl);

    void Connect();
    void AttachModel(VantaModel::GroupTreeModel* pModel);
    void EditFilter(void (*edit)(VantaModel::NodeFilter&, int), int iValue);
    void TakeThemeColours();

    void OnSearchEdited(const QString& strText);
    void OnTreeUpdated();
    void OnRowClicked(const QModelIndex& index, bool bOnCheckBox);
    void OnRowFolded(const QModelIndex& index, bool bUnfolded);
    void OnMenuWanted(const QModelIndex& index, const QPoint& globalPos);
    void AskToRemove(int64_t iDeviceId);
    bool MayRemove() const;

    QStandardItem* SelectedNode() const; ///< whether shown or not; null once it has gone
    void Remember(const QStandardItem* pNode);
    void ShowSelection();
    void UnfoldRows(const QModelIndex& parent, int iFirst, int iLast);
    void ShowEmptyText();

    bool AllShownTicked(const QStandardItem* pItem) const;
    void SetChecked(QStandardItem* pItem, bool bChecked);
    /// Appends the items of a subtree that are ticked (or not); with `bShownOnly` those the search leaves.
    void Collect(QStandardItem* pItem, bool bTicked, bool bShownOnly, QVector<QStandardItem*>& out) const;
    void CollectUnder(const QModelIndex& index, bool bTicked, QVector<QStandardItem*>& out) const;
    void CollectAll(bool bTicked, QVector<QStandardItem*>& out) const;

    GroupTreeCtrl* q;
    Ui::GroupTreeCtrl ui;
    TreeFilterModel* pFilter; ///< child of the control
    QPointer<VantaModel::GroupTreeModel> pModel;
    VantaLogic::IDeviceManager* pDeviceManager = nullptr;
    VantaModel::NodeFilter filter;
    bool bCheckBoxes = false;
    bool bRemoveOffered = false;

private:
    struct Key
    {
        int64_t iId = -1;
        int32_t iKind = 0;
    };

    bool IsUnfolded(const QStandardItem* pItem) const;
    void CollectUnfolded(const QModelIndex& row, QModelIndexList& rows) const;

    Key m_selected;
    QSet<QPair<int32_t, int64_t>> m_unfolded; ///< when the model has no memory of its own
};

} // namespace VantaComponent
