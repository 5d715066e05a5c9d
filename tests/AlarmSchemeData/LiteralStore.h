#pragma once

#include "AlarmCtrl/AlarmSchemeData/AlarmInfo.h"

#include <string>

struct sqlite3;

/// The stored format once more, written down statement by statement with plain calls: what the store leaves
/// in a file, and reads from one, is compared with this. Shares nothing with the store on purpose.
class LiteralStore
{
public:
    /// Brings the schema of the connection's file up to date.
    explicit LiteralStore(sqlite3* pDatabase);

    void SaveAll(const AlarmInfoMap& map);
    /// Leaves stored schemes that the map does not hold as they are.
    void SaveSome(const AlarmInfoMap& map);
    AlarmInfoMap ReadAll();

private:
    void Run(const std::string& sql);
    long long FirstNumber(const std::string& sql, bool& found);
    void SaveEach(const AlarmInfoMap& map);
    void Disable(const AlarmInfoMap& map);
    void SaveOne(const AlarmSourceKey& key, const AlarmInfo& info);
    /// The id of the key's row, which is made if need be; empty when there is none after all.
    std::string Ensure(const AlarmSourceKey& key);
    void EnsureBase(const std::string& id);
    void SaveVideo(const std::string& id, const AlarmVideoSplit& split);
    void SaveDoors(const std::string& id, const QList<AlarmLinkDoor>& links);
    void SaveAlarmOut(const std::string& id, const QList<AlarmLinkAlarmOut>& links);
    AlarmInfo ReadOne(const AlarmSourceKey& key);

    sqlite3* m_db;
};
