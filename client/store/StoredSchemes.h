#pragma once

#include "client/store/DamageRepair.h"
#include "client/store/SchemeChanges.h"
#include "client/store/SchemeConflict.h"
#include "client/store/SchemeHistoryKeeper.h"
#include "client/store/SchemeStoreOutcome.h"
#include "client/store/StoreConnection.h"

#include <QList>
#include <QString>

#include <atomic>
#include <chrono>
#include <functional>
#include <optional>

class SaveTransaction;

/// Who has schemes written, and why, for the history.
struct SaveOrigin
{
    QString strWho;
    SchemeHistoryKind eKind = SchemeHistoryKind::Save;
    QString strNote; ///< what is imported or taken back
};

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
    /// Why no backup was made of what the file held; nothing when there is one of today.
    std::optional<AlarmSchemeStatementFailure> noBackup;
    QString strHistoryFailure; ///< why the history does not tell of it, in SQLite's words; empty when it does
    qint64 iReverted = 0;      ///< the step that was to be taken back
    bool bReverted = false;    ///< a step was taken back
    /// Schemes that were left alone by taking a step back, since they have changed after it.
    QList<AlarmSourceKey> changedSince;
};

/// How one load ended, before it is put into words.
struct LoadResult
{
    SchemeStoreOutcome::Reason eReason = SchemeStoreOutcome::Reason::None;
    QString strTechnical;
    StoreConnection::Notices notices; ///< of the openings until then
};

/// The database file and what is known of its content. A save writes what differs, all or nothing, and never
/// over what another program has stored since, unless it is told to. One object is used on one thread, that
/// which made it; it waits for other processes and writes, so not on the user interface's.
class StoredSchemes
{
public:
    /// So many changed schemes are saved part by part; more are handed to the store together.
    static constexpr int FewSchemes = 50;

    /// Of the file in the database directory, or of the one that is named by its absolute path.
    explicit StoredSchemes(std::chrono::milliseconds busyTimeOut, const QString& strFile = QString());
    ~StoredSchemes();
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
                    const SaveOrigin& origin, SaveProgress& progress);

    /// The file comes to hold exactly these schemes under their keys, and none under the keys to remove or,
    /// without such a list, under any other. Needs no load. For editors this is another program's change.
    SaveResult Replace(const AlarmInfoMap& schemes, const std::optional<QList<AlarmSourceKey>>& remove,
                       const SaveOrigin& origin, SaveProgress& progress);

    /// Takes one step of the history back: what it has changed becomes what it was before, but for schemes
    /// that have changed since. For editors this is another program's change. NoHistory when the history does
    /// not tell what that step was.
    SaveResult Revert(qint64 iEntry, const SaveOrigin& origin, SaveProgress& progress);

    /// Whether the opening has found the file damaged, and what there is in its stead.
    bool IsDamaged() const { return m_connection.IsDamaged(); }
    std::optional<SchemeDamage> Damage() { return DamageRepair(m_connection).Damage(); }
    /// A load has to follow, whatever comes of it. The history tells of a backup that was restored, by whom.
    DamageRepairResult Repair(SchemeDamageAnswer eAnswer, const SchemeDamage& damage, const QString& strWho);

    /// Whether another program has changed the schemes since they were loaded or last found changed, each
    /// change told once. Never after a save that asked about the change, nor before a load or after a step
    /// was taken back. As cheap as reading a number while the file is as it was; reads all of it otherwise.
    bool FindOutsideChange();

    /// Lets the history know what has changed outside, as far as that can be told now. After a load.
    void CatchUpHistory();
    void KeepHistoryFor(int iDays) { m_history.KeepFor(iDays); }

private:
    /// Makes the plan from what the file holds, or gives the reason why nothing is to be written.
    using Planner = std::function<void(const AlarmInfoMap& theirs, SavePlan& plan, SaveResult& refusal)>;

    void Open();
    std::optional<AlarmSchemeStatementFailure> BackUp(const AlarmInfoMap& theirs) const;
    SaveResult Run(const Planner& makePlan, const SaveOrigin& origin, SaveProgress& progress, bool bEditors);
    SaveResult RunOnce(const Planner& makePlan, const SaveOrigin& origin, SaveProgress& progress,
                       bool bEditors);
    void Note(const SavePlan& plan, const AlarmInfoMap& theirs, const std::optional<AlarmInfoMap>& written,
              const SaveOrigin& origin);
    SaveResult FailureOf(const std::optional<AlarmSchemeStatementFailure>& failure,
                         SchemeStoreOutcome::Reason eWithout) const;
    std::optional<qint64> DataVersion() const;
    void ForgetBase();
    bool Write(const SavePlan& plan, const SaveTransaction& transaction, SaveProgress& progress);
    void WriteParts(const SavePlan::Change& change);
    void Take(const SavePlan& plan);

    std::chrono::milliseconds m_busyTimeOut;
    StoreConnection m_connection;
    SchemeHistoryKeeper m_history; ///< through the connection
    bool m_bHistoryGivenUp = false;
    bool m_bCommitFailed = false; ///< by the last attempt to write
    SchemeBase m_base;
    /// SQLite's mark of the content that m_base holds; nothing when that has to be read again.
    std::optional<qint64> m_version;
    bool m_bBaseIsShown = false; ///< m_base is what editors know
    /// The mark of a content that editors were told of although they do not show it.
    std::optional<qint64> m_told;
    bool m_bMoveTold = false;
    /// What the operator was asked about.
    std::optional<AlarmInfoMap> m_asked;
};
