#include "platform/lxl/DPrintLog.h"

#include <QtTest>

#include <functional>
#include <stdexcept>
#include <thread>
#include <vector>

namespace {

constexpr int LongEnough = 10000;

lxl::DPrintLog& TheLog()
{
    return lxl::DPrintLog::instance();
}

void Say(int iLevel, const QString& strText)
{
    TheLog().Log("folder/source.cpp", 12, "Class::Function", "", iLevel, "%s", strText.toUtf8().constData());
}

QStringList LinesOf(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QStringList lines = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'));
    return lines.takeLast().isEmpty() ? lines : QStringList{QStringLiteral("the last line is torn")};
}

struct Caught
{
    QList<lxl::DPrintLog::Entry> entries;
    std::function<void()> also;

    static void Take(const lxl::DPrintLog::Entry& entry, void* pSelf)
    {
        auto* self = static_cast<Caught*>(pSelf);
        self->entries.append(entry);
        if (self->also)
            self->also();
    }
};

} // namespace

class DPrintLogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void aMessageIsOneLineOfTheFile();
    void messagesBelowTheLevelAreDropped();
    void theFormatIsThatOfPrintf();
    void aLongMessageIsCutAndStaysOneLine();
    void missingTextsDoNotMatter();
    void theListenerGetsTheMessageAsItIs();
    void aListenerMayLogItself();
    void aListenerThatThrowsDoesNotDisturbTheCaller();
    void aRemovedListenerIsNotCalled();
    void theFileCanBeChangedWithoutLosingALine();
    void anExistingFileIsContinued();
    void aFileThatCannotBeOpenedIsTriedAgain();
    void aFullDiskCostsLinesAndNoTime();
    void moreLinesThanCanWaitAreCountedAsLost();
    void linesOfManyThreadsStayWhole();
    void aFatalMessageIsInTheFileWhenItReturns();
    void aFullFileGivesWayToANewOne();
    void noMoreThanTheKeptFilesStay();
    void withNoneKeptTheOldLinesGo();
    void aLineLongerThanAFileStandsAlone();
    void withoutALimitOneFileHoldsAll();
    void aFileThatAnotherProgramHasBegunIsJoined();
    void aFileThatCannotBeRenamedGrowsOn();
    void manyThreadsLoseNoLineToTheChangeOfFiles();

private:
    QString Old(int iAge) const { return Path() + QLatin1Char('.') + QString::number(iAge); }
    QString Path() const { return QDir(m_directory->path()).absoluteFilePath(QStringLiteral("client.log")); }

    std::unique_ptr<QTemporaryDir> m_directory;
};

void DPrintLogTest::init()
{
    m_directory = std::make_unique<QTemporaryDir>();
    TheLog().SetStandardError(false);
    TheLog().SetMinimumLevel(lxl::LogInfo);
    TheLog().SetFile(Path());
    TheLog().SetRotation(qint64(5) * 1024 * 1024, 5);
}

void DPrintLogTest::cleanup()
{
    TheLog().SetListener(nullptr, nullptr);
    TheLog().SetFile(QString());
    QVERIFY(TheLog().Flush(LongEnough));
}

void DPrintLogTest::aMessageIsOneLineOfTheFile()
{
    Say(lxl::LogWarning, QStringLiteral("first\nsecond"));
    QVERIFY(TheLog().Flush(LongEnough));
    const QStringList lines = LinesOf(Path());
    QCOMPARE(lines.size(), 1);
    const QRegularExpression form(
        QStringLiteral("^\\d{4}-\\d\\d-\\d\\d \\d\\d:\\d\\d:\\d\\d\\.\\d{3} WARNING source\\.cpp:12 "
                       "Class::Function first\\\\nsecond$"));
    QVERIFY2(form.match(lines.at(0)).hasMatch(), qPrintable(lines.at(0)));
}

