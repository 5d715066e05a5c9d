#include "scheme_services/site/SiteTable.h"
#include "tests/SystemLibrary/FullDisk.h"
#include "tests/site_exchange/SiteSamples.h"
#include "tests/tools/CommandKit.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTest>

#include <cerrno>
#include <memory>

class TestSiteCommands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void aDryRunTellsLineByLineAndChangesNothing();
    void anImportChangesTheSiteAndKeepsTheOldOne();
    void theSameSiteIsNothingToReport();
    void aFirstSiteIsMade();
    void theClientsOwnDirectoryIsTheDefault();
    void problemsNameTheirLinesAndChangeNothing();
    void jsonTellsTheSame();
    void failuresChangeNothing_data();
    void failuresChangeNothing();
    void wrongUseIsTold_data();
    void wrongUseIsTold();
    void anExportImportsAsNothing_data();
    void anExportImportsAsNothing();
    void anExportGoesToTheStandardOutput();
    void aFullDiskIsToldAsSuch_data();
    void aFullDiskIsToldAsSuch();
    void whatIsNoFileIsNotReplaced();

private:
    QString File(const char* szName) const { return m_directory->filePath(QLatin1String(szName)); }
    void Write(const char* szName, const QByteArray& text) const
    {
        QFile file(File(szName));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(text), qint64(text.size()));
    }
    QByteArray Content(const QString& strFile) const
    {
        QFile file(strFile);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("none");
    }
    int Files() const { return QDir(m_directory->path()).entryList(QDir::Files).size(); }
    QStringList Import(const QStringList& more = {}) const
    {
        return QStringList{QStringLiteral("import-site"), File("new.csv"), QStringLiteral("--site"),
                           File("site.json")} +
               more;
    }

    std::unique_ptr<QTemporaryDir> m_directory;
    QByteArray m_before;
};

void TestSiteCommands::init()
{
    m_directory = std::make_unique<QTemporaryDir>();
    m_before = SiteFile::ToText(SmallSite());
    Write("site.json", m_before);
    Site site = SmallSite();
    site.devices[0].strName = QStringLiteral("Gate");
    site.devices.removeLast();
    VantaLogic::DeviceInfo fresh;
    fresh.iDeviceId = 777;
    fresh.iDeviceType = 12;
    fresh.strName = QStringLiteral("Fresh");
    site.devices.append(fresh);
    Write("new.csv", SiteTable::ToText(site));
}

void TestSiteCommands::aDryRunTellsLineByLineAndChangesNothing()
{
    const Run run(Import({QStringLiteral("--dry-run")}));
    QCOMPARE(run.code, 1);
    QVERIFY(run.err.isEmpty());
    const QStringList lines = run.out.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    QCOMPARE(lines.size(), 4);
    QVERIFY(lines.at(0).contains(QLatin1String("100")) && lines.at(0).contains(QLatin1String("renamed")));
    QVERIFY(lines.at(1).contains(QLatin1String("777")) && lines.at(1).contains(QLatin1String("added")));
    QVERIFY(lines.at(2).contains(QLatin1String("9223372036854775807")) &&
            lines.at(2).contains(QLatin1String("removed")));
    QCOMPARE(Content(File("site.json")), m_before);
    QCOMPARE(Files(), 2);
}

void TestSiteCommands::anImportChangesTheSiteAndKeepsTheOldOne()
{
    const Run run(Import());
    QCOMPARE(run.code, 0);
    QVERIFY(run.out.contains(QLatin1String("site.json.bak")));
    QCOMPARE(Content(File("site.json.bak")), m_before);
    Site site;
    SiteFileError error;
    QVERIFY(SiteFile::Read(File("site.json"), site, error));
    QCOMPARE(site.devices.at(0).strName, QStringLiteral("Gate"));
    QCOMPARE(site.devices.at(0).channels.size(), 3);
    QCOMPARE(site.devices.at(1).iDeviceId, int64_t(777));
}

