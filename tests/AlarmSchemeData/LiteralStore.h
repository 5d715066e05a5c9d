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
    AlarmInfoMap ReadAll();

private:
    void Run(const std::string& sql);
    long long FirstNumber(const std::string& sql, bool& found);
    void Disable(const AlarmInfoMap& map);
    void SaveOne(const AlarmSourceKey& key, const AlarmInfo& info);
    void SaveVideo(const std::string& id, const AlarmVideoSplit& split);
    AlarmInfo ReadOne(const AlarmSourceKey& key);

    sqlite3* m_db;
};
