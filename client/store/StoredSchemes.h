#pragma once

#include "client/store/SchemeChanges.h"
#include "client/store/SchemeConflict.h"
#include "client/store/SchemeStoreOutcome.h"
#include "client/store/StoreConnection.h"

#include <QString>

#include <atomic>
#include <chrono>
#include <optional>

class SaveTransaction;

/// How far a save has come; written by the saving thread, read by any other.
struct SaveProgress
{
    std::atomic<int> iWritten{0};
    std::atomic<int> iSchemes{0}; ///< 0 until it is known
};

/// How one save ended, before it is put into words.
struct SaveResult
{
    SchemeStoreOutcome::Reason eReason = SchemeStoreOutcome::Reason::None;
    int iSchemes = 0; ///< written
    int iKept = 0;    ///< left as another program has stored them
    QString strTechnical;
    SchemeConflict conflict; ///< with the reason Conflict
};

/// How one load ended, before it is put into words.
struct LoadResult
{
    SchemeStoreOutcome::Reason eReason = SchemeStoreOutcome::Reason::None;
    QString strTechnical;
};

/// The database file and what is known of its content. A save writes what differs, all or nothing, and never
/// over what another program has stored since, unless it is told to. One object is used on one thread, that
/// which made it; it waits for other processes and writes, so not on the user interface's.
class StoredSchemes
{
public:
    /// So many changed schemes are saved part by part; more are handed to the store together.
    static constexpr int FewSchemes = 50;

    explicit StoredSchemes(std::chrono::milliseconds busyTimeOut);
    StoredSchemes(const StoredSchemes&) = delete;
    StoredSchemes& operator=(const StoredSchemes&) = delete;

    bool IsOpen() const { return m_connection.IsOpen(); }
    QString GetPath() const; ///< of the open database; empty while it is closed

    /// Every stored scheme. After a failure the map holds what could be read.
    LoadResult Load(AlarmInfoMap& map);

    /// Needs a successful load before. Without an answer, or when the file has changed again since the
    /// question, a save that meets foreign changes ends with the reason Conflict. Of the answers only
    /// SaveOver and KeepOthers save.
    SaveResult Save(const AlarmInfoMap& map, const std::optional<SchemeConflictAnswer>& answer,
                    SaveProgress& progress);

private:
    static SaveResult FailureOf(const std::optional<AlarmSchemeStatementFailure>& failure,
                                SchemeStoreOutcome::Reason eWithout);
    std::optional<qint64> DataVersion() const;
    bool Write(const SavePlan& plan, const SaveTransaction& transaction, SaveProgress& progress);
    void WriteParts(const SavePlan::Change& change);
    void Take(const SavePlan& plan);

    std::chrono::milliseconds m_busyTimeOut;
    StoreConnection m_connection;
    SchemeBase m_base;
    /// SQLite's mark of the content that m_base holds; nothing when that has to be read again.
    std::optional<qint64> m_version;
    /// What the operator was asked about.
    std::optional<AlarmInfoMap> m_asked;
};
