#include "client/insight/HistoryModel.h"

#include "client/store/SchemeHistoryReader.h"

#include <QLocale>

#include <algorithm>
#include <iterator>

HistoryModel::HistoryModel(QObject* parent)
    : QAbstractTableModel(parent)
{
}

HistoryModel::~HistoryModel() = default;

void HistoryModel::SetEntries(const QList<SchemeHistoryEntry>& entries, bool bMore)
{
    beginResetModel();
    m_entries = entries;
    m_bMore = bMore;
    endResetModel();
}

void HistoryModel::Append(const QList<SchemeHistoryEntry>& entries, bool bMore)
{
    m_bMore = bMore;
    if (entries.isEmpty()) {
        return;
    }
    beginInsertRows(QModelIndex(), m_entries.size(), m_entries.size() + entries.size() - 1);
    m_entries += entries;
    endInsertRows();
}

int HistoryModel::RowOf(qint64 iEntry) const
{
    const auto found =
        std::find_if(m_entries.cbegin(), m_entries.cend(),
                     [iEntry](const SchemeHistoryEntry& entry) { return entry.iId == iEntry; });
    return found == m_entries.cend() ? -1 : static_cast<int>(std::distance(m_entries.cbegin(), found));
}

int HistoryModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_entries.size();
}

int HistoryModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

bool HistoryModel::canFetchMore(const QModelIndex& parent) const
{
    return !parent.isValid() && m_bMore && !m_entries.isEmpty();
}

void HistoryModel::fetchMore(const QModelIndex& parent)
{
    if (canFetchMore(parent)) {
        m_bMore = false; // until they have come
        Q_EMIT SignalMoreWanted(m_entries.constLast().iId);
    }
}

QVariant HistoryModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid)) {
        return {};
    }
    if (role == Qt::TextAlignmentRole && index.column() == ColumnSchemes) {
        return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    }
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole) {
        return {};
    }
    const SchemeHistoryEntry& entry = m_entries.at(index.row());
    switch (index.column()) {
    case ColumnTime:
        return entry.time.toLocalTime().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
    case ColumnWho:
        return entry.strWho.isEmpty() ? tr("unknown") : entry.strWho;
    case ColumnWhat:
        return SchemeHistoryReader::KindName(entry.eKind);
    case ColumnSchemes:
        return QLocale().toString(entry.iSchemes);
    case ColumnNote:
        return entry.strNote;
    default:
        return {};
    }
}

QVariant HistoryModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return QAbstractTableModel::headerData(section, orientation, role);
    }
    switch (section) {
    case ColumnTime:
        return tr("When");
    case ColumnWho:
        return tr("Who");
    case ColumnWhat:
        return tr("What");
    case ColumnSchemes:
        return tr("Schemes");
    case ColumnNote:
        return tr("Note");
    default:
        return {};
    }
}
