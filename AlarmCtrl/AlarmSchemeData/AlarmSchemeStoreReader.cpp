#include "AlarmCtrl/AlarmSchemeData/AlarmSchemeStoreReader.h"

#include "AlarmCtrl/AlarmSchemeData/AlarmSchemeDatabaseParser.h"
#include "AlarmCtrl/AlarmSchemeData/AlarmSchemeFileCheck.h"
#include "AlarmCtrl/AlarmSchemeData/AlarmSchemeLoadRoad.h"
#include "AlarmCtrl/AlarmSchemeData/AlarmSchemeReadOnlyFile.h"

#include <sqlite3.h>

#include <utility>

namespace {

using Reason = AlarmSchemeReadOutcome::Reason;
using Columns = AlarmSchemeFileCheck::Columns;

/// False when a scheme is unusual, or a statement failed; the map holds anything then.
bool ReadInOnePass(sqlite3* pDatabase, Columns eColumns, AlarmInfoMap& map)
{
    bool usual = true;
    const auto onUnusual = [&usual](const AlarmSourceKey&, AlarmInfo&) { usual = false; };
    AlarmSchemeLoadRoad road(pDatabase, map, eColumns == Columns::All);
    return road.Load(onUnusual) && usual;
}

} // namespace

AlarmSchemeStoreReader::AlarmSchemeStoreReader(const QString& strPath)
    : m_strPath(strPath)
{
}

void AlarmSchemeStoreReader::SetPulse(Pulse pulse)
{
    m_pulse = std::move(pulse);
}

AlarmSchemeReadOutcome AlarmSchemeStoreReader::Read(AlarmInfoMap& map) const
{
    map.clear();
    AlarmSchemeReadOnlyFile file(m_strPath, m_busyTimeOut, m_pulse);
    if (!file.Open())
        return file.Outcome();

    const Columns columns = AlarmSchemeFileCheck::ReadableColumns(file.Handle());
    bool read = columns != Columns::Unknown && ReadInOnePass(file.Handle(), columns, map);
    if (!read && file.IsGoingOn()) {
        // What has grown otherwise, the store itself may read: from a copy, which it may bring up to date.
        map.clear();
        if (sqlite3* const copy = file.MakeCopy()) {
            AlarmSchemeDatabaseParser store(copy);
            const int64_t failedBefore = store.FailedStatements();
            store.TakeFirstFailure();
            read = store.ReadAll(&map) == 0 && store.FailedStatements() == failedBefore;
            const auto failure = store.TakeFirstFailure();
            if (!read && failure)
                file.Fail(failure->iCode, failure->strMessage);
        }
    }
    if (!read || !file.IsGoingOn() || !file.Close()) {
        map.clear();
        return file.Outcome();
    }
    return AlarmSchemeReadOutcome{Reason::None, m_strPath, QString()};
}

QString AlarmSchemeReadOutcome::Text() const
{
    switch (eReason) {
    case Reason::None:
        return QString();
    case Reason::NotFound:
        return tr("There is no file \"%1\".").arg(strPath);
    case Reason::NotAFile:
        return tr("\"%1\" is no file.").arg(strPath);
    case Reason::NoAccess:
        return tr("\"%1\" cannot be opened for reading. Check the rights on it and on its folder.")
            .arg(strPath);
    case Reason::NotADatabase:
        return tr("\"%1\" is no database.").arg(strPath);
    case Reason::NoSchemes:
        return tr("\"%1\" holds no alarm schemes.").arg(strPath);
    case Reason::UnfinishedJob:
        return tr("A write into \"%1\" was cut off and has left a journal beside it, which only a program "
                  "that may write can take back. Start the client once, then try again.")
            .arg(strPath);
    case Reason::Locked:
        return tr("Another program is using \"%1\". Try again when it has finished.").arg(strPath);
    case Reason::Damaged:
        return tr("\"%1\" is damaged. Restore a copy of it.").arg(strPath);
    case Reason::Stopped:
        return tr("The reading of \"%1\" was stopped.").arg(strPath);
    case Reason::Other:
        break;
    }
    return tr("\"%1\" could not be read: %2").arg(strPath, strTechnical);
}
