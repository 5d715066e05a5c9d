#include "client/store/SchemeStoreOutcome.h"

#include "AlarmCtrl/AlarmSchemeData/AlarmSchemeDatabaseParser.h"
#include "client/store/DurableJournal.h"

#include <QLocale>
#include <QSet>
#include <QtTest>

#include <sqlite3.h>

using Operation = SchemeStoreOutcome::Operation;
using Reason = SchemeStoreOutcome::Reason;

Q_DECLARE_METATYPE(SchemeStoreOutcome::Reason)

class SchemeStoreOutcomeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aFailedStatementTellsItsReason_data();
    void aFailedStatementTellsItsReason();
    void aSuccessCountsTheSchemesAndAsksForNothing();
    void everyFailureSaysWhatHappenedAndWhatToDo();
    void aRefusedSaveRepeatsWhyTheLoadFailed();
    void aSaveWithoutALoadSaysSo();
    void aMissingBackupIsAddedToTheSuccess();
    void rowsOfNobodyAreAddedToTheLoad();
    void aRepairTellsWhatWasDoneAndWhereTheDamagedFileIs();
};

void SchemeStoreOutcomeTest::aFailedStatementTellsItsReason_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<Reason>("reason");
    QTest::newRow("busy") << SQLITE_BUSY << Reason::Locked;
    QTest::newRow("busy in recovery") << SQLITE_BUSY_RECOVERY << Reason::Locked;
    QTest::newRow("locked") << SQLITE_LOCKED << Reason::Locked;
    QTest::newRow("read-only") << SQLITE_READONLY << Reason::ReadOnly;
    QTest::newRow("read-only folder") << SQLITE_READONLY_DIRECTORY << Reason::ReadOnly;
    QTest::newRow("moved") << SQLITE_READONLY_DBMOVED << Reason::Moved;
    QTest::newRow("full") << SQLITE_FULL << Reason::DiskFull;
    QTest::newRow("corrupt") << SQLITE_CORRUPT_VTAB << Reason::Damaged;
    QTest::newRow("no database") << SQLITE_NOTADB << Reason::Damaged;
    QTest::newRow("cannot open") << SQLITE_CANTOPEN_ISDIR << Reason::NotOpen;
    QTest::newRow("refused text") << AlarmSchemeStatementFailure::TextRefused + 0 << Reason::BadText;
    QTest::newRow("journal") << DurableJournal::Refused + 0 << Reason::Journal;
    QTest::newRow("constraint") << SQLITE_CONSTRAINT_TRIGGER << Reason::Other;
    QTest::newRow("disk error") << SQLITE_IOERR_WRITE << Reason::Other;
}

void SchemeStoreOutcomeTest::aFailedStatementTellsItsReason()
{
    QFETCH(int, code);
    QFETCH(Reason, reason);
    QVERIFY(ReasonOfFailure(AlarmSchemeStatementFailure{code, QString()}) == reason);
}

void SchemeStoreOutcomeTest::aSuccessCountsTheSchemesAndAsksForNothing()
{
    for (const Operation operation : {Operation::Load, Operation::Save}) {
        const SchemeStoreOutcome outcome = SchemeStoreOutcome::Success(operation, 1234);
        QVERIFY(outcome.IsSuccess() && outcome.eOperation == operation);
        QCOMPARE(outcome.iSchemes, 1234);
        QVERIFY(outcome.strWhat.contains(QLocale().toString(1234)));
        QCOMPARE(outcome.Text(), outcome.strWhat);
    }
}

void SchemeStoreOutcomeTest::everyFailureSaysWhatHappenedAndWhatToDo()
{
    for (const Operation operation : {Operation::Load, Operation::Save}) {
        QSet<QString> different;
        for (const Reason reason : {Reason::NotOpen, Reason::Locked, Reason::ReadOnly, Reason::DiskFull,
                                    Reason::Damaged, Reason::Moved, Reason::BadText, Reason::Other}) {
            const SchemeStoreOutcome outcome =
                SchemeStoreOutcome::Failure(operation, reason, QStringLiteral("its own words"));
            QVERIFY(!outcome.IsSuccess() && outcome.eReason == reason);
            QCOMPARE(outcome.iSchemes, 0);
            QVERIFY(!outcome.strWhat.isEmpty() && !outcome.strNext.isEmpty());
            QVERIFY(outcome.Text().startsWith(outcome.strWhat) && outcome.Text().endsWith(outcome.strNext));
            QCOMPARE(outcome.strTechnical, QStringLiteral("its own words"));
            different.insert(outcome.strWhat);
        }
        QCOMPARE(different.size(), 8);
    }
}

