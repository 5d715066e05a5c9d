#include "client/store/StoredSchemes.h"

#include "client/store/AsStored.h"
#include "client/store/DurableJournal.h"
#include "client/store/SaveTransaction.h"
#include "client/store/SchemeBackups.h"

#include <QFile>
#include <QFileInfo>

#include <sqlite3.h>

#include <algorithm>
#include <utility>

namespace {

using Reason = SchemeStoreOutcome::Reason;

/// Whether only the file can tell what it holds after these changes.
bool IsUncertain(const SavePlan& plan)
{
    return std::any_of(plan.changes.cbegin(), plan.changes.cend(), [](const SavePlan::Change& change) {
        return MayNameColumns(change.key, change.wanted);
    });
}

SchemeHistoryChanges ChangesOf(const SavePlan& plan, const AlarmInfoMap& theirs)
{
    SchemeHistoryChanges changes;
    changes.reserve(plan.Schemes());
    const auto add = [&](const AlarmSourceKey& key, const std::optional<AlarmInfo>& after) {
        const auto before = theirs.constFind(key);
        changes.append({key, before == theirs.cend() ? std::nullopt : std::optional(*before), after});
    };
    for (const SavePlan::Change& change : plan.changes)
        add(change.key, change.stored);
    for (auto entry = plan.disabled.cbegin(); entry != plan.disabled.cend(); ++entry)
        add(entry.key(), *entry);
    for (const AlarmSourceKey& key : plan.removed)
        add(key, std::nullopt);
    std::sort(changes.begin(), changes.end(),
              [](const SchemeHistoryChange& a, const SchemeHistoryChange& b) { return a.key < b.key; });
    return changes;
}

} // namespace

StoredSchemes::StoredSchemes(std::chrono::milliseconds busyTimeOut, const QString& strFile)
    : m_busyTimeOut(busyTimeOut)
    , m_connection(strFile)
{
    // Not waiting here: a load follows, and waits if it has to.
    Open();
}

StoredSchemes::~StoredSchemes()
{
    m_history.Forget();
}

void StoredSchemes::Open()
{
    m_told.reset();
    m_bMoveTold = false;
    m_history.Forget();
    m_connection.Open();
    if (IsOpen() && !m_connection.OpeningFailure() && !m_bHistoryGivenUp)
        m_history.Start(m_connection.Store()->GetHandle(), GetPath());
}

QString StoredSchemes::GetPath() const
{
    return IsOpen() ? m_connection.Store()->GetPath() : QString();
}

LoadResult StoredSchemes::Load(AlarmInfoMap& map)
{
    map.clear();
    ForgetBase();
    m_connection.AllowWaiting(m_busyTimeOut);
    const bool again = std::exchange(m_bHistoryGivenUp, false);
    if (again || !IsOpen() || m_connection.OpeningFailure() || m_connection.IsMoved())
        Open();
    const StoreConnection::Notices notices = m_connection.TakeNotices();
    const auto failed = [&notices](const std::optional<AlarmSchemeStatementFailure>& failure,
                                   Reason eWithout) {
        return failure ? LoadResult{ReasonOfFailure(*failure), failure->strMessage, notices}
                       : LoadResult{eWithout, QString(), notices};
    };
    if (!IsOpen())
        return failed(m_connection.OpeningFailure(), Reason::NotOpen);

    AlarmSchemeDatabaseParser& store = *m_connection.Store();
    store.TakeFirstFailure();
    const int64_t failedBefore = store.FailedStatements();
    // Before the reading: what changes meanwhile is noticed then, at the price of a second look.
    const std::optional<qint64> version = DataVersion();
    const int32_t status = store.ReadAll(&map);
    if (status != 0 || store.FailedStatements() != failedBefore)
        return failed(store.TakeFirstFailure(), Reason::Other);
    const auto& opening = m_connection.OpeningFailure();
    if (m_connection.IsDamaged())
        return failed(opening, Reason::Damaged);
    m_base.held = map;
    m_base.held.detach(); // here, rather than at the first edit in the user interface's thread
    m_version = version;
    m_bBaseIsShown = true;
    return LoadResult{Reason::None, QString(), notices};
}

void StoredSchemes::ForgetBase()
{
    m_base = SchemeBase();
    m_version.reset();
    m_bBaseIsShown = false;
    m_asked.reset();
}

