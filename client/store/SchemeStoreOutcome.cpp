#include "client/store/SchemeStoreOutcome.h"

#include "AlarmCtrl/AlarmSchemeData/AlarmSchemeDatabaseParser.h"
#include "client/store/DurableJournal.h"

#include <QFileInfo>
#include <QLocale>

#include <sqlite3.h>

namespace {

/// Extended result codes carry the primary one in their lowest byte.
constexpr int PrimaryCode = 0xFF;

} // namespace

SchemeStoreOutcome::Reason ReasonOfFailure(const AlarmSchemeStatementFailure& failure)
{
    using Reason = SchemeStoreOutcome::Reason;
    if (failure.iCode == AlarmSchemeStatementFailure::TextRefused)
        return Reason::BadText;
    if (failure.iCode == DurableJournal::Refused)
        return Reason::Journal;
    if (failure.iCode == SQLITE_READONLY_DBMOVED)
        return Reason::Moved;
    switch (failure.iCode & PrimaryCode) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return Reason::Locked;
    case SQLITE_READONLY:
    case SQLITE_PERM:
    case SQLITE_AUTH:
        return Reason::ReadOnly;
    case SQLITE_FULL:
        return Reason::DiskFull;
    case SQLITE_CORRUPT:
    case SQLITE_NOTADB:
        return Reason::Damaged;
    case SQLITE_CANTOPEN:
        return Reason::NotOpen;
    default:
        return Reason::Other;
    }
}

QString SchemeStoreOutcome::Text() const
{
    return strNext.isEmpty() ? strWhat : tr("%1 %2", "what happened, what to do next").arg(strWhat, strNext);
}

SchemeStoreOutcome SchemeStoreOutcome::Success(Operation eOperation, int iSchemes)
{
    SchemeStoreOutcome outcome;
    outcome.eOperation = eOperation;
    outcome.iSchemes = iSchemes;
    outcome.strWhat = eOperation == Operation::Load ? tr("%Ln scheme(s) loaded.", nullptr, iSchemes)
                                                    : tr("%Ln scheme(s) saved.", nullptr, iSchemes);
    return outcome;
}

SchemeStoreOutcome SchemeStoreOutcome::Saved(int iSchemes, int iKept)
{
    SchemeStoreOutcome outcome = Success(Operation::Save, iSchemes);
    if (iSchemes == 0)
        outcome.strWhat = tr("No scheme has changed; nothing had to be saved.");
    if (iKept > 0)
        outcome.strNext = tr("%Ln scheme(s) stay as another program has saved them. To see them here, load "
                             "anew.",
                             nullptr, iKept);
    return outcome;
}

SchemeStoreOutcome SchemeStoreOutcome::Reverted(int iSchemes, int iChangedSince)
{
    SchemeStoreOutcome outcome;
    outcome.eOperation = Operation::Save;
    outcome.bRevert = true;
    outcome.iSchemes = iSchemes;
    outcome.strWhat = tr("%Ln scheme(s) taken back.", nullptr, iSchemes);
    if (iChangedSince > 0)
        outcome.strNext =
            tr("%Ln scheme(s) stay as they are, because they have changed since.", nullptr, iChangedSince);
    return outcome;
}

void SchemeStoreOutcome::AddHistoryFailure(const QString& strHistoryTechnical)
{
    bWarning = true;
    Add(tr("The history does not tell of it, because its file cannot be written."));
    strTechnical = strHistoryTechnical;
}

void SchemeStoreOutcome::AddNoBackup(const AlarmSchemeStatementFailure& failure)
{
    bWarning = true;
    Add(tr("No backup could be made before: %1").arg(NoBackupText(ReasonOfFailure(failure))));
    if (strTechnical.isEmpty())
        strTechnical = failure.strMessage;
}

void SchemeStoreOutcome::AddOrphanRows(qint64 iRows)
{
    bWarning = true;
    Add(tr("The program did not end properly last time. The scheme database was checked: it is sound, but it "
           "holds %1 row(s) that belong to no scheme; they are left out.")
            .arg(iRows));
}

void SchemeStoreOutcome::Add(const QString& strNote)
{
    strNext =
        strNext.isEmpty() ? strNote : tr("%1 %2", "what happened, what to do next").arg(strNext, strNote);
}

SchemeStoreOutcome SchemeStoreOutcome::Repaired(const QString& strKeptAs, const QDateTime& backup,
                                                int iSchemes)
{
    SchemeStoreOutcome outcome;
    outcome.eOperation = Operation::Repair;
    outcome.iSchemes = iSchemes;
    outcome.strWhat = backup.isValid()
                          ? tr("The backup of %1 with %Ln scheme(s) was restored.", nullptr, iSchemes)
                                .arg(QLocale().toString(backup, QLocale::ShortFormat))
                          : tr("The program starts without schemes.");
    outcome.strNext = tr("The damaged file was kept as %1.").arg(QFileInfo(strKeptAs).fileName());
    return outcome;
}

