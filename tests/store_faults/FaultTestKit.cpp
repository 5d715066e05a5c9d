#include "tests/store_faults/FaultTestKit.h"

#include "client/store/StoredSchemes.h"
#include "tests/AlarmSchemeData/RawDatabase.h"

#include <sqlite3.h>

#include <atomic>

namespace {

std::atomic<sqlite3*> s_last{nullptr};

int OnOpen(sqlite3* pDatabase, char**, const void*)
{
    s_last = pDatabase;
    return SQLITE_OK;
}

QString HistoryPath()
{
    return SchemeHistoryFile::PathBeside(
        QDir(QGetDatabaseDirPath()).filePath(QStringLiteral("AlarmScheme.db")));
}

AlarmSourceKey Door(int iDoor)
{
    return AlarmSourceKey{EventSource::Door(1, iDoor), 3};
}

AlarmInfo Info(int iDoor, int iTime)
{
    AlarmInfo info;
    info.bOpen = true;
    info.bOpenSound = iDoor % 2 == 0;
    info.listDoor.append({QString::number(iDoor), true});
    info.listAlarmOut.append({EventSource::AlarmOutput(iDoor), true, iTime});
    info.videoSplit.SplitRow = 2;
    info.videoSplit.SplitCloum = 1;
    info.videoSplit.SplitCount = 2;
    info.videoSplit.videoLinks[iDoor % 2].strLinkDevID = EventSource::Door(2, iDoor);
    info.defenceTime[iDoor % 7] = {{iTime, 3600}, {7200, 7200 + iTime}};
    return info;
}

/// Of every seven schemes one is left out, two change; a third more are new.
SchemeChange Change(int iSchemes)
{
    SchemeChange change;
    for (int door = 0; door < iSchemes; ++door) {
        change.before.insert(Door(door), Info(door, 20));
        AlarmInfo stored = Info(door, door % 7 < 2 ? 30 : 20);
        if (door % 7 == 6) {
            stored.bOpen = false;
        } else {
            change.after.insert(Door(door), stored);
        }
        change.stored.insert(Door(door), stored);
    }
    for (int door = iSchemes; door < iSchemes + iSchemes / 3; ++door) {
        change.after.insert(Door(door), Info(door, 40));
        change.stored.insert(Door(door), Info(door, 40));
    }
    return change;
}

} // namespace

SchemeChange FaultTestKit::FewSchemes()
{
    return Change(21);
}

SchemeChange FaultTestKit::ManySchemes()
{
    return Change(105);
}

QString FaultTestKit::Read(AlarmInfoMap& map)
{
    QString path;
    {
        AlarmSchemeStoreBackend backend;
        if (backend.Load(map) != 0)
            return QStringLiteral("not loaded: ") + backend.LastOutcome().strTechnical;
        path = backend.GetPath();
    }
    const QString sound = RawDatabase(path).Value(QStringLiteral("pragma integrity_check"));
    return sound == QLatin1String("ok") ? QString() : sound;
}

QString FaultTestKit::Differs(const AlarmInfoMap& expected)
{
    AlarmInfoMap map;
    const QString wrong = Read(map);
    return !wrong.isEmpty() || map == expected ? wrong : QStringLiteral("other schemes");
}

QString FaultTestKit::IsTornBetween(const SchemeChange& change)
{
    AlarmInfoMap map;
    const QString wrong = Read(map);
    return !wrong.isEmpty() || map == change.before || map == change.stored
               ? wrong
               : QStringLiteral("neither the old nor the new schemes");
}

QString FaultTestKit::EndOfHistoryDiffers(const AlarmInfoMap& stored)
{
    RawDatabase database(HistoryPath());
    const QString sound = database.Value(QStringLiteral("pragma integrity_check"));
    if (sound != QLatin1String("ok"))
        return QStringLiteral("the history: ") + sound;
    SchemeHistoryFile history(database.Handle(), SchemeHistoryFile::Place::Main);
    return history.State() == stored ? QString()
                                     : QStringLiteral("the history does not end with what is stored");
}

QString FaultTestKit::HistoryDiffers(const AlarmInfoMap& stored)
{
    const QString wrong = EndOfHistoryDiffers(stored);
    const QString outside = RawDatabase(HistoryPath())
                                .Value(QStringLiteral("select count(*) from Entries where Kind = %1")
                                           .arg(static_cast<int>(SchemeHistoryKind::Outside)));
    return !wrong.isEmpty() || outside == QLatin1String("0")
               ? wrong
               : QStringLiteral("a save without its step in the history");
}

void FaultTestKit::ChangeForRound(AlarmInfoMap& map, int iClient, int iRound)
{
    map[Door(iClient)] = Info(iClient, 100 + iRound);
    map.insert({EventSource::Door(10 + iClient, iRound), 3}, Info(iRound, iRound));
}

QString FaultTestKit::LostRound(const AlarmInfoMap& map, int iClients, int iRounds)
{
    for (int client = 0; client < iClients; ++client) {
        if (map.value(Door(client)) != Info(client, 100 + iRounds))
            return QStringLiteral("the last change of client %1").arg(client);
        for (int round = 1; round <= iRounds; ++round) {
            if (map.value({EventSource::Door(10 + client, round), 3}) != Info(round, round))
                return QStringLiteral("round %1 of client %2").arg(round).arg(client);
        }
    }
    return QString();
}

void FaultTestKit::MakeFile(const AlarmInfoMap& schemes)
{
    AlarmSchemeStoreBackend backend;
    AlarmInfoMap map;
    if (backend.Load(map) != 0 || SaveAndWait(backend, schemes) != 0)
        qFatal("cannot store schemes for a test");
}

WatchedConnections::WatchedConnections()
{
    s_last = nullptr;
    sqlite3_auto_extension(reinterpret_cast<void (*)()>(&OnOpen));
}

WatchedConnections::~WatchedConnections()
{
    sqlite3_cancel_auto_extension(reinterpret_cast<void (*)()>(&OnOpen));
}

void WatchedConnections::KeepFewPages() const
{
    if (s_last == nullptr ||
        sqlite3_exec(s_last, "PRAGMA cache_size = 20", nullptr, nullptr, nullptr) != SQLITE_OK)
        qFatal("cannot bound the memory of a connection");
}
