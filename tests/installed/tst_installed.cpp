#include "client/DeviceFunctionManager.h"
#include "client/HubManager.h"
#include "client/PluginLoader.h"
#include "platform/SiteLibrary/SiteDeviceManager.h"

#include <QDirIterator>
#include <QImage>
#include <QListWidget>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

namespace {

QString Prefix(const QString& strBelow)
{
    return QStringLiteral(ACS_PREFIX) + QLatin1Char('/') + strBelow;
}

QString Program(const QString& strName)
{
#if defined(Q_OS_WIN)
    return Prefix(QStringLiteral("bin/")) + strName + QStringLiteral(".exe");
#else
    return Prefix(QStringLiteral("bin/")) + strName;
#endif
}

QString TextOf(const QString& strFile)
{
    QFile file(strFile);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// Every file below a directory with what would show that it was touched.
QStringList Contents(const QString& strDirectory)
{
    QStringList files;
    QDirIterator iterator(strDirectory, QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
                          QDirIterator::Subdirectories);
    while (iterator.hasNext()) {
        const QString strFile = iterator.next();
        const QFileInfo info(strFile);
        files.append(QStringLiteral("%1 %2 %3")
                         .arg(QDir(strDirectory).relativeFilePath(strFile))
                         .arg(info.size())
                         .arg(info.lastModified().toMSecsSinceEpoch()));
    }
    files.sort();
    return files;
}

VantaLogic::DeviceInfo Door(qint64 iId, const QString& strName, bool bOnline)
{
    VantaLogic::DeviceInfo device;
    device.iDeviceId = iId;
    device.iDeviceType = VantaLogic::DeviceTypeAccessControl;
    device.strName = strName;
    device.bOnline = bOnline;
    return device;
}

QStringList Lines(const QListWidget& list)
{
    QStringList lines;
    for (int i = 0; i < list.count(); ++i) {
        lines.append(list.item(i)->text());
    }
    return lines;
}

} // namespace

class TestInstalled : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void theClientDrawsItsWindowFromAnyDirectoryAndHome();
    void theClientShowsItsTextsInEveryLanguage_data();
    void theClientShowsItsTextsInEveryLanguage();
    void theClientOpensThePageOfTheExampleBesideOurs();
    void theExamplesPageFollowsTheSite();
    void theCommandLineRuns();
    void theHeadersOfTheKitIncludeNothingElse();
    void theMenuEntryNamesWhatIsInstalled();
    void thePagesLeadToWhatIsInstalled();
    void nothingInstalledSpeaksOfTheBuildTree();

private:
    /// Runs a program from the working place with a home of its own; what it wrote to standard error.
    void Run(const QString& strProgram, const QStringList& arguments, QByteArray* pOutput = nullptr) const;
    QString Log() const
    {
        return TextOf(m_directory->filePath(
            QStringLiteral("home of J\u00fcrgen/.local/share/acs-client/acs-client.log")));
    }

    std::unique_ptr<QTemporaryDir> m_directory;
};

void TestInstalled::init()
{
    m_directory = std::make_unique<QTemporaryDir>();
    QVERIFY(QDir().mkpath(m_directory->filePath(QStringLiteral("home of J\u00fcrgen"))));
    QVERIFY(QDir().mkpath(m_directory->filePath(QStringLiteral("any place"))));
}

void TestInstalled::Run(const QString& strProgram, const QStringList& arguments, QByteArray* pOutput) const
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* szName : {"XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "LD_LIBRARY_PATH"}) {
        environment.remove(QLatin1String(szName));
    }
    environment.insert(QStringLiteral("HOME"), m_directory->filePath(QStringLiteral("home of J\u00fcrgen")));
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(m_directory->filePath(QStringLiteral("any place")));
    process.start(strProgram, arguments);
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QVERIFY2(process.exitCode() == 0, process.readAllStandardError().constData());
    if (pOutput != nullptr) {
        *pOutput = process.readAllStandardOutput();
    }
}

