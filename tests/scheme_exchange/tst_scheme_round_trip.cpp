#include "AlarmCtrl/AlarmSchemeData/AlarmSchemeDatabaseParser.h"
#include "AlarmCtrl/AlarmSchemeData/AlarmSchemeStoreReader.h"
#include "client/store/AsStored.h"
#include "tests/AlarmSchemeData/OracleRounds.h"
#include "tests/AlarmSchemeData/RandomSchemes.h"
#include "tests/AlarmSchemeData/RawDatabase.h"
#include "tests/AlarmSchemeData/StoreFolder.h"
#include "tests/AlarmSchemeData/StrangeFile.h"
#include "tests/scheme_exchange/SchemeTexts.h"

#include <QTest>

namespace {

/// The file's schemes; nothing when it is damaged.
bool Load(const QString& strPath, AlarmInfoMap& map)
{
    return AlarmSchemeStoreReader(strPath).Read(map).IsSuccess();
}

/// What an empty database holds after these schemes were saved into it.
AlarmInfoMap Through(const AlarmInfoMap& map)
{
    const StoreFolder folder;
    {
        AlarmSchemeDatabaseParser store(&OracleRounds::HurryAlong);
        store.SaveSchemes(map);
    }
    AlarmInfoMap held;
    Load(folder.File(), held);
    return held;
}

/// How often texts came back unchanged, and how often they were refused.
struct Tally
{
    int iSame = 0;
    int iRefused = 0;
};

QString RoundTrip(const AlarmInfoMap& held, Tally& tally)
{
    const QByteArray text = SchemeTexts::Write(held);
    AlarmInfoMap read;
    const QStringList problems = SchemeTexts::Read(text, read);
    if (!problems.isEmpty()) {
        ++tally.iRefused;
        return QString();
    }
    ++tally.iSame;
    if (read != held)
        return QStringLiteral("the text does not give back what was written");
    for (auto scheme = read.cbegin(); scheme != read.cend(); ++scheme) {
        if (AsStored(scheme.value()) != scheme.value())
            return QStringLiteral("a scheme was taken that is stored otherwise");
    }
    return SchemeTexts::Write(Through(read)) == text ? QString()
                                                     : QStringLiteral("the second text is another one");
}

} // namespace

class TestSchemeRoundTrip : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void randomMapsComeBackByteForByte();
    void whateverIsTakenOutOfStrangeFilesComesBack();
    void whateverIsTakenFromATextIsStoredAsItStands();
};

void TestSchemeRoundTrip::randomMapsComeBackByteForByte()
{
    const LogCatcher log;
    Tally tally;
    for (quint32 seed = 1; seed <= 100; ++seed) {
        const QString problem = RoundTrip(Through(RandomSchemes(seed).Map()), tally);
        QVERIFY2(problem.isEmpty(), qPrintable(QStringLiteral("%1: %2").arg(seed).arg(problem)));
    }
    QVERIFY(tally.iSame > 50);
    QVERIFY(tally.iRefused < 30); // texts that name columns
}

void TestSchemeRoundTrip::whateverIsTakenOutOfStrangeFilesComesBack()
{
    const LogCatcher log;
    Tally tally;
    for (quint32 seed = 1; seed <= 100; ++seed) {
        AlarmInfoMap held;
        {
            const StoreFolder folder;
            RandomSchemes schemes(seed);
            {
                AlarmSchemeDatabaseParser store(&OracleRounds::HurryAlong);
                const AlarmInfoMap map = schemes.Map();
                store.SaveAll(&map);
            }
            {
                RawDatabase database(folder.File());
                OracleRounds::HurryAlong(database.Handle());
                QRandomGenerator random(seed);
                MakeStrange(database, random);
            }
            Load(folder.File(), held);
        }
        const QString problem = RoundTrip(held, tally);
        QVERIFY2(problem.isEmpty(), qPrintable(QStringLiteral("%1: %2").arg(seed).arg(problem)));
    }
    QVERIFY(tally.iSame > 40);
}

void TestSchemeRoundTrip::whateverIsTakenFromATextIsStoredAsItStands()
{
    // Records that were never stored: what the reader takes of them must not change on the way through.
    const LogCatcher log;
    Tally tally;
    for (quint32 seed = 1; seed <= 150; ++seed) {
        const QString problem = RoundTrip(RandomSchemes(seed).Map(), tally);
        QVERIFY2(problem.isEmpty(), qPrintable(QStringLiteral("%1: %2").arg(seed).arg(problem)));
    }
    QVERIFY(tally.iSame > 8 && tally.iRefused > 8);
}

QTEST_MAIN(TestSchemeRoundTrip)
#include "tst_scheme_round_trip.moc"
