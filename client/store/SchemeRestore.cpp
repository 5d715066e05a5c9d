#include "client/store/SchemeRestore.h"

#include "client/store/DamagedFile.h"
#include "client/store/DatabaseCopy.h"
#include "client/store/FreshFiles.h"
#include "client/store/SaveTransaction.h"
#include "client/store/SchemeBackups.h"
#include "client/store/SchemeHistoryKeeper.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

#include <sqlite3.h>

namespace {

using Reason = SchemeStoreOutcome::Reason;

AlarmSchemeStatementFailure Unknown()
{
    return {SQLITE_ERROR, QString()};
}

} // namespace

SchemeRestore::SchemeRestore(const QString& strDatabase, std::chrono::milliseconds wait)
    : m_strDatabase(strDatabase)
    , m_wait(wait)
    , m_connection(strDatabase)
{
}

SaveResult SchemeRestore::ResultOf(const AlarmSchemeStatementFailure& failure)
{
    SaveResult result;
    result.eReason = ReasonOfFailure(failure);
    result.strTechnical = failure.strMessage;
    return result;
}

SaveResult SchemeRestore::Restore(const QString& strCopy, const SaveOrigin& origin)
{
    const FreshFiles fresh(m_strDatabase);
    SaveResult result = TryToRestore(strCopy, origin);
    m_connection.Close();
    if (result.eReason != Reason::None)
        fresh.Remove();
    return result;
}

SaveResult SchemeRestore::TryToRestore(const QString& strCopy, const SaveOrigin& origin)
{
    AlarmInfoMap before;
    m_connection.AllowWaiting(m_wait);
    m_connection.Open();
    const bool damaged = m_connection.IsDamaged();
    if (damaged && m_connection.IsShared()) {
        SaveResult result;
        result.eReason = Reason::Locked;
        return result;
    }
    if (!damaged) {
        if (const Failure failure = Look(before))
            return ResultOf(*failure);
    }
    m_connection.Close();
    if (const Failure failure = Exchange(strCopy, damaged, before.isEmpty()))
        return ResultOf(*failure);

    // From here on it is done; what remains is to tell of it.
    AlarmInfoMap after;
    m_connection.AllowWaiting(m_wait);
    m_connection.Open();
    if (m_connection.IsOpen() && !m_connection.OpeningFailure()) {
        m_connection.Store()->ReadAll(&after);
        Note(before, after, origin);
    }
    SaveResult result;
    result.iSchemes = after.size();
    result.strHistoryFailure = m_strHistoryFailure;
    return result;
}

/// What the database holds, with a history that ends with it.
SchemeRestore::Failure SchemeRestore::Look(AlarmInfoMap& held)
{
    if (!m_connection.IsOpen() || m_connection.OpeningFailure())
        return m_connection.OpeningFailure() ? m_connection.OpeningFailure() : Unknown();
    AlarmSchemeDatabaseParser& store = *m_connection.Store();
    store.TakeFirstFailure();
    const int64_t failedBefore = store.FailedStatements();
    SchemeHistoryKeeper history;
    history.Start(store.GetHandle(), m_strDatabase);
    {
        SaveTransaction transaction(store);
        if (transaction.IsAlive())
            store.ReadAll(&held);
        if (transaction.IsAlive() && history.CatchUp(held) && history.Note({}, {}))
            transaction.Commit();
    }
    history.Stop();
    if (store.FailedStatements() == failedBefore)
        return std::nullopt;
    const Failure failure = store.TakeFirstFailure();
    return failure ? failure : Unknown();
}

/// Whether a new backup makes this one the oldest too many.
bool SchemeRestore::WillGo(const QString& strCopy) const
{
    const QString copy = QFileInfo(strCopy).canonicalFilePath();
    const QList<SchemeBackup> backups = SchemeBackups(m_strDatabase).List();
    for (int i = SchemeBackups::Kept - 1; i < backups.size(); ++i) {
        if (QFileInfo(backups.at(i).strPath).canonicalFilePath() == copy)
            return true;
    }
    return false;
}

SchemeRestore::Failure SchemeRestore::Exchange(const QString& strCopy, bool bDamaged, bool bEmpty)
{
    if (bDamaged) {
        DamagedFile file(m_strDatabase);
        Failure failure = file.ReplaceBy(strCopy);
        m_strKeptAs = file.KeptAs();
        return failure;
    }
    const QTemporaryDir folder;
    QString source = strCopy;
    if (WillGo(strCopy)) {
        source = QDir(folder.path()).absoluteFilePath(QStringLiteral("copy.db"));
        if (Failure failure = DatabaseCopy::Copy(strCopy, source, m_wait))
            return failure;
    }
    if (!bEmpty) {
        if (Failure failure = SchemeBackups(m_strDatabase).MakeUnlessSame(m_wait))
            return failure;
    }
    return DatabaseCopy::Copy(source, m_strDatabase, m_wait);
}

void SchemeRestore::Note(const AlarmInfoMap& before, const AlarmInfoMap& after, const SaveOrigin& origin)
{
    SchemeHistoryEntry entry;
    entry.eKind = origin.eKind;
    entry.strWho = origin.strWho;
    entry.strNote = origin.strNote;
    SchemeHistoryKeeper history;
    AlarmSchemeDatabaseParser& store = *m_connection.Store();
    history.Start(store.GetHandle(), m_strDatabase);
    {
        SaveTransaction transaction(store);
        // The history is held to what it ended with, so that the exchange counts as this step and not as
        // another program's.
        if (transaction.IsAlive() && history.CatchUp(before) &&
            history.Note(entry, SchemeHistoryBetween(before, after)))
            transaction.Commit();
    }
    m_strHistoryFailure = history.Failure();
    history.Stop();
}
