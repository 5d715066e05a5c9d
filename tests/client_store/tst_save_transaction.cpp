#include "client/store/SaveTransaction.h"

#include "AlarmCtrl/AlarmSchemeData/AlarmSchemeDatabaseParser.h"
#include "tests/AlarmSchemeData/RawDatabase.h"
#include "tests/AlarmSchemeData/StoreFolder.h"

#include <QtTest>

#include <sqlite3.h>

class SaveTransactionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void whatIsCommittedIsInTheFile();
    void whatIsNotCommittedIsNotInTheFile();
    void aFailedStatementKeepsTheFileOld();
    void committingTwiceSucceedsOnce();
    void aTransactionThatEndedByItselfCommitsNothingMore();
    void aFailedCommitIsRolledBack();
    void theStoreWorksAloneAgainAfterwards_data();
    void theStoreWorksAloneAgainAfterwards();
    void anUnbalancedEndKeepsTheFileOld();

private:
    void Write(const char* szSource)
    {
        m_store->SaveOpen(AlarmSourceKey{QString::fromLatin1(szSource), 1}, true);
    }
    QString Sources()
    {
        return m_raw->Value(QStringLiteral("select group_concat(strEventSource) from AlarmUniqueID"));
    }

    std::unique_ptr<LogCatcher> m_log;
    std::unique_ptr<StoreFolder> m_folder;
    std::unique_ptr<AlarmSchemeDatabaseParser> m_store;
    std::unique_ptr<RawDatabase> m_raw;
};

void SaveTransactionTest::init()
{
    m_log = std::make_unique<LogCatcher>();
    m_folder = std::make_unique<StoreFolder>();
    m_store = std::make_unique<AlarmSchemeDatabaseParser>();
    m_raw = std::make_unique<RawDatabase>(m_folder->File());
    Write("old");
}

void SaveTransactionTest::cleanup()
{
    QCOMPARE(m_store->GetTransactionDepth(), 0);
    QCOMPARE(sqlite3_get_autocommit(m_store->GetHandle()), 1);
    m_raw.reset();
    m_store.reset();
    m_folder.reset();
    m_log.reset();
}

void SaveTransactionTest::whatIsCommittedIsInTheFile()
{
    SaveTransaction transaction(*m_store);
    QVERIFY(transaction.IsAlive());
    Write("new");
    QCOMPARE(Sources(), QStringLiteral("old"));
    QVERIFY(transaction.Commit());
    QCOMPARE(Sources(), QStringLiteral("old,new"));
}

void SaveTransactionTest::whatIsNotCommittedIsNotInTheFile()
{
    {
        const SaveTransaction transaction(*m_store);
        Write("new");
    }
    QCOMPARE(Sources(), QStringLiteral("old"));
}

void SaveTransactionTest::aFailedStatementKeepsTheFileOld()
{
    SaveTransaction transaction(*m_store);
    Write("new");
    m_store->ExecOnce(QStringLiteral("no statement"));
    QVERIFY(!transaction.IsAlive());
    Write("newer");
    QVERIFY(!transaction.Commit());
    QCOMPARE(Sources(), QStringLiteral("old"));
}

void SaveTransactionTest::committingTwiceSucceedsOnce()
{
    SaveTransaction transaction(*m_store);
    Write("new");
    QVERIFY(transaction.Commit());
    QVERIFY(!transaction.Commit());
    QCOMPARE(Sources(), QStringLiteral("old,new"));
}

void SaveTransactionTest::aTransactionThatEndedByItselfCommitsNothingMore()
{
    QCOMPARE(
        m_store->ExecOnce(QStringLiteral("create trigger away before insert on AlarmUniqueID when "
                                         "new.AlarmType = 99 begin select raise(rollback, 'away'); end")),
        0);
    SaveTransaction transaction(*m_store);
    Write("new");
    m_store->ExecOnce(QStringLiteral("insert into AlarmUniqueID(AlarmType) values(99)"));
    QCOMPARE(sqlite3_get_autocommit(m_store->GetHandle()), 1);
    QVERIFY(!transaction.IsAlive());
    // From here on SQLite would commit each statement alone.
    Write("newer");
    m_store->ExecOnce(QStringLiteral("delete from AlarmUniqueID"));
    QVERIFY(!transaction.Commit());
    QCOMPARE(Sources(), QStringLiteral("old"));
}

void SaveTransactionTest::aFailedCommitIsRolledBack()
{
    RawDatabase reader(m_folder->File());
    QCOMPARE(reader.Run(QStringLiteral("begin; select * from BaseInfo")), 0);
    SaveTransaction transaction(*m_store);
    Write("new");
    QVERIFY(transaction.IsAlive());
    QVERIFY(!transaction.Commit());
    QCOMPARE(sqlite3_get_autocommit(m_store->GetHandle()), 1);
    QCOMPARE(reader.Run(QStringLiteral("commit")), 0);
    QCOMPARE(Sources(), QStringLiteral("old"));
}

void SaveTransactionTest::theStoreWorksAloneAgainAfterwards_data()
{
    QTest::addColumn<bool>("fails");
    QTest::newRow("after success") << false;
    QTest::newRow("after failure") << true;
}

void SaveTransactionTest::theStoreWorksAloneAgainAfterwards()
{
    QFETCH(bool, fails);
    {
        SaveTransaction transaction(*m_store);
        if (fails)
            m_store->ExecOnce(QStringLiteral("no statement"));
        QCOMPARE(transaction.Commit(), !fails);
    }
    Write("alone");
    QCOMPARE(Sources(), QStringLiteral("old,alone"));
    {
        SaveTransaction second(*m_store);
        Write("again");
        QVERIFY(second.Commit());
    }
    QCOMPARE(Sources(), QStringLiteral("old,alone,again"));
}

void SaveTransactionTest::anUnbalancedEndKeepsTheFileOld()
{
    SaveTransaction transaction(*m_store);
    Write("new");
    m_store->EndTransaction();
    QVERIFY(!transaction.Commit());
    QCOMPARE(Sources(), QStringLiteral("old"));
}

QTEST_GUILESS_MAIN(SaveTransactionTest)
#include "tst_save_transaction.moc"
