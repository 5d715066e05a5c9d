#pragma once

#include "AlarmCtrl/AlarmSchemeData/AlarmInfo.h"
#include "alarmschemestore_export.h"

#include <QList>
#include <QString>

#include <cstdint>
#include <optional>

struct sqlite3;
struct sqlite3_stmt;

/// The SQLite store of alarm schemes, "AlarmScheme.db" in the database directory of the system library.
///
/// Construction opens the file and brings its schema up to date; it never fails, a store that could not be
/// opened answers -1 to everything. Reads and writes return 0 on success and -1 when no database is open or
/// the scheme cannot be found or made; a failing statement is logged and counted (FailedStatements) but does
/// not change the status, and no read or write rolls back on its own. One object is one connection, used from
/// the thread that made it.
class ALARMSCHEMESTORE_EXPORT AlarmSchemeDatabaseParser
{
public:
    AlarmSchemeDatabaseParser();
    virtual ~AlarmSchemeDatabaseParser();
    AlarmSchemeDatabaseParser(const AlarmSchemeDatabaseParser&) = delete;
    AlarmSchemeDatabaseParser& operator=(const AlarmSchemeDatabaseParser&) = delete;

    bool IsOpen() const;
    QString GetPath() const; ///< empty until an open succeeded
    sqlite3*
    GetHandle() const; ///< for the store's user (busy time-out, hooks); null when closed; not to be closed

    /// Runs one statement without result rows: 0, SQLite's result code, or -1 when closed.
    int32_t ExecOnce(const QString& strSql);
    /// Transactions nest by a depth counter; only the outermost pair reaches SQLite.
    void BeginTransaction();
    void EndTransaction();
    int32_t RollBack(); ///< depth back to 0; result of the statement
    int32_t GetTransactionDepth() const;
    /// Statements that failed since the store was made, the expected duplicate column at opening not counted.
    /// A text that must never reach SQLite (it holds a double quote or a NUL) counts too.
    int64_t FailedStatements() const;

    // Reads: each first resets its part of the destination.
    int32_t ReadOpen(const AlarmSourceKey& key, AlarmInfo& out);
    int32_t ReadNotify(const AlarmSourceKey& key, AlarmInfo& out);
    int32_t ReadDefenceTime(const AlarmSourceKey& key, AlarmInfo& out);
    int32_t ReadAlarmOut(const AlarmSourceKey& key, AlarmInfo& out);
    int32_t ReadDoor(const AlarmSourceKey& key, AlarmInfo& out);
    int32_t ReadSplit(const AlarmSourceKey& key, AlarmInfo& out);
    int32_t ReadVideo(const AlarmSourceKey& key, AlarmInfo& out);
    /// Every stored scheme; the map is emptied first.
    int32_t ReadAll(AlarmInfoMap* pMap);

    // Id look-ups: nothing when there is no row.
    std::optional<int64_t> FindSchemeId(const AlarmSourceKey& key);
    std::optional<int64_t> FindVideoId(const QString& strLinkDevID);
    std::optional<int64_t> FindAlarmOutId(const QString& strLinkAlarmID);

    // Writes of one part of a scheme.
    int32_t SaveOpen(const AlarmSourceKey& key, bool bOpen);
    int32_t SaveNotify(const AlarmSourceKey& key, const AlarmNotifyInfo& notify);
    int32_t SaveAlarmOut(const AlarmSourceKey& key, const QList<AlarmLinkAlarmOut>& links);
    int32_t SaveDoor(const AlarmSourceKey& key, const QList<AlarmLinkDoor>& links);
    int32_t SaveDefenceTime(const AlarmSourceKey& key, const AlarmWeek& week);
    int32_t SaveVideo(const AlarmSourceKey& key, const AlarmVideoSplit& split);

    /// The whole map; stored schemes that it does not hold are disabled. -1 when closed or null.
    int32_t SaveAll(const AlarmInfoMap* pMap);
    int32_t DeleteSchemes(const QList<AlarmSourceKey>& keys);       ///< -1 for an empty list
    int32_t DeleteAllSchemesBut(const QList<AlarmSourceKey>& keys); ///< -1 for an empty list
    int32_t DisableAllSchemesBut(const AlarmInfoMap& map);

private:
    QString m_strPath;
    sqlite3* m_pDatabase = nullptr;
    int32_t m_iDepth = 0;
    int64_t m_iFailed = 0;
};
