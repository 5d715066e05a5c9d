#pragma once

#include "AlarmCtrl/AlarmSchemeData/AlarmInfo.h"
#include "AlarmCtrl/AlarmSchemeData/AlarmSchemeStatement.h"

#include <QByteArray>
#include <QHash>

#include <array>
#include <cstdint>
#include <optional>
#include <utility>
#include <vector>

struct sqlite3;

/// Writes schemes into a known file (see AlarmSchemeFileCheck) with statements that are compiled once, and
/// leaves the rows, ids and counters that saving part by part leaves; without the stamp. To be made and used
/// within one transaction. Nobody else writes the dictionaries meanwhile except by adding to them.
class AlarmSchemeSaveRoad
{
public:
    enum class Result
    {
        Saved,
        Unusual, ///< nothing was written; this scheme has to be saved part by part
        Failed,  ///< a statement failed, the connection tells why; the road is not to be used any further
    };

    explicit AlarmSchemeSaveRoad(sqlite3* pDatabase);
    ~AlarmSchemeSaveRoad();
    AlarmSchemeSaveRoad(const AlarmSchemeSaveRoad&) = delete;
    AlarmSchemeSaveRoad& operator=(const AlarmSchemeSaveRoad&) = delete;

    /// Whether all statements compiled.
    bool IsReady() const;

    /// All six parts of one scheme.
    Result Save(const AlarmSourceKey& key, const AlarmInfo& info);

private:
    using Ids = QHash<QString, int64_t>;
    struct StoredCell;

    /// What may stand in the file under a scheme's id already.
    struct Target
    {
        int64_t iId = 0;
        bool bNew = false;
    };
    enum Part
    {
        Base,
        Split,
        Video,
        Door,
        AlarmOut,
        DefenceTime,
        PartCount
    };

    bool MayHaveRows(const Target& target, Part ePart) const;
    static bool HasPlainTexts(const AlarmSourceKey& key, const AlarmInfo& info);
    bool FindScheme(const AlarmSourceKey& key, std::optional<int64_t>& id);
    bool AddScheme(const AlarmSourceKey& key, int64_t& id);
    bool FindCells(int64_t iId, bool& usual);
    bool ResolveText(AlarmSchemeStatement& find, AlarmSchemeStatement& add, Ids& known,
                     const QString& strText, int64_t& id);
    bool SaveBase(const Target& target, const AlarmInfo& info);
    bool SaveVideo(const Target& target, const AlarmVideoSplit& split);
    bool SaveCells(const Target& target, const AlarmVideoSplit& split);
    bool SaveDoors(const Target& target, const QList<AlarmLinkDoor>& links);
    bool SaveAlarmOut(const Target& target, const QList<AlarmLinkAlarmOut>& links);
    bool SaveDefenceTime(const Target& target, const AlarmWeek& week);

    sqlite3* m_pDatabase;
    bool m_bReady = true;
    /// Whether rows of a part wait for the id of a scheme that is still to come.
    std::array<bool, PartCount> m_rowsWait{};

    AlarmSchemeStatement m_findScheme;
    AlarmSchemeStatement m_addScheme;
    AlarmSchemeStatement m_findVideoText;
    AlarmSchemeStatement m_addVideoText;
    AlarmSchemeStatement m_findAlarmOutText;
    AlarmSchemeStatement m_addAlarmOutText;
    AlarmSchemeStatement m_findBase;
    AlarmSchemeStatement m_addBase;
    AlarmSchemeStatement m_changeBase;
    AlarmSchemeStatement m_findCells;
    AlarmSchemeStatement m_addCell;
    AlarmSchemeStatement m_changeCell;
    AlarmSchemeStatement m_clearVideo;
    AlarmSchemeStatement m_addVideo;
    AlarmSchemeStatement m_clearDoor;
    AlarmSchemeStatement m_addDoor;
    AlarmSchemeStatement m_clearAlarmOut;
    AlarmSchemeStatement m_addAlarmOut;
    AlarmSchemeStatement m_clearDefenceTime;
    AlarmSchemeStatement m_addRegion;
    AlarmSchemeStatement m_addSevenRegions;

    Ids m_videoIds;
    Ids m_alarmOutIds;
    QString m_strLastSource; ///< schemes of one source follow each other
    QByteArray m_lastSource;
    std::vector<StoredCell> m_cells; ///< of the scheme that is being saved

    // Links by what they lead to: the place of the first, the values of the last.
    std::vector<std::pair<int64_t, const AlarmLinkAlarmOut*>> m_alarmOut;
    std::vector<std::pair<int64_t, const AlarmLinkDoor*>> m_doors;
    std::vector<std::pair<int, AlarmTimeRegion>> m_regions;
};