void TestInstalled::theClientDrawsItsWindowFromAnyDirectoryAndHome()
{
    const QStringList before = Contents(QStringLiteral(ACS_PREFIX));
    Run(Program(QStringLiteral("acs-client")), {QStringLiteral("--open"), QStringLiteral("ACSEventConfigUI"),
                                                QStringLiteral("--picture"), QStringLiteral("window.png")});
    QVERIFY(!QImage(m_directory->filePath(QStringLiteral("any place/window.png"))).isNull());
    const QString strLog = Log();
    QVERIFY2(strLog.contains(QStringLiteral("module ACSEventConfigUI loaded")), qPrintable(strLog));
    QVERIFY2(!strLog.contains(QStringLiteral(" ERROR ")), qPrintable(strLog));
    QVERIFY2(!strLog.contains(QStringLiteral(" WARNING ")), qPrintable(strLog));
    // What it keeps is in the home, what was asked for where it was asked for, and nothing anywhere else.
    QCOMPARE(QDir(m_directory->filePath(QStringLiteral("any place")))
                 .entryList(QDir::NoDotAndDotDot | QDir::AllEntries),
             QStringList{QStringLiteral("window.png")});
    QCOMPARE(Contents(QStringLiteral(ACS_PREFIX)), before);
}

void TestInstalled::theClientShowsItsTextsInEveryLanguage_data()
{
    QTest::addColumn<QString>("strLanguage");
    QTest::newRow("English") << QStringLiteral("en");
    QTest::newRow("Chinese") << QStringLiteral("zh_cn");
}

void TestInstalled::theClientShowsItsTextsInEveryLanguage()
{
    QFETCH(QString, strLanguage);
    Run(Program(QStringLiteral("acs-client")), {QStringLiteral("--language"), strLanguage,
                                                QStringLiteral("--picture"), QStringLiteral("window.png")});
    QVERIFY2(!Log().contains(QStringLiteral("no translation catalogue")), qPrintable(Log()));
}

void TestInstalled::theClientOpensThePageOfTheExampleBesideOurs()
{
    Run(Program(QStringLiteral("acs-client")), {QStringLiteral("--open"), QStringLiteral("MinimalModule"),
                                                QStringLiteral("--picture"), QStringLiteral("window.png")});
    const QString strLog = Log();
    QVERIFY2(strLog.contains(QStringLiteral("module ACSEventConfigUI loaded")), qPrintable(strLog));
    QVERIFY2(strLog.contains(QStringLiteral("module MinimalModule loaded")), qPrintable(strLog));
    QVERIFY2(!strLog.contains(QStringLiteral(" ERROR ")), qPrintable(strLog));
}

void TestInstalled::theExamplesPageFollowsTheSite()
{
    SiteDeviceManager devices;
    QVERIFY(devices.AddDevice(Door(1, QStringLiteral("North gate"), false)));
    QVERIFY(devices.AddDevice(Door(2, QStringLiteral("South gate"), true)));
    HubManager hub;
    hub.SetDeviceManager(&devices);
    DeviceFunctionManager functions;
    PluginLoader loader;
    loader.Load({Prefix(QStringLiteral("lib/acs-client/modules"))}, {&hub, &functions}, UserRole::Operator);
    QVERIFY2(loader.Problems().empty(),
             qPrintable(loader.Problems().empty() ? QString() : loader.Problems().front().strReason));
    QCOMPARE(loader.Count(), 2);
    QVERIFY(loader.Find(QStringLiteral("ACSEventConfigUI")) >= 0);
    const int iExample = loader.Find(QStringLiteral("MinimalModule"));
    QVERIFY(iExample >= 0);
    QCOMPARE(loader.Info(iExample).strTabTitle, QStringLiteral("Offline"));

    auto* pList = qobject_cast<QListWidget*>(loader.Page(iExample));
    QVERIFY(pList != nullptr);
    QCOMPARE(Lines(*pList), QStringList{QStringLiteral("North gate")});
    devices.SetDeviceOnline(2, false);
    QCOMPARE(Lines(*pList), (QStringList{QStringLiteral("North gate"), QStringLiteral("South gate")}));
    devices.SetDeviceOnline(1, true);
    devices.RenameDevice(2, QStringLiteral("Back gate"));
    QCOMPARE(Lines(*pList), QStringList{QStringLiteral("Back gate")});
    devices.RemoveDevice(2);
    QCOMPARE(Lines(*pList), QStringList());
    loader.Unload();
    devices.SetDeviceOnline(1, false); // nobody listens any more
}

