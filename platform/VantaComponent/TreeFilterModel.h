#pragma once

#include "platform/VantaComponent/TreeSearch.h"

#include <QAbstractProxyModel>

class QStandardItem;
class QStandardItemModel;

namespace VantaComponent {

/// The rows of a device tree that a search leaves. Without a search all rows stand as in the source; under
/// one the shown set is worked out in a pass and kept, so that asking for a row costs a look-up. Changes of
/// the source pass through row by row; Refilter() then brings the shown set up to date.
class TreeFilterModel : public QAbstractProxyModel
{
    Q_OBJECT

public:
    explicit TreeFilterModel(QObject* parent = nullptr);
    ~TreeFilterModel() override;

    void setSourceModel(QAbstractItemModel* pModel) override; ///< a QStandardItemModel or null
    void SetSearch(const QString& strText);
    bool IsSearching() const { return !m_matcher.IsEmpty(); }
    const QString& SearchText() const { return m_matcher.Text(); }

    /// After changes of the source under a search: shows and hides rows one run at a time.
    void Refilter();
    /// Whether rows came or went under the search since the last call.
    bool TakeShownChanged();

    bool IsShown(const QStandardItem* pItem) const;
    QStandardItem* ItemOf(const QModelIndex& index) const; ///< null for an invalid index
    QModelIndex IndexOf(const QStandardItem* pItem) const; ///< invalid when the search hides it
    bool HasHitsBelow(const QStandardItem* pItem) const { return m_result.unfold.contains(pItem); }

    QModelIndex index(int iRow, int iColumn, const QModelIndex& parent = QModelIndex()) const override;
    QModelIndex parent(const QModelIndex& child) const override;
    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    bool hasChildren(const QModelIndex& parent = QModelIndex()) const override;
    QModelIndex mapToSource(const QModelIndex& index) const override;
    QModelIndex mapFromSource(const QModelIndex& index) const override;

private:
    using Rows = QVector<QStandardItem*>;
    struct Span
    {
        int iFirst = 0;
        int iLast = -1;
        bool IsEmpty() const { return iLast < iFirst; }
    };

    QStandardItem* ItemAt(const QStandardItem* pParent, int iRow) const;
    const QStandardItem* AboveOf(const QStandardItem* pItem) const;
    QStandardItem* SourceItem(const QModelIndex& sourceIndex) const; ///< the root for an invalid index
    int RowOf(const QStandardItem* pParent, const QStandardItem* pItem) const;
    Span SpanOf(const QStandardItem* pParent, int iSourceFirst, int iSourceLast) const;
    QVector<int64_t> ShownKeys() const;
    void CollectKeys(const QStandardItem* pParent, QVector<int64_t>& keys) const;

    void OnAboutToInsert(const QModelIndex& sourceParent, int iFirst, int iLast);
    void OnInserted();
    void OnAboutToRemove(const QModelIndex& sourceParent, int iFirst, int iLast);
    void OnRemoved();
    void OnDataChanged(const QModelIndex& first, const QModelIndex& last, const QVector<int>& roles);
    void OnAboutToReset();
    void OnReset();
    void OnSourceDestroyed();

    void Bring(QStandardItem* pParent, const SearchResult& wanted);
    void HideRows(QStandardItem* pParent, const Rows& wanted);
    void ShowRows(QStandardItem* pParent, const Rows& wanted, const SearchResult& result);
    void Adopt(const QStandardItem* pItem, const SearchResult& wanted);
    void Drop(const QStandardItem* pItem);

    QStandardItemModel* m_pSource = nullptr;
    NodeMatcher m_matcher;
    SearchResult m_result;
    const QStandardItem* m_pRemovingFrom = nullptr;
    Rows m_removing;
    QVector<int64_t> m_keysBeforeReset;
    bool m_bInserting = false;
    bool m_bShownChanged = false;
};

} // namespace VantaComponent