void TestSiteCommands::theSameSiteIsNothingToReport()
{
    Write("new.csv", SiteTable::ToText(SmallSite()));
    for (const QStringList& more : {QStringList(), QStringList{QStringLiteral("--dry-run")}}) {
        const Run run(Import(more));
        QCOMPARE(run.code, 0);
        QCOMPARE(Files(), 2);
        QCOMPARE(Content(File("site.json")), m_before);
    }
}

void TestSiteCommands::aFirstSiteIsMade()
{
    QVERIFY(QFile::remove(File("site.json")));
    QCOMPARE(Run(Import({QStringLiteral("--dry-run")})).code, 1);
    QCOMPARE(Files(), 1);
    QCOMPARE(Run(Import()).code, 0);
    QCOMPARE(Files(), 2);
    QVERIFY(Content(File("site.json")).contains("Gate"));
}

void TestSiteCommands::theClientsOwnDirectoryIsTheDefault()
{
    const QString strData = File("data");
    const QStringList import{QStringLiteral("import-site"), File("new.csv")};
    QCOMPARE(Run(import, strData).code, 0);
    QVERIFY(Content(strData + QStringLiteral("/site.json")).contains("Gate"));
    const QString strOther = File("other");
    QCOMPARE(Run(import + QStringList{QStringLiteral("--data-dir"), strOther}, strData).code, 0);
    QVERIFY(Content(strOther + QStringLiteral("/site.json")).contains("Gate"));
    const Run run({QStringLiteral("export-site"), QStringLiteral("--data-dir"), strOther});
    QCOMPARE(run.code, 0);
    QVERIFY(run.out.contains(QLatin1String("Gate")));
}

void TestSiteCommands::problemsNameTheirLinesAndChangeNothing()
{
    Write("new.csv", "record,id,name,type\ndevice,1,A,12\ndevice,1,B,12\nthing,2,C,12\n");
    for (const QStringList& more : {QStringList(), QStringList{QStringLiteral("--dry-run")}}) {
        const Run run(Import(more));
        QCOMPARE(run.code, 3);
        QVERIFY(run.out.isEmpty());
        QCOMPARE(run.err.count(QLatin1Char('\n')), 3);
        QVERIFY(run.err.contains(QLatin1String("line 3")));
        QVERIFY(run.err.contains(QLatin1String("line 4")));
        QCOMPARE(Content(File("site.json")), m_before);
        QCOMPARE(Files(), 2);
    }
}

void TestSiteCommands::jsonTellsTheSame()
{
    const QStringList json{QStringLiteral("--format"), QStringLiteral("json")};
    const Run dry(Import(json + QStringList{QStringLiteral("--dry-run")}));
    QCOMPARE(dry.code, 1);
    const QJsonObject told = QJsonDocument::fromJson(dry.out.toUtf8()).object();
    const QJsonArray changes = told.value(QStringLiteral("changes")).toArray();
    QCOMPARE(changes.size(), 3);
    const QJsonObject removed = changes.at(2).toObject();
    QCOMPARE(removed.value(QStringLiteral("change")).toString(), QStringLiteral("removed"));
    QCOMPARE(removed.value(QStringLiteral("record")).toString(), QStringLiteral("device"));
    QCOMPARE(removed.value(QStringLiteral("id")).toString(), QStringLiteral("9223372036854775807"));
    QCOMPARE(told.value(QStringLiteral("renamed")).toInt(), 1);
    QVERIFY(told.value(QStringLiteral("dryRun")).toBool());

    const Run done(Import(json));
    QCOMPARE(done.code, 0);
    QVERIFY(QJsonDocument::fromJson(done.out.toUtf8())
                .object()
                .value(QStringLiteral("backup"))
                .toString()
                .endsWith(QLatin1String("site.json.bak")));

    Write("new.csv", "\xff");
    const Run wrong(Import(json));
    QCOMPARE(wrong.code, 3);
    const QJsonArray problems =
        QJsonDocument::fromJson(wrong.out.toUtf8()).object().value(QStringLiteral("problems")).toArray();
    QCOMPARE(problems.size(), 1);
    QCOMPARE(problems.at(0).toObject().value(QStringLiteral("line")).toInt(), 1);
}

