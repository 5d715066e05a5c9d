#include "client/store/UncleanEndMarker.h"

#include "tests/client_store/SchemeFiles.h"

#include <QCoreApplication>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <cstdio>
#include <memory>

/// What is left of a program that ends in one way or the other. The test program itself is that program when
/// it is started with the name of a database.
class UncleanEndMarkerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void theFirstFindsNothing();
    void aCleanEndLeavesNothing();
    void aKilledProgramIsNoticed();
    void aLivingProgramIsNotDisturbed();
    void anUncleanEndIsRememberedUntilTheFileIsFoundSound();
    void oneOfTwoThatIsKilledIsNoticed();
    void severalThatWereKilledAreForgottenTogether();
    void whileOneChecksAnotherNeedNot();
    void itTellsWhetherAnybodyElseIsThere();
    void filesOfOthersAreLeftAlone_data();
    void filesOfOthersAreLeftAlone();
    void aFolderThatIsMissingIsNotMade();
    void itStaysEmpty();
    void anotherDatabaseHasItsOwn();

private:
    QStringList Left() const { return SchemeFiles::Names(m_folder->path()); }
    std::unique_ptr<QProcess> StartProgram() const
    {
        auto process = std::make_unique<QProcess>();
        process->start(QCoreApplication::applicationFilePath(), {QStringLiteral("--work-with"), m_strFile});
        if (!process->waitForReadyRead() || process->readAllStandardOutput().trimmed() != "working")
            qFatal("the program that is to be killed does not start");
        return process;
    }
    static void Kill(QProcess& process)
    {
        process.kill();
        process.waitForFinished();
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_strFile;
};

void UncleanEndMarkerTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_strFile = QDir(m_folder->path()).absoluteFilePath(QStringLiteral("AlarmScheme.db"));
}

void UncleanEndMarkerTest::theFirstFindsNothing()
{
    const UncleanEndMarker marker(m_strFile);
    QVERIFY(!marker.IsUnclean());
    QVERIFY(!marker.IsAnybodyElseThere());
    QCOMPARE(Left(), QStringList{QStringLiteral("AlarmScheme.db.open-1")});
}

void UncleanEndMarkerTest::aCleanEndLeavesNothing()
{
    {
        const UncleanEndMarker marker(m_strFile);
    }
    QVERIFY(Left().isEmpty());
    QVERIFY(!UncleanEndMarker(m_strFile).IsUnclean());
    const auto program = StartProgram();
    program->closeWriteChannel(); // which it takes as the wish that it ends
    QVERIFY(program->waitForFinished());
    QVERIFY(Left().isEmpty());
}

void UncleanEndMarkerTest::aKilledProgramIsNoticed()
{
    Kill(*StartProgram());
    QCOMPARE(Left().size(), 1);
    const UncleanEndMarker marker(m_strFile);
    QVERIFY(marker.IsUnclean());
    QVERIFY(!marker.IsAnybodyElseThere());
}

void UncleanEndMarkerTest::aLivingProgramIsNotDisturbed()
{
    const auto program = StartProgram();
    {
        const UncleanEndMarker marker(m_strFile);
        QVERIFY(!marker.IsUnclean());
        QCOMPARE(Left().size(), 2);
    }
    // Its own marker stays, and still tells of its end.
    QCOMPARE(Left().size(), 1);
    Kill(*program);
    QVERIFY(UncleanEndMarker(m_strFile).IsUnclean());
}

void UncleanEndMarkerTest::anUncleanEndIsRememberedUntilTheFileIsFoundSound()
{
    Kill(*StartProgram());
    for (int i = 0; i < 3; ++i)
        QVERIFY(UncleanEndMarker(m_strFile).IsUnclean());
    {
        UncleanEndMarker marker(m_strFile);
        marker.FoundSound();
        QVERIFY(!marker.IsUnclean());
    }
    QVERIFY(!UncleanEndMarker(m_strFile).IsUnclean());
    QVERIFY(Left().isEmpty());
}