bool StoredSchemes::FindOutsideChange()
{
    if (!m_bBaseIsShown || !IsOpen())
        return false;
    if (m_connection.IsMoved()) // by a copy that was put in its place, or is about to be
        return QFile::exists(m_connection.FilePath()) && !std::exchange(m_bMoveTold, true);
    m_connection.AllowWaiting(std::chrono::milliseconds(0));
    const std::optional<qint64> version = DataVersion();
    if (!version || version == m_version || version == m_told)
        return false;
    m_connection.AllowWaiting(m_busyTimeOut);
    AlarmSchemeDatabaseParser& store = *m_connection.Store();
    const int64_t failedBefore = store.FailedStatements();
    AlarmInfoMap theirs;
    const bool read = store.ReadAll(&theirs) == 0 && store.FailedStatements() == failedBefore;
    store.TakeFirstFailure();
    if (read && theirs == m_base.held) {
        m_version = version; // written, but not changed
        return false;
    }
    m_told = version;
    return read && !(m_asked && *m_asked == theirs);
}

DamageRepairResult StoredSchemes::Repair(SchemeDamageAnswer eAnswer, const SchemeDamage& damage,
                                         const QString& strWho)
{
    ForgetBase();
    m_history.Forget();
    DamageRepairResult result = DamageRepair(m_connection).Repair(eAnswer, damage);
    Open();
    if (!result.strKeptAs.isEmpty() && eAnswer == SchemeDamageAnswer::Restore && damage.backup) {
        SchemeHistoryEntry entry;
        entry.eKind = SchemeHistoryKind::Restore;
        entry.strWho = strWho;
        entry.strNote = QFileInfo(damage.backup->strPath).fileName();
        m_history.Announce(entry);
    }
    return result;
}

SaveResult StoredSchemes::Save(const AlarmInfoMap& map, const std::optional<SchemeConflictAnswer>& answer,
                               const SaveOrigin& origin, SaveProgress& progress)
{
    const Planner plan = [&](const AlarmInfoMap& theirs, SavePlan& made, SaveResult& refusal) {
        const bool agreed = answer && m_asked && *m_asked == theirs;
        const bool over = agreed && *answer == SchemeConflictAnswer::SaveOver;
        made = PlanSave(m_base, theirs, map, over ? SaveRule::Everything : SaveRule::OwnChanges);
        if (!made.bAsk || agreed)
            return;
        m_asked = theirs;
        refusal.eReason = Reason::Conflict;
        refusal.conflict = SchemeConflict{made.iForeign, made.iBoth};
    };
    SaveResult result = Run(plan, origin, progress, true);
    if (result.eReason != Reason::Conflict)
        m_asked.reset();
    // Those that were kept earlier are not news.
    if (result.eReason == Reason::None && answer)
        result.iKept = m_base.stale.size();
    return result;
}

SaveResult StoredSchemes::Replace(const AlarmInfoMap& schemes,
                                  const std::optional<QList<AlarmSourceKey>>& remove,
                                  const SaveOrigin& origin, SaveProgress& progress)
{
    const Planner plan = [&](const AlarmInfoMap& theirs, SavePlan& made, SaveResult&) {
        made = PlanReplacement(theirs, schemes, remove ? *remove : theirs.keys());
    };
    return Run(plan, origin, progress, false);
}

SaveResult StoredSchemes::Revert(qint64 iEntry, const SaveOrigin& origin, SaveProgress& progress)
{
    QList<AlarmSourceKey> changedSince;
    const Planner plan = [&](const AlarmInfoMap& theirs, SavePlan& made, SaveResult& refusal) {
        const std::optional<SchemeHistoryChanges> changes = m_history.Changes(iEntry);
        if (!changes) {
            refusal.eReason = Reason::NoHistory;
            refusal.strTechnical = m_history.Failure();
            return;
        }
        AlarmInfoMap back;
        QList<AlarmSourceKey> remove;
        changedSince.clear();
        for (const SchemeHistoryChange& change : *changes) {
            const auto now = theirs.constFind(change.key);
            const bool asLeft =
                change.after ? now != theirs.cend() && *now == *change.after : now == theirs.cend();
            if (!asLeft)
                changedSince.append(change.key);
            else if (change.before)
                back.insert(change.key, *change.before);
            else
                remove.append(change.key);
        }
        made = PlanReplacement(theirs, back, remove);
    };
    SaveResult result = Run(plan, origin, progress, false);
    result.bReverted = true;
    result.iReverted = iEntry;
    result.changedSince = changedSince;
    return result;
}