void TestSiteCommands::failuresChangeNothing_data()
{
    QTest::addColumn<QStringList>("arguments");
    const QString strImport = QStringLiteral("import-site");
    const QString strSite = QStringLiteral("--site");
    QTest::newRow("no such file") << QStringList{strImport, QStringLiteral("gone.csv"), strSite,
                                                 QStringLiteral("site.json")};
    QTest::newRow("a directory") << QStringList{strImport, QStringLiteral("."), strSite,
                                                QStringLiteral("site.json")};
    QTest::newRow("the site is none")
        << QStringList{strImport, QStringLiteral("new.csv"), strSite, QStringLiteral("new.csv")};
    QTest::newRow("the site is a directory")
        << QStringList{strImport, QStringLiteral("new.csv"), strSite, QStringLiteral(".")};
    QTest::newRow("no site to export")
        << QStringList{QStringLiteral("export-site"), strSite, QStringLiteral("gone.json")};
    QTest::newRow("nowhere to export to")
        << QStringList{QStringLiteral("export-site"), strSite, QStringLiteral("site.json"),
                       QStringLiteral("--output"), QStringLiteral("no/such/a.csv")};
}

void TestSiteCommands::failuresChangeNothing()
{
    QFETCH(QStringList, arguments);
    const QString strBefore = QDir::currentPath();
    QVERIFY(QDir::setCurrent(m_directory->path()));
    const Run run(arguments);
    QVERIFY(QDir::setCurrent(strBefore));
    QCOMPARE(run.code, 3);
    QVERIFY(!run.err.isEmpty());
    QVERIFY(run.out.isEmpty());
    QCOMPARE(Content(File("site.json")), m_before);
    QCOMPARE(Files(), 2);
}

void TestSiteCommands::wrongUseIsTold_data()
{
    QTest::addColumn<QString>("strLine");
    QTest::newRow("no file") << QStringLiteral("import-site");
    QTest::newRow("two files") << QStringLiteral("import-site a.csv b.csv");
    QTest::newRow("an unknown option") << QStringLiteral("import-site a.csv --force");
    QTest::newRow("two sites") << QStringLiteral("import-site a.csv --site s.json --data-dir d");
    QTest::newRow("two sites to export") << QStringLiteral("export-site --site s.json --data-dir d");
    QTest::newRow("a strange report") << QStringLiteral("import-site a.csv --format csv");
    QTest::newRow("a strange form") << QStringLiteral("export-site --format text");
    QTest::newRow("a file too many") << QStringLiteral("export-site a.csv");
    QTest::newRow("the site over itself") << QStringLiteral("export-site --site s.json --output ./s.json");
}

void TestSiteCommands::wrongUseIsTold()
{
    QFETCH(QString, strLine);
    const Run run(strLine.split(QLatin1Char(' ')));
    QCOMPARE(run.code, 2);
    QVERIFY(!run.err.isEmpty());
    QVERIFY(run.out.isEmpty());
}

void TestSiteCommands::anExportImportsAsNothing_data()
{
    QTest::addColumn<QString>("strFile");
    QTest::addColumn<QString>("strFormat");
    QTest::addColumn<bool>("bTable");
    QTest::newRow("by the name, a table") << QStringLiteral("out.csv") << QString() << true;
    QTest::newRow("by the name, a site file") << QStringLiteral("out.json") << QString() << false;
    QTest::newRow("a table by word") << QStringLiteral("out.json") << QStringLiteral("csv") << true;
    QTest::newRow("a site file by word") << QStringLiteral("out.csv") << QStringLiteral("json") << false;
}

