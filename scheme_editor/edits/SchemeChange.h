#pragma once

#include "AlarmCtrl/AlarmSchemeData/AlarmInfo.h"

#include <QHash>
#include <QString>
#include <QVector>

#include <cstdint>

/// What one action did to the schemes: for each of them the record before and after it, absent ones included.
///
/// Records, and the rows of event types that sources have in common, are kept once: copying a door to 10,000
/// others costs the names of those doors and a handful of records. The records share their memory with those
/// of the map that they came from. A value; pure.
class SchemeChange
{
public:
    enum class Side
    {
        Before,
        After
    };

    class Builder;

    bool IsEmpty() const { return m_sources.isEmpty(); }
    int Count() const; ///< schemes

    /// Calls `visit(const AlarmSourceKey&, const AlarmInfo* pBefore, const AlarmInfo* pAfter)` for every
    /// scheme in ascending order of the keys; null stands for an absent record.
    template <typename Visit>
    void ForEach(Visit visit) const
    {
        for (const Source& source : m_sources) {
            for (const Cell& cell : m_rows[source.iRow])
                visit(AlarmSourceKey{source.strText, cell.iType}, Record(cell.iBefore), Record(cell.iAfter));
        }
    }

    /// Gives every scheme its record of that side; absent ones leave the map.
    void Apply(AlarmInfoMap& schemes, Side side) const;

    /// The same without the sources of one device.
    SchemeChange WithoutDevice(int64_t iDeviceId) const;

    /// Roughly the bytes that this change keeps for itself; what it shares with others is not counted.
    int64_t Cost() const;
    int RecordCount() const { return m_records.size(); } ///< different records
    int RowCount() const { return m_rows.size(); }       ///< different rows of event types

private:
    friend class SchemeDraft;
    static constexpr int Absent = -1;

    struct Cell
    {
        int32_t iType;
        int32_t iBefore; ///< position among the records, or Absent
        int32_t iAfter;
    };
    struct Source
    {
        QString strText;
        int32_t iRow;
    };

    const AlarmInfo* Record(int iRecord) const { return iRecord == Absent ? nullptr : &m_records[iRecord]; }

    QVector<AlarmInfo> m_records;
    QVector<QVector<Cell>> m_rows;
    QVector<Source> m_sources; ///< ascending
};

/// Puts a change together.
class SchemeChange::Builder
{
public:
    /// Null for an absent record; the keys of one source ascending and on end. A record that stays what it
    /// was is left out.
    void Add(const AlarmSourceKey& key, const AlarmInfo* pBefore, const AlarmInfo* pAfter);
    /// What was added, with the sources in order; the builder is empty afterwards.
    SchemeChange Take();

private:
    int32_t Place(const AlarmInfo* pInfo);
    void FinishSource();

    SchemeChange m_change;
    QString m_strSource;
    QVector<Cell> m_row;
    QMultiHash<uint, int32_t> m_recordsByHash;
    QMultiHash<uint, int32_t> m_rowsByHash;
};
