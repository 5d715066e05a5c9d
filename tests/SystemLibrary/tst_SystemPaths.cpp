#include "platform/SystemLibrary/SystemPaths.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

class tst_SystemPaths : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void withoutADataDirectoryThereIsNoDatabaseDirectory()
    {
        // The first test to run, before any directory was set.
        QCOMPARE(SystemPaths::DataDirectory(), QString());
        QCOMPARE(QGetDatabaseDirPath(), QString());
    }

    void cleanup()
    {
        QDir::setCurrent(m_strStart);
        SystemPaths::SetDataDirectory(QString());
    }

    void init() { m_strStart = QDir::currentPath(); }

    void theDatabasesLieInASubFolder()
    {
        const QTemporaryDir directory;
        QVERIFY(directory.isValid());
        SystemPaths::SetDataDirectory(directory.path());
        QCOMPARE(SystemPaths::DataDirectory(), directory.path());
        QCOMPARE(QGetDatabaseDirPath(), directory.path() + QStringLiteral("/Database"));
        QVERIFY(!QFileInfo::exists(QGetDatabaseDirPath())); // asking for it makes nothing
    }

    void aTrailingSlashChangesNothing()
    {
        const QTemporaryDir directory;
        SystemPaths::SetDataDirectory(directory.path() + QStringLiteral("/"));
        QCOMPARE(QDir(SystemPaths::DataDirectory()), QDir(directory.path()));
        QCOMPARE(QGetDatabaseDirPath(), directory.path() + QStringLiteral("/Database"));
        SystemPaths::SetDataDirectory(directory.path() + QStringLiteral("//"));
        QCOMPARE(QGetDatabaseDirPath(), directory.path() + QStringLiteral("/Database"));
    }

    void aRelativeDataDirectoryIsMadeAbsoluteWhenItIsSet()
    {
        const QTemporaryDir start;
        const QTemporaryDir elsewhere;
        QVERIFY(QDir::setCurrent(start.path()));
        const QString here = QDir::currentPath();
        SystemPaths::SetDataDirectory(QStringLiteral("data"));
        QVERIFY(QDir::setCurrent(elsewhere.path())); // the client does so to find its skin
        QCOMPARE(SystemPaths::DataDirectory(), here + QStringLiteral("/data"));
        QCOMPARE(QGetDatabaseDirPath(), here + QStringLiteral("/data/Database"));
    }

    void parentStepsAreResolved()
    {
        const QTemporaryDir directory;
        SystemPaths::SetDataDirectory(directory.path() + QStringLiteral("/a/../b/./c"));
        QCOMPARE(QGetDatabaseDirPath(), directory.path() + QStringLiteral("/b/c/Database"));
        QVERIFY(QDir::setCurrent(directory.path()));
        QVERIFY(QDir::current().mkdir(QStringLiteral("inner")));
        QVERIFY(QDir::setCurrent(QStringLiteral("inner")));
        const QString expected = QFileInfo(QDir::currentPath()).path() + QStringLiteral("/data/Database");
        SystemPaths::SetDataDirectory(QStringLiteral("../data"));
        QCOMPARE(QGetDatabaseDirPath(), expected);
    }

    void anEmptyDirectoryMeansNone()
    {
        const QTemporaryDir directory;
        SystemPaths::SetDataDirectory(directory.path());
        SystemPaths::SetDataDirectory(QString());
        QCOMPARE(SystemPaths::DataDirectory(), QString());
        QCOMPARE(QGetDatabaseDirPath(), QString());
    }

    void namesInEveryScriptWork()
    {
        const QTemporaryDir directory;
        const QString folder =
            directory.path() + QStringLiteral("/\u95e8\u7981 \u0434\u0432\u0435\u0440\u044c");
        SystemPaths::SetDataDirectory(folder);
        QCOMPARE(QGetDatabaseDirPath(), folder + QStringLiteral("/Database"));
    }

    void aFileIsJoinedToItsDirectory_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("directory");
        QTest::addColumn<QString>("path");
        const QString root = QDir::rootPath();
        const QString db = QStringLiteral("AlarmScheme.db");
        QTest::newRow("plain") << db << root + QStringLiteral("data")
                               << root + QStringLiteral("data/AlarmScheme.db");
        QTest::newRow("trailing slash")
            << db << root + QStringLiteral("data/") << root + QStringLiteral("data/AlarmScheme.db");
        QTest::newRow("parent steps")
            << db << root + QStringLiteral("data/a/..") << root + QStringLiteral("data/AlarmScheme.db");
        QTest::newRow("parent step in the name")
            << QStringLiteral("../AlarmScheme.db") << root + QStringLiteral("data/a")
            << root + QStringLiteral("data/AlarmScheme.db");
        QTest::newRow("folder in the name")
            << QStringLiteral("a/AlarmScheme.db") << root + QStringLiteral("data")
            << root + QStringLiteral("data/a/AlarmScheme.db");
        QTest::newRow("the root") << db << root << root + db;
    }

    void aFileIsJoinedToItsDirectory()
    {
        QFETCH(QString, file);
        QFETCH(QString, directory);
        QTEST(QGetAbsolutePath(file, directory), "path");
    }

    void aRelativeDirectoryCountsFromTheWorkingDirectory()
    {
        const QTemporaryDir directory;
        QVERIFY(QDir::setCurrent(directory.path()));
        QCOMPARE(QGetAbsolutePath(QStringLiteral("a.db"), QStringLiteral("data")),
                 QDir::currentPath() + QStringLiteral("/data/a.db"));
    }

    void theStoresPathIsAbsolute()
    {
        const QTemporaryDir directory;
        SystemPaths::SetDataDirectory(directory.path());
        const QString path = QGetAbsolutePath(QStringLiteral("AlarmScheme.db"), QGetDatabaseDirPath());
        QVERIFY(QDir::isAbsolutePath(path));
        QCOMPARE(path, directory.path() + QStringLiteral("/Database/AlarmScheme.db"));
    }

private:
    QString m_strStart;
};

QTEST_GUILESS_MAIN(tst_SystemPaths)
#include "tst_SystemPaths.moc"