void UncleanEndMarkerTest::oneOfTwoThatIsKilledIsNoticed()
{
    const auto first = StartProgram();
    const auto second = StartProgram();
    Kill(*first);
    {
        UncleanEndMarker marker(m_strFile);
        QVERIFY(marker.IsUnclean());
        QVERIFY(marker.IsAnybodyElseThere());
        marker.FoundSound();
    }
    QVERIFY(!UncleanEndMarker(m_strFile).IsUnclean());
    Kill(*second);
    QVERIFY(UncleanEndMarker(m_strFile).IsUnclean());
}

void UncleanEndMarkerTest::severalThatWereKilledAreForgottenTogether()
{
    const auto first = StartProgram();
    const auto second = StartProgram();
    Kill(*first);
    Kill(*second);
    QCOMPARE(Left().size(), 2);
    UncleanEndMarker(m_strFile).FoundSound();
    QVERIFY(Left().isEmpty());
}

void UncleanEndMarkerTest::whileOneChecksAnotherNeedNot()
{
    Kill(*StartProgram());
    auto checking = std::make_unique<UncleanEndMarker>(m_strFile);
    QVERIFY(checking->IsUnclean());
    QVERIFY(!UncleanEndMarker(m_strFile).IsUnclean());
    // When the check does not come to an end, the next one has to do it.
    checking.reset();
    QVERIFY(UncleanEndMarker(m_strFile).IsUnclean());
}

void UncleanEndMarkerTest::itTellsWhetherAnybodyElseIsThere()
{
    const UncleanEndMarker marker(m_strFile);
    {
        const UncleanEndMarker other(m_strFile);
        QVERIFY(marker.IsAnybodyElseThere() && other.IsAnybodyElseThere());
    }
    QVERIFY(!marker.IsAnybodyElseThere());
    const auto program = StartProgram();
    QVERIFY(marker.IsAnybodyElseThere());
    Kill(*program);
    QVERIFY(!marker.IsAnybodyElseThere());
    // Asking takes nothing away.
    QCOMPARE(Left().size(), 2);
}

void UncleanEndMarkerTest::filesOfOthersAreLeftAlone_data()
{
    QTest::addColumn<QString>("name");
    for (const char* name :
         {"AlarmScheme.db.open-1", "AlarmScheme.db.open-x", "AlarmScheme.db.open-", "AlarmScheme.db.open-01",
          "AlarmScheme.db.open-100", "AlarmScheme.db.open-1.txt"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

void UncleanEndMarkerTest::filesOfOthersAreLeftAlone()
{
    QFETCH(QString, name);
    const QString path = QDir(m_folder->path()).filePath(name);
    const QByteArray letter = QByteArray("This is a letter.\n").repeated(100);
    SchemeFiles::Write(path, letter);
    QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral("AlarmScheme.db.open-7")));
    {
        const UncleanEndMarker marker(m_strFile);
        QVERIFY(!marker.IsUnclean());
        QCOMPARE(Left().size(), 3);
    }
    QCOMPARE(SchemeFiles::Bytes(path), letter);
    QCOMPARE(Left().size(), 2);
}

void UncleanEndMarkerTest::aFolderThatIsMissingIsNotMade()
{
    const QString folder = QDir(m_folder->path()).filePath(QStringLiteral("missing"));
    {
        const UncleanEndMarker marker(folder + QStringLiteral("/AlarmScheme.db"));
        QVERIFY(!marker.IsUnclean() && !marker.IsAnybodyElseThere());
    }
    QVERIFY(Left().isEmpty());
}

void UncleanEndMarkerTest::itStaysEmpty()
{
    const auto program = StartProgram();
    const UncleanEndMarker marker(m_strFile);
    const QStringList names = Left();
    QCOMPARE(names.size(), 2);
    for (const QString& name : names)
        QCOMPARE(QFileInfo(QDir(m_folder->path()), name).size(), 0);
    Kill(*program);
}

void UncleanEndMarkerTest::anotherDatabaseHasItsOwn()
{
    Kill(*StartProgram());
    QVERIFY(!UncleanEndMarker(m_strFile + QStringLiteral("2")).IsUnclean());
    QVERIFY(UncleanEndMarker(m_strFile).IsUnclean());
}

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == QLatin1String("--work-with")) {
        const UncleanEndMarker marker(arguments.value(2));
        std::puts("working");
        std::fflush(stdout);
        while (std::getchar() != EOF) {
        }
        return 0;
    }
    UncleanEndMarkerTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_unclean_end_marker.moc"