SaveResult StoredSchemes::Run(const Planner& makePlan, const SaveOrigin& origin, SaveProgress& progress,
                              bool bEditors)
{
    m_history.TryAgain();
    SaveResult result = RunOnce(makePlan, origin, progress, bEditors);
    QString historyFailure = m_history.Failure();
    if (result.eReason != Reason::None && m_history.IsKept() &&
        (m_history.HasFailed() || (m_bCommitFailed && result.eReason != Reason::Locked))) {
        // The schemes come first: once more, without the history.
        if (historyFailure.isEmpty())
            historyFailure = result.strTechnical;
        m_bHistoryGivenUp = true;
        m_history.Stop();
        result = RunOnce(makePlan, origin, progress, bEditors);
    }
    result.strHistoryFailure = historyFailure;
    return result;
}

SaveResult StoredSchemes::RunOnce(const Planner& makePlan, const SaveOrigin& origin, SaveProgress& progress,
                                  bool bEditors)
{
    progress.iWritten = 0;
    progress.iSchemes = 0;
    m_bCommitFailed = false;
    m_connection.AllowWaiting(m_busyTimeOut);
    // What kept the opening from writing may be gone by now; what it has seen to may have been changed.
    if (!IsOpen() || m_connection.OpeningFailure() || !m_connection.HasDurableJournal()) {
        Open();
        m_version.reset();
    }
    if (!IsOpen())
        return FailureOf(m_connection.OpeningFailure(), Reason::NotOpen);
    const auto& opening = m_connection.OpeningFailure();
    if (opening && opening->iCode == DurableJournal::Refused)
        return FailureOf(opening, Reason::Journal);

    std::optional<AlarmSchemeStatementFailure> noBackup;
    AlarmSchemeDatabaseParser& store = *m_connection.Store();
    AlarmInfoMap read;
    SavePlan plan;
    std::optional<qint64> version;
    std::optional<AlarmInfoMap> written;
    bool isRead = false;
    bool saved = false;
    {
        SaveTransaction transaction(store);
        if (transaction.IsAlive()) {
            // Nobody else writes from here on.
            version = DataVersion();
            isRead = !version || version != m_version;
            if (isRead)
                store.ReadAll(&read);
        }
        const AlarmInfoMap& theirs = isRead ? read : m_base.held;
        if (transaction.IsAlive())
            m_history.CatchUp(theirs);
        if (transaction.IsAlive()) {
            SaveResult refusal;
            makePlan(theirs, plan, refusal);
            if (refusal.eReason != Reason::None)
                return refusal;
            progress.iSchemes = plan.Schemes();
            noBackup = BackUp(theirs);
            if (Write(plan, transaction, progress)) {
                if (IsUncertain(plan))
                    store.ReadAll(&written.emplace());
                Note(plan, theirs, written, origin);
                saved = transaction.Commit();
                m_bCommitFailed = !saved;
            }
        }
    }
    // A connection that could not even roll back does so by being closed.
    const bool stuck = sqlite3_get_autocommit(store.GetHandle()) == 0;
    const std::optional<AlarmSchemeStatementFailure> failure = store.TakeFirstFailure();
    if (stuck) {
        m_history.Forget();
        m_connection.Close();
    }
    if (!saved) {
        m_version.reset(); // whatever the file holds now, it is looked at by the next save
        SaveResult result = FailureOf(failure, Reason::Other);
        result.noBackup = noBackup;
        return result;
    }
    if (bEditors) {
        if (isRead)
            m_base.held = std::move(read);
        m_version = version;
        Take(plan);
        if (written)
            m_base.held = std::move(*written);
    } else {
        m_version.reset();
        m_bBaseIsShown = m_bBaseIsShown && plan.Schemes() == 0;
    }
    SaveResult result;
    result.iSchemes = plan.Schemes();
    result.noBackup = noBackup;
    return result;
}

std::optional<AlarmSchemeStatementFailure> StoredSchemes::BackUp(const AlarmInfoMap& theirs) const
{
    // Within the transaction that is about to write: others can read the file, and nobody can change it.
    const SchemeBackups backups(m_connection.FilePath());
    if (theirs.isEmpty() || !backups.IsDue())
        return std::nullopt;
    return backups.Make(std::chrono::milliseconds(0));
}

void StoredSchemes::Note(const SavePlan& plan, const AlarmInfoMap& theirs,
                         const std::optional<AlarmInfoMap>& written, const SaveOrigin& origin)
{
    if (!m_history.IsKept())
        return;
    SchemeHistoryEntry entry;
    entry.eKind = origin.eKind;
    entry.strWho = origin.strWho;
    entry.strNote = origin.strNote;
    m_history.Note(entry, written ? SchemeHistoryBetween(theirs, *written) : ChangesOf(plan, theirs));
}

