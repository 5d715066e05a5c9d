#include "tests/AlarmSchemeData/OracleRounds.h"

#include "AlarmCtrl/AlarmSchemeData/AlarmSchemeDatabaseParser.h"
#include "tests/AlarmSchemeData/LiteralStore.h"
#include "tests/AlarmSchemeData/RandomSchemes.h"
#include "tests/AlarmSchemeData/RawDatabase.h"
#include "tests/AlarmSchemeData/StoreFolder.h"
#include "tests/AlarmSchemeData/StrangeFile.h"

#include <sqlite3.h>

#include <algorithm>

namespace {

QString OtherFile(const StoreFolder& folder)
{
    return QDir(folder.Root()).absoluteFilePath(QStringLiteral("other.db"));
}

/// With the order in which the counters were made.
QStringList Content(RawDatabase& database)
{
    return database.Content() + database.Rows(QStringLiteral("select rowid, name, seq from sqlite_sequence"));
}

QString Difference(const QString& strWhat, const QStringList& found, const QStringList& expected)
{
    for (int line = 0; line < qMax(found.size(), expected.size()); ++line) {
        if (found.value(line) != expected.value(line)) {
            return QStringLiteral("%1, line %2: found %3, expected %4")
                .arg(strWhat, QString::number(line), found.value(line), expected.value(line));
        }
    }
    return QString();
}

QString LoadBoth(const QString& strWhat, AlarmSchemeDatabaseParser& store, LiteralStore& literal)
{
    AlarmInfoMap loaded;
    if (store.ReadAll(&loaded) != 0)
        return strWhat + QStringLiteral(": the load failed");
    const AlarmInfoMap expected = literal.ReadAll();
    if (!std::equal(loaded.keyBegin(), loaded.keyEnd(), expected.keyBegin(), expected.keyEnd()))
        return strWhat + QStringLiteral(": other keys were loaded");
    for (auto entry = expected.cbegin(); entry != expected.cend(); ++entry) {
        if (loaded.value(entry.key()) != entry.value()) {
            return strWhat + QStringLiteral(": other values of %1 / %2")
                                 .arg(entry.key().strEventSource, QString::number(entry.key().AlarmType));
        }
    }
    return QString();
}

} // namespace

bool OracleRounds::HurryAlong(sqlite3* pDatabase)
{
    sqlite3_exec(pDatabase, "PRAGMA synchronous = OFF; PRAGMA journal_mode = MEMORY", nullptr, nullptr,
                 nullptr);
    return true;
}

QString OracleRounds::SaveRandomMaps(quint32 iSeed)
{
    const StoreFolder folder;
    RawDatabase other(OtherFile(folder));
    HurryAlong(other.Handle());
    LiteralStore literal(other.Handle());
    AlarmSchemeDatabaseParser store(&HurryAlong);
    RawDatabase saved(folder.File());
    RandomSchemes random(iSeed);
    for (int round = 0; round < 5; ++round) {
        const AlarmInfoMap map = random.Map();
        const bool whole = round % 3 != 2;
        if (whole) {
            literal.SaveAll(map);
        } else {
            literal.SaveSome(map);
        }
        if ((whole ? store.SaveAll(&map) : store.SaveSchemes(map)) != 0)
            return QStringLiteral("the save failed");
        QString difference =
            Difference(QStringLiteral("round %1").arg(round), Content(saved), Content(other));
        if (!difference.isEmpty())
            return difference;
    }
    if (store.FailedStatements() != 0)
        return QStringLiteral("statements failed");
    return LoadBoth(QStringLiteral("the load"), store, literal);
}

QString OracleRounds::UseStrangeFile(quint32 iSeed)
{
    const StoreFolder folder;
    RandomSchemes schemes(iSeed);
    {
        AlarmSchemeDatabaseParser store(&HurryAlong);
        for (int save = 0; save < 2; ++save) {
            const AlarmInfoMap map = schemes.Map();
            store.SaveAll(&map);
        }
    }
    QStringList changes;
    {
        RawDatabase database(folder.File());
        HurryAlong(database.Handle());
        QRandomGenerator random(iSeed);
        changes = MakeStrange(database, random);
    }
    QFile::copy(folder.File(), OtherFile(folder));

    RawDatabase other(OtherFile(folder));
    HurryAlong(other.Handle());
    LiteralStore literal(other.Handle());
    AlarmSchemeDatabaseParser store(&HurryAlong);
    RawDatabase saved(folder.File());
    QString difference = LoadBoth(QStringLiteral("the first load"), store, literal);
    for (int round = 0; round < 3 && difference.isEmpty(); ++round) {
        const AlarmInfoMap map = schemes.Map();
        if (round == 1) {
            literal.SaveSome(map);
            store.SaveSchemes(map);
        } else {
            literal.SaveAll(map);
            store.SaveAll(&map);
        }
        difference = Difference(QStringLiteral("save %1").arg(round), Content(saved), Content(other));
    }
    if (difference.isEmpty())
        difference = LoadBoth(QStringLiteral("the last load"), store, literal);
    return difference.isEmpty() ? difference
                                : difference + QLatin1Char('\n') + changes.join(QLatin1Char('\n'));
}