SchemeStoreOutcome SchemeStoreOutcome::NothingToRepair()
{
    SchemeStoreOutcome outcome;
    outcome.eOperation = Operation::Repair;
    outcome.strWhat = tr("The scheme database is sound again; nothing was changed.");
    return outcome;
}

SchemeStoreOutcome SchemeStoreOutcome::Failure(Operation eOperation, Reason eReason,
                                               const QString& strTechnical)
{
    SchemeStoreOutcome outcome;
    outcome.eOperation = eOperation;
    outcome.eReason = eReason;
    outcome.strTechnical = strTechnical;
    const QString reason = ReasonText(eReason);
    switch (eOperation) {
    case Operation::Load:
        outcome.strWhat = tr("The schemes could not be loaded completely: %1").arg(reason);
        outcome.strNext = NextAfterLoad(eReason);
        break;
    case Operation::Save:
        outcome.strWhat = tr("Nothing was saved: %1").arg(reason);
        outcome.strNext = NextAfterSave(eReason);
        break;
    case Operation::Repair:
        outcome.strWhat = tr("The damaged scheme database was left as it is: %1").arg(reason);
        outcome.strNext = NextAfterRepair(eReason);
        break;
    }
    return outcome;
}

SchemeStoreOutcome SchemeStoreOutcome::RefusedSave(const SchemeStoreOutcome& load)
{
    SchemeStoreOutcome outcome;
    outcome.eOperation = Operation::Save;
    outcome.eReason = load.eReason == Reason::NotLoaded ? Reason::NotLoaded : Reason::LoadFailed;
    outcome.strTechnical = load.strTechnical;
    outcome.strWhat = tr("Nothing was saved, because schemes that were not loaded would be switched off. %1")
                          .arg(load.strWhat);
    outcome.strNext = load.strNext;
    return outcome;
}

QString SchemeStoreOutcome::ReasonText(Reason eReason)
{
    switch (eReason) {
    case Reason::NotOpen:
        return tr("the scheme database cannot be opened.");
    case Reason::Locked:
        return tr("another program is using the scheme database.");
    case Reason::ReadOnly:
        return tr("the scheme database or its folder is write-protected.");
    case Reason::DiskFull:
        return tr("the disk is full.");
    case Reason::Damaged:
        return tr("the scheme database is damaged.");
    case Reason::Moved:
        return tr("the scheme database was moved or replaced while the program was running.");
    case Reason::NotLoaded:
        return tr("the schemes have not been loaded yet.");
    case Reason::BadText:
        return tr("an event source holds a character that cannot be stored.");
    case Reason::Conflict:
        return tr("another program has changed the schemes.");
    case Reason::NoHistory:
        return tr("the history does not tell what that step has changed.");
    case Reason::Journal:
        return tr("another program has switched the scheme database to a journal that is not safe here, and "
                  "still uses it.");
    case Reason::None:
    case Reason::LoadFailed:
    case Reason::Other:
        break;
    }
    return tr("the scheme database reported an error.");
}

QString SchemeStoreOutcome::NoBackupText(Reason eReason)
{
    switch (eReason) {
    case Reason::NotOpen:
    case Reason::ReadOnly:
        return tr("the folder for backups cannot be written.");
    default:
        return ReasonText(eReason);
    }
}

QString SchemeStoreOutcome::NextAfterLoad(Reason eReason)
{
    switch (eReason) {
    case Reason::Locked:
    case Reason::Journal:
        return tr("Close the other program, then start this program again.");
    case Reason::NotOpen:
    case Reason::ReadOnly:
        return tr("Check the rights on the database folder, then start this program again.");
    case Reason::DiskFull:
        return tr("Free some space, then start this program again.");
    case Reason::Damaged:
    case Reason::BadText:
        return tr("The file was left as it is. Restore a copy of it, then start this program again.");
    default:
        return tr("Start this program again; if it happens again, see the log file.");
    }
}

QString SchemeStoreOutcome::NextAfterSave(Reason eReason)
{
    switch (eReason) {
    case Reason::Locked:
    case Reason::Journal:
        return tr("Your changes are still here. Close the other program, then save again.");
    case Reason::NotOpen:
    case Reason::ReadOnly:
        return tr("Your changes are still here. Check the rights on the database folder, then save again.");
    case Reason::DiskFull:
        return tr("Your changes are still here. Free some space, then save again.");
    case Reason::Moved:
        return tr("Your changes are still here. Put the file back, then save again.");
    case Reason::Damaged:
        return tr("Restore a copy of the file, then start this program again.");
    case Reason::Conflict:
        return tr("Your changes are still here. Save again to choose what is kept.");
    default:
        return tr("Your changes are still here. Save again; if it happens again, see the log file.");
    }
}

QString SchemeStoreOutcome::NextAfterRepair(Reason eReason)
{
    // Damage that stays after a repair is no reason to restore once more what has just been restored.
    const bool bStillDamaged = eReason == Reason::Damaged || eReason == Reason::BadText;
    return NextAfterLoad(bStillDamaged ? Reason::Other : eReason);
}