void DPrintLogTest::messagesBelowTheLevelAreDropped()
{
    Say(lxl::LogDebug, QStringLiteral("one"));
    Say(lxl::LogInfo, QStringLiteral("two"));
    TheLog().SetMinimumLevel(lxl::LogError);
    Say(lxl::LogWarning, QStringLiteral("three"));
    Say(lxl::LogError, QStringLiteral("four"));
    TheLog().SetMinimumLevel(lxl::LogTrace);
    Say(lxl::LogTrace, QStringLiteral("five"));
    QVERIFY(TheLog().Flush(LongEnough));
    QStringList words;
    const QStringList lines = LinesOf(Path());
    for (const QString& line : lines)
        words.append(line.section(QLatin1Char(' '), -1));
    QCOMPARE(words, (QStringList{QStringLiteral("two"), QStringLiteral("four"), QStringLiteral("five")}));
}

void DPrintLogTest::theFormatIsThatOfPrintf()
{
    Caught caught;
    TheLog().SetListener(&Caught::Take, &caught);
    TheLog().Log("s", 1, "f", "m", lxl::LogError, "%d of %s, %5.2f%%", 3, "f\xC3\xBCnf", 2.5);
    QCOMPARE(caught.entries.size(), 1);
    QCOMPARE(caught.entries.at(0).strMessage, QString::fromUtf8("3 of f\xC3\xBCnf,  2.50%"));
    QCOMPARE(caught.entries.at(0).strModule, QStringLiteral("m"));
}

void DPrintLogTest::aLongMessageIsCutAndStaysOneLine()
{
    Say(lxl::LogInfo, QString(1000000, QLatin1Char('x')));
    QVERIFY(TheLog().Flush(LongEnough));
    const QStringList lines = LinesOf(Path());
    QCOMPARE(lines.size(), 1);
    QVERIFY(lines.at(0).size() > 60000 && lines.at(0).size() < 70000);
}

void DPrintLogTest::missingTextsDoNotMatter()
{
    TheLog().Log(nullptr, 0, nullptr, nullptr, lxl::LogInfo, "%s", "text");
    const char* none = nullptr;
// The compilers rightly warn of a format that is no literal; here that is the subject.
#if defined(__GNUC__)
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-security"
#endif
    TheLog().Log("s", 0, "f", "", lxl::LogInfo, none);
#if defined(__GNUC__)
#pragma GCC diagnostic pop
#endif
    QVERIFY(TheLog().Flush(LongEnough));
    QCOMPARE(LinesOf(Path()).size(), 1);
}

void DPrintLogTest::theListenerGetsTheMessageAsItIs()
{
    Caught caught;
    TheLog().SetListener(&Caught::Take, &caught);
    TheLog().Log("a\\b", 1056, "A::B", "", lxl::LogError, "x\ny");
    Say(lxl::LogDebug, QStringLiteral("below the level"));
    QCOMPARE(caught.entries.size(), 1);
    const lxl::DPrintLog::Entry& entry = caught.entries.at(0);
    QCOMPARE(entry.strFile, QStringLiteral("a\\b"));
    QCOMPARE(entry.iLine, 1056);
    QCOMPARE(entry.strFunction, QStringLiteral("A::B"));
    QCOMPARE(entry.iLevel, 6);
    QCOMPARE(entry.strMessage, QStringLiteral("x\ny"));
}

void DPrintLogTest::aListenerMayLogItself()
{
    Caught caught;
    caught.also = [] { Say(lxl::LogInfo, QStringLiteral("inner")); };
    TheLog().SetListener(&Caught::Take, &caught);
    Say(lxl::LogInfo, QStringLiteral("outer"));
    QVERIFY(TheLog().Flush(LongEnough));
    QCOMPARE(caught.entries.size(), 1); // its own message comes back to nobody
    QCOMPARE(LinesOf(Path()).size(), 2);
}

