#include "client/store/StoredSchemes.h"

#include "client/store/AsStored.h"
#include "client/store/SaveTransaction.h"

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

} // namespace

StoredSchemes::StoredSchemes(std::chrono::milliseconds busyTimeOut)
    : m_busyTimeOut(busyTimeOut)
{
    // Not waiting here: a load follows, and waits if it has to.
    m_connection.Open();
}

QString StoredSchemes::GetPath() const
{
    return IsOpen() ? m_connection.Store()->GetPath() : QString();
}

LoadResult StoredSchemes::Load(AlarmInfoMap& map)
{
    map.clear();
    m_base = SchemeBase();
    m_version.reset();
    m_asked.reset();
    m_connection.AllowWaiting(m_busyTimeOut);
    if (!IsOpen() || m_connection.OpeningFailure() || m_connection.IsMoved())
        m_connection.Open();
    const auto failed = [](const std::optional<AlarmSchemeStatementFailure>& failure, Reason eWithout) {
        return failure ? LoadResult{ReasonOfFailure(*failure), failure->strMessage}
                       : LoadResult{eWithout, QString()};
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
    if (opening && ReasonOfFailure(*opening) == Reason::Damaged)
        return failed(opening, Reason::Damaged);
    m_base.held = map;
    m_base.held.detach(); // here, rather than at the first edit in the user interface's thread
    m_version = version;
    return LoadResult();
}

SaveResult StoredSchemes::Save(const AlarmInfoMap& map, const std::optional<SchemeConflictAnswer>& answer,
                               SaveProgress& progress)
{
    progress.iWritten = 0;
    progress.iSchemes = 0;
    m_connection.AllowWaiting(m_busyTimeOut);
    // What kept the opening from writing may be gone by now.
    if (!IsOpen() || m_connection.OpeningFailure()) {
        m_connection.Open();
        m_version.reset();
    }
    if (!IsOpen())
        return FailureOf(m_connection.OpeningFailure(), Reason::NotOpen);

    AlarmSchemeDatabaseParser& store = *m_connection.Store();
    AlarmInfoMap read;
    SavePlan plan;
    std::optional<qint64> version;
    AlarmInfoMap written;
    bool isRead = false;
    bool reread = false;
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
        if (transaction.IsAlive()) {
            const AlarmInfoMap& theirs = isRead ? read : m_base.held;
            const bool agreed = answer && m_asked && *m_asked == theirs;
            const bool over = agreed && *answer == SchemeConflictAnswer::SaveOver;
            plan = PlanSave(m_base, theirs, map, over ? SaveRule::Everything : SaveRule::OwnChanges);
            if (plan.bAsk && !agreed) {
                m_asked = theirs;
                SaveResult result;
                result.eReason = Reason::Conflict;
                result.conflict = SchemeConflict{plan.iForeign, plan.iBoth};
                return result;
            }
            progress.iSchemes = plan.Schemes();
            if (Write(plan, transaction, progress)) {
                reread = IsUncertain(plan);
                if (reread)
                    store.ReadAll(&written);
                saved = transaction.Commit();
            }
        }
    }
    m_asked.reset();
    // A connection that could not even roll back does so by being closed.
    const bool stuck = sqlite3_get_autocommit(store.GetHandle()) == 0;
    const std::optional<AlarmSchemeStatementFailure> failure = store.TakeFirstFailure();
    if (stuck)
        m_connection.Close();
    if (!saved) {
        m_version.reset(); // whatever the file holds now, it is looked at by the next save
        return FailureOf(failure, Reason::Other);
    }
    if (isRead)
        m_base.held = std::move(read);
    m_version = version;
    Take(plan);
    if (reread)
        m_base.held = std::move(written);
    SaveResult result;
    result.iSchemes = plan.Schemes();
    // Those that were kept earlier are not news.
    result.iKept = answer ? plan.stale.size() : 0;
    return result;
}

bool StoredSchemes::Write(const SavePlan& plan, const SaveTransaction& transaction, SaveProgress& progress)
{
    AlarmSchemeDatabaseParser& store = *m_connection.Store();
    if (plan.bDisable)
        store.DisableAllSchemesBut(plan.remaining);
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
                                    Reason eWithout)
{
    SaveResult result;
    result.eReason = failure ? ReasonOfFailure(*failure) : eWithout;
    // An open file whose journal cannot be made beside it lies in a folder that cannot be written.
    if (result.eReason == Reason::NotOpen && failure)
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
