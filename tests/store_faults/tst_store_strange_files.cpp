#include "tests/store_faults/DamagedBytes.h"
#include "tests/store_faults/FaultTestKit.h"
#include "tests/store_faults/FaultyDisk.h"
#include "tests/store_faults/SoakCount.h"

#include "AlarmCtrl/AlarmSchemeData/AlarmSchemeDatabaseParser.h"
#include "tests/AlarmSchemeData/OracleRounds.h"
#include "tests/AlarmSchemeData/RandomSchemes.h"
#include "tests/AlarmSchemeData/RawDatabase.h"
#include "tests/AlarmSchemeData/StrangeFile.h"

#include <QtTest>

using Reason = SchemeStoreOutcome::Reason;

namespace {

const QString File = QStringLiteral("Database/AlarmScheme.db");

}

/// Files that no program of ours has written.
class StoreStrangeFilesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void strangeFilesAreReadAndNeverHarmed();

private:
    /// Sound files with some schemes, one after the other.
    static QList<QByteArray> SoundFiles(const StoreFolder& folder, int iCount);
    static QByteArray StrangeFile(const StoreFolder& folder, const QByteArray& sound, quint32 iSeed);
};

QList<QByteArray> StoreStrangeFilesTest::SoundFiles(const StoreFolder& folder, int iCount)
{
    QList<QByteArray> files;
    for (int which = 0; which < iCount; ++which) {
        WriteDisk(folder.Root(), {});
        RandomSchemes schemes(static_cast<quint32>(which) + 1);
        {
            AlarmSchemeDatabaseParser store(&OracleRounds::HurryAlong);
            for (int save = 0; save < 3; ++save) {
                const AlarmInfoMap map = schemes.Map();
                store.SaveAll(&map);
            }
        }
        files.append(folder.Bytes());
    }
    return files;
}

QByteArray StoreStrangeFilesTest::StrangeFile(const StoreFolder& folder, const QByteArray& sound,
                                              quint32 iSeed)
{
    QRandomGenerator random(iSeed);
    QByteArray bytes = sound;
    const int kind = random.bounded(5);
    if (kind < 3) {
        WriteDisk(folder.Root(), {{File, bytes}});
        {
            RawDatabase database(folder.File());
            OracleRounds::HurryAlong(database.Handle());
            MakeStrange(database, random);
        }
        bytes = folder.Bytes();
    }
    if (kind == 2 || kind == 3)
        DamageBytes(bytes, random);
    if (kind == 4)
        CutOff(bytes, random);
    return bytes;
}

void StoreStrangeFilesTest::strangeFilesAreReadAndNeverHarmed()
{
    LogCatcher log;
    const StoreFolder folder;
    FaultyDisk disk(folder.Root()); // one that never forces anything to the medium
    const QList<QByteArray> sound = SoundFiles(folder, 50);
    const int count = SoakCount::IsWhole() ? 100000 : 1000;
    const auto first = static_cast<quint32>(qEnvironmentVariableIntValue("ACS_SOAK_SEED"));
    int read = 0;
    int damaged = 0;
    for (quint32 seed = first + 1; seed - first <= static_cast<quint32>(count); ++seed) {
        const QByteArray before = StrangeFile(folder, sound.at(static_cast<int>(seed) % sound.size()), seed);
        WriteDisk(folder.Root(), {{File, before}});
        disk.Reset();
        log.Clear();
        const QByteArray which = "seed " + QByteArray::number(seed);
        {
            AlarmSchemeStoreBackend backend;
            AlarmInfoMap map;
            const bool loaded = backend.Load(map) == 0;
            const Reason reason = backend.LastOutcome().eReason;
            QVERIFY2(loaded == (reason == Reason::None), which.constData());
            if (!loaded)
                QVERIFY2(SaveAndWait(backend, map) == -1, which.constData());
            read += loaded ? 1 : 0;
            if (reason != Reason::Damaged)
                continue;
            ++damaged;
        }
        if (!ReadDisk(folder.Root()).values().contains(before)) {
            // Damage that no quick look shows is met in the middle of the work; all other is left as it is.
            WriteDisk(folder.Root(), {{File, before}});
            QVERIFY2(RawDatabase(folder.File()).Value(QStringLiteral("pragma quick_check(1)")) ==
                         QLatin1String("ok"),
                     which.constData());
        }
    }
    qInfo("%d strange files: %d read whole, %d damaged", count, read, damaged);
    QVERIFY(read > count / 10 && damaged > count / 10);
}

QTEST_GUILESS_MAIN(StoreStrangeFilesTest)
#include "tst_store_strange_files.moc"