void SchemeStoreOutcomeTest::aRefusedSaveRepeatsWhyTheLoadFailed()
{
    const SchemeStoreOutcome load =
        SchemeStoreOutcome::Failure(Operation::Load, Reason::Damaged, QStringLiteral("row 3"));
    const SchemeStoreOutcome save = SchemeStoreOutcome::RefusedSave(load);
    QVERIFY(save.eOperation == Operation::Save && save.eReason == Reason::LoadFailed);
    QVERIFY(save.strWhat.endsWith(load.strWhat) && save.strWhat != load.strWhat);
    QCOMPARE(save.strNext, load.strNext);
    QCOMPARE(save.strTechnical, QStringLiteral("row 3"));
}

void SchemeStoreOutcomeTest::aSaveWithoutALoadSaysSo()
{
    const SchemeStoreOutcome save = SchemeStoreOutcome::RefusedSave(
        SchemeStoreOutcome::Failure(Operation::Load, Reason::NotLoaded, QString()));
    QVERIFY(save.eReason == Reason::NotLoaded);
}

void SchemeStoreOutcomeTest::aMissingBackupIsAddedToTheSuccess()
{
    QSet<QString> texts;
    for (const int code : {SQLITE_FULL, SQLITE_CANTOPEN, SQLITE_BUSY}) {
        SchemeStoreOutcome outcome = SchemeStoreOutcome::Saved(12, 0);
        const QString saved = outcome.Text();
        QVERIFY(!outcome.bWarning);
        outcome.AddNoBackup(AlarmSchemeStatementFailure{code, QStringLiteral("why")});
        QVERIFY(outcome.IsSuccess() && outcome.bWarning);
        QVERIFY(outcome.Text().startsWith(saved) && outcome.Text() != saved);
        QCOMPARE(outcome.strTechnical, QStringLiteral("why"));
        texts.insert(outcome.Text());
    }
    QCOMPARE(texts.size(), 3);
}

void SchemeStoreOutcomeTest::rowsOfNobodyAreAddedToTheLoad()
{
    SchemeStoreOutcome outcome = SchemeStoreOutcome::Success(Operation::Load, 5);
    outcome.AddOrphanRows(314);
    QVERIFY(outcome.IsSuccess() && outcome.bWarning);
    QVERIFY(outcome.Text().contains(QLatin1String("314")));
}

void SchemeStoreOutcomeTest::aRepairTellsWhatWasDoneAndWhereTheDamagedFileIs()
{
    const QString kept = QStringLiteral("/somewhere/AlarmScheme.damaged-20261121-184500.db");
    const SchemeStoreOutcome restored =
        SchemeStoreOutcome::Repaired(kept, QDateTime(QDate(2026, 11, 20), QTime(7, 30)), 4711);
    const SchemeStoreOutcome empty = SchemeStoreOutcome::Repaired(kept, QDateTime(), 0);
    for (const SchemeStoreOutcome& outcome : {restored, empty}) {
        QVERIFY(outcome.IsSuccess() && outcome.eOperation == Operation::Repair);
        QVERIFY(outcome.Text().contains(QLatin1String("AlarmScheme.damaged-20261121-184500.db")));
    }
    QVERIFY(restored.Text().contains(QLocale().toString(4711)));
    QVERIFY(restored.strWhat != empty.strWhat);
    QVERIFY(SchemeStoreOutcome::NothingToRepair().IsSuccess());
    const SchemeStoreOutcome failed =
        SchemeStoreOutcome::Failure(Operation::Repair, Reason::Locked, QStringLiteral("busy"));
    QVERIFY(!failed.IsSuccess() && !failed.strWhat.isEmpty() && !failed.strNext.isEmpty());
}

QTEST_GUILESS_MAIN(SchemeStoreOutcomeTest)
#include "tst_scheme_store_outcome.moc"