void StoredSchemes::CatchUpHistory()
{
    if (!IsOpen() || !m_history.IsKept() || !m_version)
        return;
    // Not waiting, and without a lock on the scheme file: what cannot be noted now is noted by the next save.
    m_connection.AllowWaiting(std::chrono::milliseconds(0));
    const bool same = DataVersion() == m_version && m_history.ReadCounter() && DataVersion() == m_version;
    if (!same)
        return;
    sqlite3* const database = m_connection.Store()->GetHandle();
    const auto run = [database](const char* szSql) {
        return sqlite3_exec(database, szSql, nullptr, nullptr, nullptr) == SQLITE_OK;
    };
    if (run("begin") && !(m_history.NoteUntilNow(m_base.held) && run("commit")))
        run("rollback");
    m_history.TryAgain();
}

bool StoredSchemes::Write(const SavePlan& plan, const SaveTransaction& transaction, SaveProgress& progress)
{
    AlarmSchemeDatabaseParser& store = *m_connection.Store();
    if (plan.bDisable)
        store.DisableAllSchemesBut(plan.remaining);
    if (!plan.removed.isEmpty())
        store.DeleteSchemes(plan.removed);
    const auto goOn = [&transaction, &progress] {
        ++progress.iWritten;
        return transaction.IsAlive();
    };
    if (plan.changes.isEmpty()) {
        store.SaveSchemes(AlarmInfoMap()); // the time of the save
    } else if (plan.changes.size() <= FewSchemes) {
        for (const SavePlan::Change& change : plan.changes) {
            if (!goOn())
                return false;
            WriteParts(change);
        }
    } else {
        AlarmInfoMap changed;
        for (const SavePlan::Change& change : plan.changes)
            changed.insert(changed.cend(), change.key, change.wanted);
        store.SaveSchemes(changed, goOn);
    }
    return transaction.IsAlive();
}

void StoredSchemes::WriteParts(const SavePlan::Change& change)
{
    // The order in which a whole save writes them.
    AlarmSchemeDatabaseParser& store = *m_connection.Store();
    const AlarmInfo& info = change.wanted;
    if ((change.iParts & SchemeParts::Open) != 0)
        store.SaveOpen(change.key, info.bOpen);
    if ((change.iParts & SchemeParts::Notify) != 0)
        store.SaveNotify(change.key, AlarmNotifyInfo{info.bOpenSound, info.bEmapTwinkle, info.bSendEmail});
    if ((change.iParts & SchemeParts::Video) != 0)
        store.SaveVideo(change.key, info.videoSplit);
    if ((change.iParts & SchemeParts::Door) != 0)
        store.SaveDoor(change.key, info.listDoor);
    if ((change.iParts & SchemeParts::AlarmOut) != 0)
        store.SaveAlarmOut(change.key, info.listAlarmOut);
    if ((change.iParts & SchemeParts::DefenceTime) != 0)
        store.SaveDefenceTime(change.key, info.defenceTime);
}

void StoredSchemes::Take(const SavePlan& plan)
{
    for (const SavePlan::Change& change : plan.changes)
        m_base.held.insert(change.key, change.stored);
    for (auto entry = plan.disabled.cbegin(); entry != plan.disabled.cend(); ++entry)
        m_base.held.insert(entry.key(), entry.value());
    m_base.stale = plan.stale;
}

SaveResult StoredSchemes::FailureOf(const std::optional<AlarmSchemeStatementFailure>& failure,
                                    Reason eWithout) const
{
    SaveResult result;
    result.eReason = failure ? ReasonOfFailure(*failure) : eWithout;
    // An open file whose journal cannot be made beside it lies in a folder that cannot be written.
    if (result.eReason == Reason::NotOpen && failure)
        result.eReason = Reason::ReadOnly;
    // A journal that is there but may no longer be written fails as a broken disk does.
    if (result.eReason == Reason::Other && m_connection.IsWriteProtected())
        result.eReason = Reason::ReadOnly;
    if (failure)
        result.strTechnical = failure->strMessage;
    return result;
}

std::optional<qint64> StoredSchemes::DataVersion() const
{
    std::optional<qint64> version;
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v2(m_connection.Store()->GetHandle(), "PRAGMA data_version", -1, &statement,
                           nullptr) == SQLITE_OK &&
        sqlite3_step(statement) == SQLITE_ROW)
        version = sqlite3_column_int64(statement, 0);
    sqlite3_finalize(statement);
    return version;
}