void DPrintLogTest::aListenerThatThrowsDoesNotDisturbTheCaller()
{
    Caught caught;
    caught.also = [] { throw std::runtime_error("trouble"); };
    TheLog().SetListener(&Caught::Take, &caught);
    Say(lxl::LogInfo, QStringLiteral("first"));
    Say(lxl::LogInfo, QStringLiteral("second"));
    QCOMPARE(caught.entries.size(), 2);
    QVERIFY(TheLog().Flush(LongEnough));
    QCOMPARE(LinesOf(Path()).size(), 2);
}

void DPrintLogTest::aRemovedListenerIsNotCalled()
{
    Caught caught;
    TheLog().SetListener(&Caught::Take, &caught);
    TheLog().SetListener(nullptr, nullptr);
    Say(lxl::LogInfo, QStringLiteral("nobody listens"));
    QVERIFY(caught.entries.isEmpty());
}

void DPrintLogTest::theFileCanBeChangedWithoutLosingALine()
{
    const QString second = Path() + QStringLiteral(".2");
    for (int i = 0; i < 100; ++i)
        Say(lxl::LogInfo, QString::number(i));
    TheLog().SetFile(second);
    for (int i = 0; i < 50; ++i)
        Say(lxl::LogInfo, QString::number(i));
    QVERIFY(TheLog().Flush(LongEnough));
    QCOMPARE(LinesOf(Path()).size(), 100);
    QCOMPARE(LinesOf(second).size(), 50);
}

void DPrintLogTest::anExistingFileIsContinued()
{
    QFile file(Path());
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write("from before\n"), qint64(12));
    file.close();
    Say(lxl::LogInfo, QStringLiteral("now"));
    QVERIFY(TheLog().Flush(LongEnough));
    QCOMPARE(LinesOf(Path()).size(), 2);
    QCOMPARE(LinesOf(Path()).at(0), QStringLiteral("from before"));
}

void DPrintLogTest::aFileThatCannotBeOpenedIsTriedAgain()
{
    const QString folder = QDir(m_directory->path()).absoluteFilePath(QStringLiteral("later"));
    const QString path = folder + QStringLiteral("/client.log");
    TheLog().SetFile(path);
    for (int i = 0; i < 3; ++i)
        Say(lxl::LogInfo, QStringLiteral("lost"));
    QVERIFY(TheLog().Flush(LongEnough));
    QVERIFY(QDir().mkpath(folder));
    Say(lxl::LogInfo, QStringLiteral("written"));
    QVERIFY(TheLog().Flush(LongEnough));
    const QStringList lines = LinesOf(path);
    QCOMPARE(lines.size(), 2);
    QCOMPARE(lines.at(0), QStringLiteral("(3 messages could not be written)"));
    QVERIFY(lines.at(1).endsWith(QLatin1String(" written")));
}

void DPrintLogTest::aFullDiskCostsLinesAndNoTime()
{
    // A device that is always full where the system has one, else a folder, which cannot be written either.
    const QString full = QStringLiteral("/dev/full");
    TheLog().SetFile(QFileInfo::exists(full) ? full : m_directory->path());
    for (int i = 0; i < 1000; ++i)
        Say(lxl::LogInfo, QStringLiteral("lost"));
    QVERIFY(TheLog().Flush(LongEnough));
    TheLog().SetFile(Path());
    Say(lxl::LogInfo, QStringLiteral("there is room again"));
    QVERIFY(TheLog().Flush(LongEnough));
    const QStringList lines = LinesOf(Path());
    QCOMPARE(lines.size(), 2);
    QCOMPARE(lines.at(0), QStringLiteral("(1000 messages could not be written)"));
}

void DPrintLogTest::moreLinesThanCanWaitAreCountedAsLost()
{
    constexpr int count = 60000;
    for (int i = 0; i < count; ++i)
        Say(lxl::LogInfo, QStringLiteral("line"));
    QVERIFY(TheLog().Flush(LongEnough));
    Say(lxl::LogInfo, QStringLiteral("line")); // with it the last losses are told
    QVERIFY(TheLog().Flush(LongEnough));
    int accounted = 0;
    const QRegularExpression lost(QStringLiteral("^\\((\\d+) messages could not be written\\)$"));
    const QStringList lines = LinesOf(Path());
    for (const QString& line : lines) {
        const QRegularExpressionMatch match = lost.match(line);
        accounted += match.hasMatch() ? match.captured(1).toInt() : 1;
    }
    QCOMPARE(accounted, count + 1);
}

