#pragma once

#include "AlarmCtrl/AlarmSchemeData/AlarmInfo.h"
#include "alarmschemestore_export.h"

#include <QList>
#include <QString>

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <memory>
#include <optional>
#include <vector>

class QDateTime;
struct sqlite3;

class AlarmSchemeFileCheck;
class AlarmSchemeQuery;
class StatementArgument;

/// Why a statement failed, in SQLite's words.
struct AlarmSchemeStatementFailure
{
    /// A text that must never reach SQLite because it holds a double quote or a NUL.
    static constexpr int32_t TextRefused = -2;

    int32_t iCode = 0; ///< SQLite's extended result code, or TextRefused
    QString strMessage;
};

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
    /// Is given the fresh connection before any statement runs on it, for a busy handler or checks of the
    /// store's user; false leaves the store closed.
    using ConnectionSetup = std::function<bool(sqlite3*)>;
    /// Is asked before each scheme of a long write; false ends the write early.
    using GoOn = std::function<bool()>;
    /// The local time that the file is stamped with.
    using Clock = std::function<QDateTime()>;

    AlarmSchemeDatabaseParser();
    /// Another file than that of the database directory when it is named, by its absolute path.
    explicit AlarmSchemeDatabaseParser(const ConnectionSetup& setup, const QString& strFile = QString());
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
    /// The clock of the stamps, the computer's unless another is set here.
    void SetClock(const Clock& clock);
    /// The first failure since the last call, a failed opening included; nothing when there was none.
    std::optional<AlarmSchemeStatementFailure> TakeFirstFailure();

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
    int32_t SaveAll(const AlarmInfoMap* pMap, const GoOn& goOn = {});
    /// All six parts of every scheme of the map, in key order; stored schemes that it does not hold stay as
    /// they are. -1 when closed. A caller that saves what has changed uses this within a transaction of its
    /// own, together with DisableAllSchemesBut; few schemes cost little, however many are stored.
    int32_t SaveSchemes(const AlarmInfoMap& changed, const GoOn& goOn = {});
    int32_t DeleteSchemes(const QList<AlarmSourceKey>& keys);       ///< -1 for an empty list
    int32_t DeleteAllSchemesBut(const QList<AlarmSourceKey>& keys); ///< -1 for an empty list
    int32_t DisableAllSchemesBut(const AlarmInfoMap& map);

private:
    friend class AlarmSchemeStoreReader;
    /// Takes over a connection to a copy that is only looked at, and brings the copy up to date. What fails
    /// there is nothing for the log.
    explicit AlarmSchemeDatabaseParser(sqlite3* pCopy);

    void Open(const ConnectionSetup& setup, const QString& strFile);
    void BringUpToDate();
    void Close();
    void AcceptQuotedTexts();
    void CreateSchema();
    void AddMailColumn();

    /// A statement of fixed text, and one whose placeholders are filled first.
    int32_t ExecFixed(const char* szStatement);
    int32_t ExecFilled(const char* szTemplate, std::initializer_list<StatementArgument> arguments);
    AlarmSchemeQuery Prepare(const QString& strSql);
    AlarmSchemeQuery PrepareFilled(const char* szTemplate,
                                   std::initializer_list<StatementArgument> arguments);
    bool NextRow(AlarmSchemeQuery& query);
    void CountFailure(int32_t iCode, const QString& strMessage);
    /// The connection's last failure, of a statement that ran otherwise than through ExecOnce.
    void CountAndLogFailure();
    void RefuseText();

    int32_t ReadOpen(const AlarmSourceKey& key, AlarmInfo& out, bool* pFound);
    int32_t ReadDefenceTime(const AlarmSourceKey& key, AlarmInfo& out, bool* pFound);

    /// All parts of one scheme into a fresh record.
    void ReadScheme(const AlarmSourceKey& key, AlarmInfo& info);
    /// Every stored scheme, statement by statement, into an empty map.
    int32_t ReadSchemes(AlarmInfoMap& map);

    std::optional<int64_t> FirstId(const char* szTemplate,
                                   std::initializer_list<StatementArgument> arguments);
    std::optional<QString> LinkText(const char* szTemplate, int64_t iLinkId);

    struct StoredScheme
    {
        int64_t iId = -1;
        AlarmSourceKey key;
    };
    /// Every scheme row with a key, in row order; nothing when the list cannot be read.
    std::optional<QList<StoredScheme>> ReadStoredSchemes();

    std::optional<int64_t> EnsureScheme(const AlarmSourceKey& key);
    void EnsureBaseRow(int64_t iSchemeId);
    void SaveAlarmOutLink(int64_t iSchemeId, const AlarmLinkAlarmOut& link);
    void SaveVideoLink(int64_t iSchemeId, int32_t iWindow, const AlarmLinkVideo& link);
    void SaveSplit(int64_t iSchemeId, const AlarmVideoSplit& split);
    /// All six parts, statement by statement.
    void SaveScheme(const AlarmSourceKey& key, const AlarmInfo& info);
    void Stamp();
    /// Writes in one pass for as long as that goes; leaves the entry at the first scheme that is
    /// still to be written.
    void SaveInOnePass(AlarmInfoMap::const_iterator& entry, AlarmInfoMap::const_iterator end,
                       const GoOn& goOn);

    using KeyTest = std::function<bool(const AlarmSourceKey&)>;
    /// Runs the statement over the ids of all stored schemes that pass the test, then stamps; without any
    /// such scheme nothing is run.
    int32_t ExecForSchemes(const char* szTemplate, const KeyTest& test);
    void ExecForIds(const char* szTemplate, const std::vector<int64_t>& ids);

    QString m_strPath;
    sqlite3* m_pDatabase = nullptr;
    bool m_bQuiet = false;
    int32_t m_iDepth = 0;
    int64_t m_iFailed = 0;
    std::optional<AlarmSchemeStatementFailure> m_firstFailure;
    Clock m_clock;
    std::unique_ptr<AlarmSchemeFileCheck> m_fileCheck;
};
