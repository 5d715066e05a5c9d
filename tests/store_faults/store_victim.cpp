// Another process for the tests of the store, over the data directory ROOT. Says "ready" where it waits for
// the end of its input, and "saved" when a save has succeeded.
//   store_victim save few|many before|halfway OPERATION ROOT   saves; ends at the OPERATION-th thing that the
//                                                              save does with files
//   store_victim client WHICH ROUNDS ROOT                      saves its own changes in rounds, keeping those
//                                                              of others
//   store_victim hold STATEMENT ROOT                           runs the statement and holds what it locks

#include "tests/AlarmSchemeData/RawDatabase.h"
#include "tests/store_faults/FaultTestKit.h"
#include "tests/store_faults/FaultyDisk.h"

#include <QCoreApplication>

#include <sqlite3.h>

#include <cstdio>

namespace {

void Say(const char* szWhat)
{
    std::puts(szWhat);
    std::fflush(stdout);
}

void WaitForInput()
{
    Say("ready");
    while (std::getchar() != EOF) {
    }
}

int Save(const QString& strHowMany, const QString& strHow, int iOperation, const QString& strRoot)
{
    const bool many = strHowMany == QLatin1String("many");
    const int verdict =
        strHow == QLatin1String("halfway") ? FaultyDisk::EndProcessHalfway : FaultyDisk::EndProcess;
    const WatchedConnections connections;
    FaultyDisk disk(strRoot);
    AlarmSchemeStoreBackend backend;
    AlarmInfoMap map;
    if (backend.Load(map) != 0)
        return 1;
    if (many)
        connections.KeepFewPages();
    disk.Reset([iOperation, verdict](const FaultyDisk::Operation& operation) {
        return operation.iNumber == iOperation ? verdict : SQLITE_OK;
    });
    const SchemeChange change = many ? FaultTestKit::ManySchemes() : FaultTestKit::FewSchemes();
    if (SaveAndWait(backend, change.after) != 0)
        return 1;
    Say("saved");
    return 0;
}

int Client(int iWhich, int iRounds)
{
    AlarmSchemeStoreBackend backend;
    backend.SetConflictHandler([](const SchemeConflict&) { return SchemeConflictAnswer::KeepOthers; });
    AlarmInfoMap map;
    if (backend.Load(map) != 0)
        return 1;
    for (int round = 1; round <= iRounds; ++round) {
        FaultTestKit::ChangeForRound(map, iWhich, round);
        if (SaveAndWait(backend, map) != 0) {
            std::fprintf(stderr, "round %d: %s\n", round, qPrintable(backend.LastOutcome().Text()));
            return 1;
        }
    }
    return 0;
}

int Hold(const QString& strStatement)
{
    RawDatabase database(QGetAbsolutePath(QStringLiteral("AlarmScheme.db"), QGetDatabaseDirPath()));
    if (database.Run(strStatement) != SQLITE_OK)
        return 1;
    WaitForInput();
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments().mid(1);
    const LogCatcher log;
    SystemPaths::SetDataDirectory(arguments.value(arguments.size() - 1));
    const QString work = arguments.value(0);
    if (work == QLatin1String("save") && arguments.size() == 5)
        return Save(arguments.at(1), arguments.at(2), arguments.at(3).toInt(), arguments.at(4));
    if (work == QLatin1String("client") && arguments.size() == 4)
        return Client(arguments.at(1).toInt(), arguments.at(2).toInt());
    if (work == QLatin1String("hold") && arguments.size() == 3)
        return Hold(arguments.at(1));
    std::fprintf(stderr, "unknown arguments\n");
    return 2;
}