void DPrintLogTest::linesOfManyThreadsStayWhole()
{
    constexpr int threads = 8;
    constexpr int each = 500;
    std::vector<std::thread> running;
    running.reserve(threads);
    for (int thread = 0; thread < threads; ++thread) {
        running.emplace_back([thread] {
            for (int i = 0; i < each; ++i)
                Say(lxl::LogInfo, QStringLiteral("thread%1 number%2").arg(thread).arg(i));
        });
    }
    for (std::thread& thread : running)
        thread.join();
    QVERIFY(TheLog().Flush(LongEnough));
    const QStringList lines = LinesOf(Path());
    QCOMPARE(lines.size(), threads * each);
    QVector<int> next(threads, 0);
    const QRegularExpression form(QStringLiteral("Class::Function thread(\\d) number(\\d+)$"));
    for (const QString& line : lines) {
        const QRegularExpressionMatch match = form.match(line);
        QVERIFY2(match.hasMatch(), qPrintable(line));
        QCOMPARE(match.captured(2).toInt(), next[match.captured(1).toInt()]++);
    }
}

void DPrintLogTest::aFatalMessageIsInTheFileWhenItReturns()
{
    Say(lxl::LogFatal, QStringLiteral("the end"));
    QCOMPARE(LinesOf(Path()).size(), 1);
}

namespace {

/// The last words of all lines of a file.
QStringList WordsOf(const QString& path)
{
    QStringList words;
    const QStringList lines = LinesOf(path);
    for (const QString& line : lines)
        words.append(line.section(QLatin1Char(' '), -1));
    return words;
}

} // namespace

void DPrintLogTest::aFullFileGivesWayToANewOne()
{
    Say(lxl::LogInfo, QStringLiteral("one"));
    QVERIFY(TheLog().Flush(LongEnough));
    const qint64 line = QFileInfo(Path()).size();
    TheLog().SetRotation(3 * line, 2);
    for (const char* word : {"two", "six", "ten", "who"})
        Say(lxl::LogInfo, QLatin1String(word));
    QVERIFY(TheLog().Flush(LongEnough));
    // Three lines fill a file to its last byte; the fourth begins the next one.
    QCOMPARE(WordsOf(Old(1)),
             (QStringList{QStringLiteral("one"), QStringLiteral("two"), QStringLiteral("six")}));
    QCOMPARE(WordsOf(Path()), (QStringList{QStringLiteral("ten"), QStringLiteral("who")}));
    QVERIFY(!QFileInfo::exists(Old(2)));
}

void DPrintLogTest::noMoreThanTheKeptFilesStay()
{
    TheLog().SetRotation(1, 2); // every line a file of its own
    for (int i = 1; i <= 5; ++i)
        Say(lxl::LogInfo, QString::number(i));
    QVERIFY(TheLog().Flush(LongEnough));
    QCOMPARE(WordsOf(Path()), QStringList{QStringLiteral("5")});
    QCOMPARE(WordsOf(Old(1)), QStringList{QStringLiteral("4")});
    QCOMPARE(WordsOf(Old(2)), QStringList{QStringLiteral("3")});
    QCOMPARE(QDir(m_directory->path()).entryList(QDir::Files).size(), 3);
}

void DPrintLogTest::withNoneKeptTheOldLinesGo()
{
    TheLog().SetRotation(1, 0);
    for (int i = 1; i <= 3; ++i)
        Say(lxl::LogInfo, QString::number(i));
    QVERIFY(TheLog().Flush(LongEnough));
    QCOMPARE(WordsOf(Path()), QStringList{QStringLiteral("3")});
    QCOMPARE(QDir(m_directory->path()).entryList(QDir::Files).size(), 1);
}

