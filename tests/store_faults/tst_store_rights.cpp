#include "tests/store_faults/FaultTestKit.h"

#include <QDir>
#include <QFile>
#include <QtTest>

#ifdef Q_OS_LINUX
#include <unistd.h>
#endif

namespace {

/// During its life the program works with the rights of an ordinary user, to whom everything below a folder
/// belongs: rights do not hold back a superuser.
class OrdinaryUser
{
public:
    explicit OrdinaryUser(const QString& strFolder)
    {
#ifdef Q_OS_LINUX
        if (::getuid() != 0)
            return;
        QStringList paths{strFolder};
        const QDir folder(QDir(strFolder).filePath(QStringLiteral("Database")));
        paths.append(folder.path());
        const QStringList names = folder.entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
        for (const QString& strName : names)
            paths.append(folder.filePath(strName));
        for (const QString& strPath : qAsConst(paths)) {
            if (::chown(QFile::encodeName(strPath).constData(), Somebody, Somebody) != 0)
                qFatal("the files cannot be given away");
        }
        if (::setresuid(Somebody, Somebody, 0) != 0)
            qFatal("the rights cannot be given up");
#else
        Q_UNUSED(strFolder)
#endif
    }
    ~OrdinaryUser()
    {
#ifdef Q_OS_LINUX
        if (::geteuid() == Somebody && ::setresuid(0, 0, 0) != 0)
            qFatal("the rights do not come back");
#endif
    }
    OrdinaryUser(const OrdinaryUser&) = delete;
    OrdinaryUser& operator=(const OrdinaryUser&) = delete;

private:
    static constexpr unsigned Somebody = 65534;
};

} // namespace

/// What a client says when its rights on the database change while it runs.
class StoreRightsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theOperatorIsToldOfTheRightsAndNotOfABrokenDisk_data();
    void theOperatorIsToldOfTheRightsAndNotOfABrokenDisk();
};

void StoreRightsTest::theOperatorIsToldOfTheRightsAndNotOfABrokenDisk_data()
{
    QTest::addColumn<bool>("folder");
    QTest::newRow("files") << false;
    QTest::newRow("files and folder") << true;
}

void StoreRightsTest::theOperatorIsToldOfTheRightsAndNotOfABrokenDisk()
{
    QFETCH(bool, folder);
    const LogCatcher log;
    const StoreFolder store;
    const SchemeChange change = FaultTestKit::FewSchemes();
    FaultTestKit::MakeFile(change.before);
    const OrdinaryUser user(store.Root());
    AlarmSchemeStoreBackend backend;
    AlarmInfoMap map;
    QCOMPARE(backend.Load(map), 0);
    QCOMPARE(SaveAndWait(backend, map), 0); // the journal is there from now on

    const QDir database = QFileInfo(store.File()).dir();
    const QStringList names = database.entryList(QDir::Files);
    const QFile::Permissions readOnly = QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther;
    for (const QString& strName : names)
        QVERIFY(QFile::setPermissions(database.filePath(strName), readOnly));
    if (folder)
        QVERIFY(QFile::setPermissions(database.path(), readOnly | QFile::ExeOwner));
    const QByteArray before = store.Bytes();

    QCOMPARE(SaveAndWait(backend, change.after), -1);
    const SchemeStoreOutcome outcome = backend.LastOutcome();

    QVERIFY(QFile::setPermissions(database.path(), readOnly | QFile::WriteOwner | QFile::ExeOwner));
    for (const QString& strName : names)
        QVERIFY(QFile::setPermissions(database.filePath(strName), readOnly | QFile::WriteOwner));
    QVERIFY2(outcome.eReason == SchemeStoreOutcome::Reason::ReadOnly, qPrintable(outcome.Text()));
    QCOMPARE(store.Bytes(), before);
    QCOMPARE(SaveAndWait(backend, change.after), 0);
    QCOMPARE(FaultTestKit::Differs(change.stored), QString());
}

QTEST_GUILESS_MAIN(StoreRightsTest)
#include "tst_store_rights.moc"
