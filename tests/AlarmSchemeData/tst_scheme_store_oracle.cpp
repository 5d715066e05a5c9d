#include "AlarmCtrl/AlarmSchemeData/AlarmSchemeDatabaseParser.h"
#include "tests/AlarmSchemeData/LiteralStore.h"
#include "tests/AlarmSchemeData/OracleRounds.h"
#include "tests/AlarmSchemeData/RawDatabase.h"
#include "tests/AlarmSchemeData/StoreFolder.h"

#include <QtTest>

class SchemeStoreOracleTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void savingRandomMapsLeavesTheRowsOfTheLiteralStatements();
    void strangeFilesAreReadAndWrittenAsByTheLiteralStatements();
    void loadingRandomRowsReadsWhatTheLiteralStatementsRead();

private:
    LogCatcher m_log;
};

void SchemeStoreOracleTest::savingRandomMapsLeavesTheRowsOfTheLiteralStatements()
{
    for (quint32 seed = 1; seed <= 100; ++seed) {
        const QString difference = OracleRounds::SaveRandomMaps(seed);
        QVERIFY2(difference.isEmpty(), qPrintable(QStringLiteral("seed %1: %2").arg(seed).arg(difference)));
    }
}

void SchemeStoreOracleTest::strangeFilesAreReadAndWrittenAsByTheLiteralStatements()
{
    for (quint32 seed = 1; seed <= 100; ++seed) {
        const QString difference = OracleRounds::UseStrangeFile(seed);
        QVERIFY2(difference.isEmpty(), qPrintable(QStringLiteral("seed %1: %2").arg(seed).arg(difference)));
    }
}

void SchemeStoreOracleTest::loadingRandomRowsReadsWhatTheLiteralStatementsRead()
{
    // Rows as no save would write them: orphans, doubles, dangling ids, texts where numbers belong.
    const QStringList values{QStringLiteral("0"),    QStringLiteral("1"),         QStringLiteral("2"),
                             QStringLiteral("3"),    QStringLiteral("-1"),        QStringLiteral("64"),
                             QStringLiteral("NULL"), QStringLiteral("'text'"),    QStringLiteral("'2'"),
                             QStringLiteral("1.5"),  QStringLiteral("86399"),     QStringLiteral("x'3132'"),
                             QStringLiteral("7"),    QStringLiteral("2000000000")};
    for (quint32 seed = 1; seed <= 60; ++seed) {
        const StoreFolder folder;
        AlarmSchemeDatabaseParser store(&OracleRounds::HurryAlong);
        RawDatabase other(folder.File());
        OracleRounds::HurryAlong(other.Handle());
        QRandomGenerator random(seed);
        other.Run(QStringLiteral("begin"));
        const QStringList tables = RawDatabase::Tables();
        for (const QString& table : tables) {
            const QStringList columns = other.Rows(
                QStringLiteral("select name from pragma_table_xinfo('%1') where pk = 0").arg(table));
            for (int row = random.bounded(12); row > 0 && table != QLatin1String("BaseInfo"); --row) {
                QStringList cells;
                for (int column = 0; column < columns.size(); ++column) {
                    cells.append(column == 0 && random.bounded(3) != 0
                                     ? QString::number(1 + random.bounded(3))
                                     : values.at(random.bounded(values.size())));
                }
                QCOMPARE(
                    other.Run(QStringLiteral("insert into %1(%2) values(%3)")
                                  .arg(table, columns.join(QLatin1Char(',')), cells.join(QLatin1Char(',')))),
                    0);
            }
        }
        other.Run(QStringLiteral("commit"));
        const QStringList before = other.Content();
        AlarmInfoMap loaded;
        QCOMPARE(store.ReadAll(&loaded), 0);
        LiteralStore literal(other.Handle());
        QVERIFY2(loaded == literal.ReadAll(), qPrintable(QStringLiteral("seed %1").arg(seed)));
        QCOMPARE(other.Content(), before);
    }
}

QTEST_GUILESS_MAIN(SchemeStoreOracleTest)
#include "tst_scheme_store_oracle.moc"
