#pragma once

#include "client/store/SchemeHistoryEntry.h"

#include <QAbstractTableModel>
#include <QList>

/// The steps of the history, the newest first; more of them are asked for as a person scrolls down.
class HistoryModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column
    {
        ColumnTime,
        ColumnWho,
        ColumnWhat,
        ColumnSchemes,
        ColumnNote,
        ColumnCount
    };

    explicit HistoryModel(QObject* parent = nullptr);
    ~HistoryModel() override;

    void SetEntries(const QList<SchemeHistoryEntry>& entries, bool bMore);
    void Append(const QList<SchemeHistoryEntry>& entries, bool bMore);
    const SchemeHistoryEntry& At(int iRow) const { return m_entries.at(iRow); }
    int RowOf(qint64 iEntry) const; ///< -1 when it is not there

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    bool canFetchMore(const QModelIndex& parent) const override;
    void fetchMore(const QModelIndex& parent) override;

Q_SIGNALS:
    /// Older steps than this one are wanted; Append brings them.
    void SignalMoreWanted(qint64 iBefore);

private:
    QList<SchemeHistoryEntry> m_entries;
    bool m_bMore = false;
};