void TestSiteCommands::anExportImportsAsNothing()
{
    QFETCH(QString, strFile);
    QFETCH(QString, strFormat);
    QFETCH(bool, bTable);
    const QString strOut = m_directory->filePath(strFile);
    const QStringList site{QStringLiteral("--site"), File("site.json")};
    QStringList arguments =
        QStringList{QStringLiteral("export-site"), QStringLiteral("--output"), strOut} + site;
    if (!strFormat.isEmpty()) {
        arguments += {QStringLiteral("--format"), strFormat};
    }
    const Run exported(arguments);
    QCOMPARE(exported.code, 0);
    QVERIFY(exported.out.isEmpty());
    QCOMPARE(Content(strOut).startsWith("\xEF\xBB\xBFrecord,"), bTable);
    const Run dry(QStringList{QStringLiteral("import-site"), strOut, QStringLiteral("--dry-run")} + site);
    QCOMPARE(dry.code, 0);
}

void TestSiteCommands::anExportGoesToTheStandardOutput()
{
    const QStringList site{QStringLiteral("--site"), File("site.json")};
    const Run table(QStringList{QStringLiteral("export-site")} + site);
    QCOMPARE(table.code, 0);
    QVERIFY(table.out.startsWith(QLatin1String("record,id,")));
    const Run json(
        QStringList{QStringLiteral("export-site"), QStringLiteral("--format"), QStringLiteral("json")} +
        site);
    QCOMPARE(json.out.toUtf8(), m_before);
}

void TestSiteCommands::aFullDiskIsToldAsSuch_data()
{
    QTest::addColumn<QStringList>("command");
    QTest::newRow("a made site") << QStringList{QStringLiteral("make-site"), QStringLiteral("--doors"),
                                                QStringLiteral("50")};
    QTest::newRow("an exported table")
        << QStringList{QStringLiteral("export-site"), QStringLiteral("--format"), QStringLiteral("csv")};
    QTest::newRow("an exported site file")
        << QStringList{QStringLiteral("export-site"), QStringLiteral("--format"), QStringLiteral("json")};
}

void TestSiteCommands::aFullDiskIsToldAsSuch()
{
#ifdef Q_OS_UNIX
    QFETCH(QStringList, command);
    if (command.constFirst() == QLatin1String("export-site")) {
        command += {QStringLiteral("--site"), File("site.json")};
    }
    Write("out", "before");
    const int iFiles = Files();
    std::unique_ptr<Run> run;
    {
        const FullDisk disk(100); // there is room for a part
        QVERIFY(disk.Holds());
        run = std::make_unique<Run>(command + QStringList{QStringLiteral("--output"), File("out")});
    }
    QCOMPARE(run->code, 3);
    QCOMPARE(run->err, QDir::toNativeSeparators(File("out")) + QStringLiteral(": ") + qt_error_string(EFBIG) +
                           QLatin1Char('\n'));
    QCOMPARE(Content(File("out")), QByteArray("before"));
    QCOMPARE(Files(), iFiles);
#endif
}

void TestSiteCommands::whatIsNoFileIsNotReplaced()
{
    QVERIFY(QDir(m_directory->path()).mkdir(QStringLiteral("folder")));
    for (const QStringList& command :
         {QStringList{QStringLiteral("make-site"), QStringLiteral("--doors"), QStringLiteral("5")},
          QStringList{QStringLiteral("export-site"), QStringLiteral("--site"), File("site.json")}}) {
        const Run run(command + QStringList{QStringLiteral("--output"), File("folder")});
        QCOMPARE(run.code, 3);
        QVERIFY2(run.err.contains(QLatin1String("this is no file")), qPrintable(run.err));
    }
}

QTEST_GUILESS_MAIN(TestSiteCommands)
#include "tst_site_commands.moc"