void DPrintLogTest::aLineLongerThanAFileStandsAlone()
{
    TheLog().SetRotation(200, 5);
    Say(lxl::LogInfo, QStringLiteral("before"));
    Say(lxl::LogInfo, QString(1000, QLatin1Char('x')));
    Say(lxl::LogInfo, QStringLiteral("after"));
    QVERIFY(TheLog().Flush(LongEnough));
    QCOMPARE(WordsOf(Old(2)), QStringList{QStringLiteral("before")});
    QCOMPARE(WordsOf(Old(1)), QStringList{QString(1000, QLatin1Char('x'))});
    QCOMPARE(WordsOf(Path()), QStringList{QStringLiteral("after")});
}

void DPrintLogTest::withoutALimitOneFileHoldsAll()
{
    TheLog().SetRotation(0, 5);
    for (int i = 0; i < 1000; ++i)
        Say(lxl::LogInfo, QString::number(i));
    QVERIFY(TheLog().Flush(LongEnough));
    QCOMPARE(LinesOf(Path()).size(), 1000);
    QCOMPARE(QDir(m_directory->path()).entryList(QDir::Files).size(), 1);
}

void DPrintLogTest::aFileThatAnotherProgramHasBegunIsJoined()
{
#if defined(Q_OS_WIN)
    return; // there an open file cannot be renamed by anybody
#else
    Say(lxl::LogInfo, QString(500, QLatin1Char('x')));
    QVERIFY(TheLog().Flush(LongEnough));
    // The other program puts the full file aside, while this one still has it open.
    QVERIFY(QFile::rename(Path(), Old(1)));
    QFile other(Path());
    QVERIFY(other.open(QIODevice::WriteOnly));
    QCOMPARE(other.write("theirs\n"), qint64(7));
    other.close();
    TheLog().SetRotation(600, 5);
    Say(lxl::LogInfo, QString(100, QLatin1Char('y')));
    QVERIFY(TheLog().Flush(LongEnough));
    QCOMPARE(WordsOf(Path()), (QStringList{QStringLiteral("theirs"), QString(100, QLatin1Char('y'))}));
    QCOMPARE(WordsOf(Old(1)), QStringList{QString(500, QLatin1Char('x'))});
    QVERIFY(!QFileInfo::exists(Old(2)));
#endif
}

void DPrintLogTest::aFileThatCannotBeRenamedGrowsOn()
{
    // A folder stands where the old file would go.
    QVERIFY(QDir().mkpath(Old(1) + QStringLiteral("/inside")));
    TheLog().SetRotation(1, 1);
    for (int i = 0; i < 3; ++i)
        Say(lxl::LogInfo, QString::number(i));
    QVERIFY(TheLog().Flush(LongEnough));
    QCOMPARE(WordsOf(Path()), (QStringList{QStringLiteral("0"), QStringLiteral("1"), QStringLiteral("2")}));
}

void DPrintLogTest::manyThreadsLoseNoLineToTheChangeOfFiles()
{
    constexpr int threads = 4;
    constexpr int each = 250;
    TheLog().SetRotation(4096, 1000);
    std::vector<std::thread> running;
    running.reserve(threads);
    for (int thread = 0; thread < threads; ++thread) {
        running.emplace_back([thread] {
            for (int i = 0; i < each; ++i)
                Say(lxl::LogInfo, QStringLiteral("%1").arg(thread * each + i));
        });
    }
    for (std::thread& thread : running)
        thread.join();
    QVERIFY(TheLog().Flush(LongEnough));
    QSet<QString> words;
    const QFileInfoList files = QDir(m_directory->path()).entryInfoList(QDir::Files);
    for (const QFileInfo& file : files) {
        QVERIFY(file.size() <= 4096);
        const QStringList found = WordsOf(file.filePath());
        for (const QString& word : found)
            words.insert(word);
    }
    QVERIFY(files.size() > 10);
    QCOMPARE(words.size(), threads * each);
}

QTEST_APPLESS_MAIN(DPrintLogTest)
#include "tst_dprint_log.moc"