void TestInstalled::theCommandLineRuns()
{
    QByteArray output;
    Run(Program(QStringLiteral("acs-scheme")),
        {QStringLiteral("make-site"), QStringLiteral("--doors"), QStringLiteral("3")}, &output);
    QVERIFY(output.contains("\"devices\""));
}

void TestInstalled::theHeadersOfTheKitIncludeNothingElse()
{
    const QString strRoot = Prefix(QStringLiteral("include/acs-client/"));
    const QRegularExpression include(QStringLiteral("^#\\s*include\\s+\"([^\"]+)\""),
                                     QRegularExpression::MultilineOption);
    QStringList missing;
    int iHeaders = 0;
    QDirIterator iterator(strRoot, {QStringLiteral("*.h")}, QDir::Files, QDirIterator::Subdirectories);
    while (iterator.hasNext()) {
        const QString strHeader = iterator.next();
        ++iHeaders;
        auto match = include.globalMatch(TextOf(strHeader));
        while (match.hasNext()) {
            const QString strIncluded = match.next().captured(1);
            if (!QFileInfo::exists(strRoot + strIncluded)) {
                missing.append(QDir(strRoot).relativeFilePath(strHeader) + QStringLiteral(" -> ") +
                               strIncluded);
            }
        }
    }
    QVERIFY2(iHeaders > 30, "the headers were not found");
    QVERIFY2(missing.isEmpty(), qPrintable(missing.join(QLatin1Char('\n'))));
}

void TestInstalled::theMenuEntryNamesWhatIsInstalled()
{
#if defined(Q_OS_UNIX) && !defined(Q_OS_MACOS)
    const QString strEntry = TextOf(Prefix(QStringLiteral("share/applications/acs-client.desktop")));
    QVERIFY(strEntry.contains(QStringLiteral("\nExec=acs-client\n")));
    QVERIFY(strEntry.contains(QStringLiteral("\nIcon=acs-client\n")));
    QVERIFY(QFileInfo(Program(QStringLiteral("acs-client"))).isExecutable());
    for (const char* szFile :
         {"share/icons/hicolor/256x256/apps/acs-client.png",
          "share/icons/hicolor/scalable/apps/acs-client.svg", "share/metainfo/acs-client.metainfo.xml",
          "share/man/man1/acs-client.1.gz", "share/man/man1/acs-scheme.1.gz"}) {
        QVERIFY2(QFileInfo(Prefix(QLatin1String(szFile))).size() > 0, szFile);
    }
#endif
}

void TestInstalled::thePagesLeadToWhatIsInstalled()
{
    const QRegularExpression link(QStringLiteral("\\]\\(([^)#:]+)(?:#[^)]*)?\\)"));
    const QDir folder(Prefix(QStringLiteral("share/doc/acs-client")));
    const QStringList pages = folder.entryList({QStringLiteral("*.md")});
    QVERIFY(pages.contains(QStringLiteral("guide.md")) && pages.contains(QStringLiteral("plugin-api.md")));
    int iLinks = 0;
    for (const QString& strPage : pages) {
        auto links = link.globalMatch(TextOf(folder.filePath(strPage)));
        while (links.hasNext()) {
            const QString strTarget = links.next().captured(1);
            QVERIFY2(folder.exists(strTarget), qPrintable(strPage + QLatin1Char(' ') + strTarget));
            ++iLinks;
        }
    }
    QVERIFY(iLinks > 15);
}

void TestInstalled::nothingInstalledSpeaksOfTheBuildTree()
{
    // The prefix of this test lies in the build tree, so look for the folder that the libraries are built in.
    const QByteArray strBin = QDir::cleanPath(Prefix(QStringLiteral("../../../bin/"))).toUtf8();
    QStringList speaking;
    for (const char* szFolder : {"bin", "lib/acs-client", "lib/cmake", "share"}) {
        QDirIterator iterator(Prefix(QLatin1String(szFolder)), QDir::Files, QDirIterator::Subdirectories);
        while (iterator.hasNext()) {
            QFile file(iterator.next());
            QVERIFY(file.open(QIODevice::ReadOnly));
            if (file.readAll().contains(strBin + '/')) {
                speaking.append(file.fileName());
            }
        }
    }
    QVERIFY2(speaking.isEmpty(), qPrintable(speaking.join(QLatin1Char('\n'))));
}

QTEST_MAIN(TestInstalled)
#include "tst_installed.moc"
