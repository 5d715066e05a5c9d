#include "platform/lxl/LogLine.h"

#include "platform/lxl/DPrintLog.h"

#include <QtTest>

class LogLineTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aLineHoldsTimeLevelSourceLineFunctionAndMessage();
    void aModuleTagStandsInBrackets();
    void theSourceIsNamedWithoutItsFolders_data();
    void theSourceIsNamedWithoutItsFolders();
    void everyLevelHasAName();
    void anUnknownLevelIsANumber();
    void lineBreaksAndControlCharactersAreWrittenOut();
    void otherScriptsStayAsTheyAre();
};

void LogLineTest::aLineHoldsTimeLevelSourceLineFunctionAndMessage()
{
    const QDateTime time(QDate(2031, 2, 3), QTime(4, 5, 6, 7));
    QCOMPARE(QString::fromStdString(lxl::LogLine(time, QStringLiteral("Alarm\\Store"), 1056,
                                                 QStringLiteral("Store::Run"), QString(), lxl::LogError,
                                                 QStringLiteral("no such table"))),
             QStringLiteral("2031-02-03 04:05:06.007 ERROR Store:1056 Store::Run no such table\n"));
}

void LogLineTest::aModuleTagStandsInBrackets()
{
    const QDateTime time(QDate(2031, 2, 3), QTime(4, 5, 6, 7));
    QCOMPARE(
        QString::fromStdString(lxl::LogLine(time, QStringLiteral("a.cpp"), 1, QStringLiteral("f"),
                                            QStringLiteral("site"), lxl::LogInfo, QStringLiteral("text"))),
        QStringLiteral("2031-02-03 04:05:06.007 INFO a.cpp:1 f [site] text\n"));
}

void LogLineTest::theSourceIsNamedWithoutItsFolders_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("name");
    QTest::newRow("slashes") << QStringLiteral("/a/b/c.cpp") << QStringLiteral("c.cpp");
    QTest::newRow("backslashes") << QStringLiteral("a\\b\\c") << QStringLiteral("c");
    QTest::newRow("both") << QStringLiteral("a\\b/c.cpp") << QStringLiteral("c.cpp");
    QTest::newRow("none") << QStringLiteral("c.cpp") << QStringLiteral("c.cpp");
    QTest::newRow("empty") << QString() << QString();
    QTest::newRow("only folders") << QStringLiteral("a/") << QString();
}

void LogLineTest::theSourceIsNamedWithoutItsFolders()
{
    QFETCH(QString, path);
    QTEST(lxl::SourceBaseName(path), "name");
}

void LogLineTest::everyLevelHasAName()
{
    QStringList names;
    for (int level = lxl::LogTrace; level <= lxl::LogFatal; ++level)
        names.append(lxl::LevelName(level));
    QCOMPARE(names.join(QLatin1Char(' ')), QStringLiteral("TRACE DEBUG INFO NOTICE WARNING ERROR FATAL"));
}

void LogLineTest::anUnknownLevelIsANumber()
{
    QCOMPARE(lxl::LevelName(0), QStringLiteral("0"));
    QCOMPARE(lxl::LevelName(8), QStringLiteral("8"));
    QCOMPARE(lxl::LevelName(-2147483647 - 1), QStringLiteral("-2147483648"));
}

void LogLineTest::lineBreaksAndControlCharactersAreWrittenOut()
{
    QCOMPARE(lxl::OneLine(QStringLiteral("a\nb\r\nc\td\x1B[31m\x7F") + QChar(0)),
             QStringLiteral("a\\nb\\r\\nc\td\\x1b[31m\\x7f\\x00"));
}

void LogLineTest::otherScriptsStayAsTheyAre()
{
    const QString text = QString::fromUtf8("T\xC3\xBCr \xE9\x97\xA8 \xF0\x9F\x9A\xAA");
    QCOMPARE(lxl::OneLine(text), text);
}

QTEST_APPLESS_MAIN(LogLineTest)
#include "tst_log_line.moc"
