#include "platform/VantaComponent/TreeFilterModel.h"

#include "platform/VantaModel/NodeRoles.h"

#include <QStandardItemModel>

#include <algorithm>

namespace VantaComponent {

namespace {

bool StandsBefore(const QStandardItem* pItem, int iSourceRow)
{
    return pItem->row() < iSourceRow;
}

QVector<QStandardItem*> AllChildren(const QStandardItem* pParent)
{
    QVector<QStandardItem*> rows;
    rows.reserve(pParent->rowCount());
    for (int i = 0; i < pParent->rowCount(); ++i)
        rows.append(pParent->child(i));
    return rows;
}

} // namespace

// An index carries the item above it. So it needs no bookkeeping of its own and stays right when rows move.

TreeFilterModel::TreeFilterModel(QObject* parent)
    : QAbstractProxyModel(parent)
{
}

TreeFilterModel::~TreeFilterModel() = default;

void TreeFilterModel::setSourceModel(QAbstractItemModel* pModel)
{
    beginResetModel();
    if (m_pSource)
        m_pSource->disconnect(this);
    QAbstractProxyModel::setSourceModel(pModel);
    m_pSource = qobject_cast<QStandardItemModel*>(pModel);
    m_result = SearchResult();
    if (m_pSource) {
        connect(m_pSource, &QAbstractItemModel::rowsAboutToBeInserted, this,
                &TreeFilterModel::OnAboutToInsert);
        connect(m_pSource, &QAbstractItemModel::rowsInserted, this, &TreeFilterModel::OnInserted);
        connect(m_pSource, &QAbstractItemModel::rowsAboutToBeRemoved, this,
                &TreeFilterModel::OnAboutToRemove);
        connect(m_pSource, &QAbstractItemModel::rowsRemoved, this, &TreeFilterModel::OnRemoved);
        connect(m_pSource, &QAbstractItemModel::dataChanged, this, &TreeFilterModel::OnDataChanged);
        connect(m_pSource, &QAbstractItemModel::modelAboutToBeReset, this, &TreeFilterModel::OnAboutToReset);
        connect(m_pSource, &QAbstractItemModel::modelReset, this, &TreeFilterModel::OnReset);
        connect(m_pSource, &QObject::destroyed, this, &TreeFilterModel::OnSourceDestroyed);
        if (IsSearching())
            m_result = SearchTree(*m_pSource->invisibleRootItem(), m_matcher);
    }
    endResetModel();
}

void TreeFilterModel::SetSearch(const QString& strText)
{
    const NodeMatcher matcher(strText);
    if (matcher.Text() == m_matcher.Text())
        return;
    beginResetModel();
    m_matcher = matcher;
    m_result =
        m_pSource && IsSearching() ? SearchTree(*m_pSource->invisibleRootItem(), m_matcher) : SearchResult();
    endResetModel();
    m_bShownChanged = false;
}

bool TreeFilterModel::TakeShownChanged()
{
    const bool bChanged = m_bShownChanged;
    m_bShownChanged = false;
    return bChanged && IsSearching();
}

const QStandardItem* TreeFilterModel::AboveOf(const QStandardItem* pItem) const
{
    const QStandardItem* pParent = pItem->parent();
    return pParent ? pParent : m_pSource->invisibleRootItem();
}

QStandardItem* TreeFilterModel::SourceItem(const QModelIndex& sourceIndex) const
{
    return sourceIndex.isValid() ? m_pSource->itemFromIndex(sourceIndex) : m_pSource->invisibleRootItem();
}

QStandardItem* TreeFilterModel::ItemAt(const QStandardItem* pParent, int iRow) const
{
    const auto it = m_result.shown.constFind(pParent);
    return it == m_result.shown.cend() ? pParent->child(iRow) : it->value(iRow);
}

/// Row of an item among the shown ones, -1 when it is not among them.
int TreeFilterModel::RowOf(const QStandardItem* pParent, const QStandardItem* pItem) const
{
    const auto it = m_result.shown.constFind(pParent);
    if (it == m_result.shown.cend())
        return pItem->row();
    const auto at = std::lower_bound(it->cbegin(), it->cend(), pItem->row(), StandsBefore);
    return at != it->cend() && *at == pItem ? static_cast<int>(at - it->cbegin()) : -1;
}

/// The shown rows among source rows.
TreeFilterModel::Span TreeFilterModel::SpanOf(const QStandardItem* pParent, int iSourceFirst,
                                              int iSourceLast) const
{
    const auto it = m_result.shown.constFind(pParent);
    if (it == m_result.shown.cend())
        return {iSourceFirst, iSourceLast};
    const auto first = std::lower_bound(it->cbegin(), it->cend(), iSourceFirst, StandsBefore);
    const auto end = std::lower_bound(first, it->cend(), iSourceLast + 1, StandsBefore);
    return {static_cast<int>(first - it->cbegin()), static_cast<int>(end - it->cbegin()) - 1};
}

bool TreeFilterModel::IsShown(const QStandardItem* pItem) const
{
    if (!pItem || !m_pSource || pItem->model() != m_pSource)
        return false;
    if (!IsSearching())
        return true;
    for (const QStandardItem* pAt = pItem; pAt; pAt = pAt->parent()) {
        if (RowOf(AboveOf(pAt), pAt) < 0)
            return false;
    }
    return true;
}

QStandardItem* TreeFilterModel::ItemOf(const QModelIndex& index) const
{
    if (!index.isValid() || !m_pSource)
        return nullptr;
    return ItemAt(static_cast<const QStandardItem*>(index.internalPointer()), index.row());
}

QModelIndex TreeFilterModel::IndexOf(const QStandardItem* pItem) const
{
    if (!IsShown(pItem))
        return {};
    const QStandardItem* pParent = AboveOf(pItem);
    return createIndex(RowOf(pParent, pItem), 0, const_cast<QStandardItem*>(pParent));
}

QModelIndex TreeFilterModel::index(int iRow, int iColumn, const QModelIndex& parent) const
{
    if (!m_pSource || iRow < 0 || iColumn != 0 || iRow >= rowCount(parent))
        return {};
    QStandardItem* pParent = parent.isValid() ? ItemOf(parent) : m_pSource->invisibleRootItem();
    return createIndex(iRow, iColumn, pParent);
}

QModelIndex TreeFilterModel::parent(const QModelIndex& child) const
{
    if (!child.isValid() || !m_pSource)
        return {};
    const auto* pParent = static_cast<const QStandardItem*>(child.internalPointer());
    if (pParent == m_pSource->invisibleRootItem())
        return {};
    const QStandardItem* pAbove = AboveOf(pParent);
    const int iRow = RowOf(pAbove, pParent);
    return iRow < 0 ? QModelIndex() : createIndex(iRow, 0, const_cast<QStandardItem*>(pAbove));
}

int TreeFilterModel::rowCount(const QModelIndex& parent) const
{
    if (!m_pSource || parent.column() > 0)
        return 0;
    const QStandardItem* pParent = parent.isValid() ? ItemOf(parent) : m_pSource->invisibleRootItem();
    if (!pParent)
        return 0;
    const auto it = m_result.shown.constFind(pParent);
    return it == m_result.shown.cend() ? pParent->rowCount() : it->size();
}

int TreeFilterModel::columnCount(const QModelIndex& parent) const
{
    return parent.column() > 0 ? 0 : 1;
}

bool TreeFilterModel::hasChildren(const QModelIndex& parent) const
{
    return rowCount(parent) > 0;
}

QModelIndex TreeFilterModel::mapToSource(const QModelIndex& index) const
{
    const QStandardItem* pItem = ItemOf(index);
    return pItem ? m_pSource->indexFromItem(pItem) : QModelIndex();
}

QModelIndex TreeFilterModel::mapFromSource(const QModelIndex& index) const
{
    return m_pSource && index.isValid() && index.model() == m_pSource
               ? IndexOf(m_pSource->itemFromIndex(index))
               : QModelIndex();
}

void TreeFilterModel::OnAboutToInsert(const QModelIndex& sourceParent, int iFirst, int iLast)
{
    const QStandardItem* pParent = SourceItem(sourceParent);
    const bool bRoot = pParent == m_pSource->invisibleRootItem();
    if (m_result.shown.contains(pParent) || !(bRoot || IsShown(pParent)))
        return; // whether the new rows are hits is for Refilter() to find out
    m_bInserting = true;
    beginInsertRows(bRoot ? QModelIndex() : IndexOf(pParent), iFirst, iLast);
}

void TreeFilterModel::OnInserted()
{
    if (!m_bInserting)
        return;
    m_bInserting = false;
    m_bShownChanged = true;
    endInsertRows();
}

void TreeFilterModel::OnAboutToRemove(const QModelIndex& sourceParent, int iFirst, int iLast)
{
    const QStandardItem* pParent = SourceItem(sourceParent);
    const bool bRoot = pParent == m_pSource->invisibleRootItem();
    if (!bRoot && !IsShown(pParent))
        return;
    const Span span = SpanOf(pParent, iFirst, iLast);
    if (span.IsEmpty())
        return;
    m_pRemovingFrom = pParent;
    for (int i = span.iFirst; i <= span.iLast; ++i)
        m_removing.append(ItemAt(pParent, i));
    beginRemoveRows(bRoot ? QModelIndex() : IndexOf(pParent), span.iFirst, span.iLast);
    // From here on nobody asks for the rows below those that go.
    for (const QStandardItem* pItem : qAsConst(m_removing))
        Drop(pItem);
}

void TreeFilterModel::OnRemoved()
{
    if (!m_pRemovingFrom)
        return;
    const auto it = m_result.shown.find(m_pRemovingFrom);
    if (it != m_result.shown.end()) {
        for (QStandardItem* pItem : qAsConst(m_removing))
            it->removeOne(pItem);
    }
    m_pRemovingFrom = nullptr;
    m_removing.clear();
    m_bShownChanged = true;
    endRemoveRows();
}

void TreeFilterModel::OnDataChanged(const QModelIndex& first, const QModelIndex& last,
                                    const QVector<int>& roles)
{
    const QStandardItem* pParent = SourceItem(first.parent());
    if (pParent != m_pSource->invisibleRootItem() && !IsShown(pParent))
        return;
    const Span span = SpanOf(pParent, first.row(), last.row());
    if (span.IsEmpty())
        return;
    auto* pAbove = const_cast<QStandardItem*>(pParent);
    Q_EMIT dataChanged(createIndex(span.iFirst, 0, pAbove), createIndex(span.iLast, 0, pAbove), roles);
}

void TreeFilterModel::CollectKeys(const QStandardItem* pParent, QVector<int64_t>& keys) const
{
    const auto it = m_result.shown.constFind(pParent);
    const Rows rows = it == m_result.shown.cend() ? AllChildren(pParent) : *it;
    for (const QStandardItem* pItem : rows) {
        keys << pItem->data(VantaModel::NodeKindRole).toInt()
             << pItem->data(VantaModel::NodeIdRole).toLongLong();
        CollectKeys(pItem, keys);
    }
}

QVector<int64_t> TreeFilterModel::ShownKeys() const
{
    QVector<int64_t> keys;
    if (IsSearching())
        CollectKeys(m_pSource->invisibleRootItem(), keys);
    return keys;
}

void TreeFilterModel::OnAboutToReset()
{
    m_keysBeforeReset = ShownKeys();
    beginResetModel();
}

void TreeFilterModel::OnReset()
{
    m_result = IsSearching() ? SearchTree(*m_pSource->invisibleRootItem(), m_matcher) : SearchResult();
    endResetModel();
    if (ShownKeys() != m_keysBeforeReset)
        m_bShownChanged = true;
    m_keysBeforeReset.clear();
}

void TreeFilterModel::OnSourceDestroyed()
{
    beginResetModel();
    m_pSource = nullptr;
    m_result = SearchResult();
    endResetModel();
}

void TreeFilterModel::Refilter()
{
    if (!m_pSource || !IsSearching())
        return;
    QStandardItem* pRoot = m_pSource->invisibleRootItem();
    const SearchResult wanted = SearchTree(*pRoot, m_matcher);
    m_result.unfold = wanted.unfold;
    Bring(pRoot, wanted);
}

/// Brings the rows below a shown item from what is shown to what is wanted.
void TreeFilterModel::Bring(QStandardItem* pParent, const SearchResult& wanted)
{
    const auto target = wanted.shown.constFind(pParent);
    const bool bAllWanted = target == wanted.shown.cend();
    if (bAllWanted && !m_result.shown.contains(pParent))
        return;
    if (!m_result.shown.contains(pParent))
        m_result.shown.insert(pParent, AllChildren(pParent));
    const Rows rows = bAllWanted ? AllChildren(pParent) : *target;
    HideRows(pParent, rows);
    const Rows kept = m_result.shown.value(pParent);
    ShowRows(pParent, rows, wanted);
    if (bAllWanted)
        m_result.shown.remove(pParent);
    for (QStandardItem* pItem : kept)
        Bring(pItem, wanted);
}

void TreeFilterModel::HideRows(QStandardItem* pParent, const Rows& wanted)
{
    const auto stays = [&wanted](const QStandardItem* pItem) {
        const auto at = std::lower_bound(wanted.cbegin(), wanted.cend(), pItem->row(), StandsBefore);
        return at != wanted.cend() && *at == pItem;
    };
    const Rows before = m_result.shown.value(pParent);
    for (int iLast = before.size() - 1; iLast >= 0; --iLast) {
        if (stays(before[iLast]))
            continue;
        int iFirst = iLast;
        while (iFirst > 0 && !stays(before[iFirst - 1]))
            --iFirst;
        beginRemoveRows(IndexOf(pParent), iFirst, iLast);
        for (int i = iFirst; i <= iLast; ++i)
            Drop(before[i]);
        m_result.shown[pParent].remove(iFirst, iLast - iFirst + 1);
        m_bShownChanged = true;
        endRemoveRows();
        iLast = iFirst;
    }
}

void TreeFilterModel::ShowRows(QStandardItem* pParent, const Rows& wanted, const SearchResult& result)
{
    // What is shown by now is a part of what is wanted, in the same order.
    for (int iFirst = 0; iFirst < wanted.size(); ++iFirst) {
        const Rows now = m_result.shown.value(pParent);
        if (iFirst < now.size() && now[iFirst] == wanted[iFirst])
            continue;
        int iEnd = iFirst + 1;
        while (iEnd < wanted.size() && (iFirst >= now.size() || wanted[iEnd] != now[iFirst]))
            ++iEnd;
        beginInsertRows(IndexOf(pParent), iFirst, iEnd - 1);
        Rows& rows = m_result.shown[pParent];
        for (int i = iFirst; i < iEnd; ++i)
            rows.insert(i, wanted[i]);
        for (int i = iFirst; i < iEnd; ++i)
            Adopt(wanted[i], result);
        m_bShownChanged = true;
        endInsertRows();
        iFirst = iEnd - 1;
    }
}

/// Takes over what is wanted below an item that is shown anew.
void TreeFilterModel::Adopt(const QStandardItem* pItem, const SearchResult& wanted)
{
    const auto it = wanted.shown.constFind(pItem);
    if (it == wanted.shown.cend())
        return;
    m_result.shown.insert(pItem, *it);
    for (const QStandardItem* pChild : *it)
        Adopt(pChild, wanted);
}

void TreeFilterModel::Drop(const QStandardItem* pItem)
{
    const auto it = m_result.shown.constFind(pItem);
    if (it == m_result.shown.cend())
        return;
    const Rows rows = m_result.shown.take(pItem);
    for (const QStandardItem* pChild : rows)
        Drop(pChild);
}

} // namespace VantaComponent
