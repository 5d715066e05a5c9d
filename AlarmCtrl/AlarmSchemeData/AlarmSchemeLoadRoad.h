#pragma once

#include "AlarmCtrl/AlarmSchemeData/AlarmInfo.h"

#include <QHash>

#include <cstdint>
#include <functional>
#include <vector>

struct sqlite3;

class AlarmSchemeRun;

/// Reads every scheme of a known file (see AlarmSchemeFileCheck) in one pass over each table, and gives what
/// reading scheme by scheme gives. Schemes with anything unusual about them are left to that.
class AlarmSchemeLoadRoad
{
public:
    /// Reads one scheme, by its key, into a fresh record.
    using ReadLiterally = std::function<void(const AlarmSourceKey&, AlarmInfo&)>;

    /// Without the mail column, all mail flags are off.
    AlarmSchemeLoadRoad(sqlite3* pDatabase, AlarmInfoMap& map, bool bMailColumn = true);
    ~AlarmSchemeLoadRoad();
    AlarmSchemeLoadRoad(const AlarmSchemeLoadRoad&) = delete;
    AlarmSchemeLoadRoad& operator=(const AlarmSchemeLoadRoad&) = delete;

    /// The map has to be empty. False when a statement failed; the map holds anything then.
    bool Load(const ReadLiterally& readLiterally);

private:
    struct Scheme;
    using Texts = QHash<int64_t, QString>;
    struct Region;
    struct Cell;

    template <typename UseRow>
    bool EachRow(const char* szStatement, UseRow&& useRow);
    template <typename UseRow>
    bool EachOwnedRow(const char* szStatement, int iLastId, UseRow&& useRow);
    bool ReadKeys();
    void ReadUnusual(const ReadLiterally& readLiterally);
    bool ReadTexts(const char* szStatement, Texts& texts);
    Scheme* Find(int64_t iId);
    Scheme* Owner(const AlarmSchemeRun& row);

    void ReadBase(Scheme& scheme, const AlarmSchemeRun& row);
    void ReadRegion(Scheme& scheme, const AlarmSchemeRun& row);
    void FinishRegions();
    void ReadAlarmOut(Scheme& scheme, const AlarmSchemeRun& row);
    void ReadDoor(Scheme& scheme, const AlarmSchemeRun& row);
    void ReadCell(Scheme& scheme, const AlarmSchemeRun& row);
    void FinishCells();
    void ReadVideo(Scheme& scheme, const AlarmSchemeRun& row);

    sqlite3* m_pDatabase;
    AlarmInfoMap& m_map;
    bool m_bMailColumn;
    std::vector<Scheme> m_schemes; ///< by id
    size_t m_iFound = 0;           ///< rows of one scheme mostly lie together, and schemes in order
    QList<AlarmSourceKey> m_unusual;

    Texts m_videoTexts;
    Texts m_alarmOutTexts;
    Texts m_doorTexts;

    // Rows of the scheme that is being read, and what the like rows of an earlier one came to: weeks and
    // cells that are alike share their memory.
    Scheme* m_pOpenScheme = nullptr;
    std::vector<Region> m_regions;
    std::vector<Region> m_lastRegions;
    AlarmWeek m_lastWeek;
    std::vector<Cell> m_cells;
    std::vector<Cell> m_lastCells;
    AlarmSplitCells m_lastSplit;
};
