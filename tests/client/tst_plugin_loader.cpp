#include "TestModules.h"

#include "client/DeviceFunctionManager.h"
#include "client/HubManager.h"
#include "client/PluginLoader.h"
#include "platform/LXPluginAPI/PlatformVersion.h"

#include <QTemporaryDir>
#include <QtTest>

#include <filesystem>
#include <system_error>

constexpr int NextMajor = LX_PLATFORM_VERSION_MAJOR + 1;
constexpr int NextMinor = LX_PLATFORM_VERSION_MINOR + 1;

class TestPluginLoader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_directory = std::make_unique<QTemporaryDir>();
        m_loader = std::make_unique<PluginLoader>();
        TestModules::TakeCalls();
    }
    void aSoundModuleIsDescribed();
    void theLifeOfAModuleHasItsOrder();
    void allModulesAreInitialisedBeforeTheFirstStarts();
    void pagesGoBeforeTheModuleIsStopped();
    void aPageThatTheWindowDestroyedIsNotDestroyedTwice();
    void unloadingTwiceIsHarmless();
    void aModuleCanBeLoadedAgainAfterUnloading();
    void aModuleThatFailsIsReportedByNameAndReason_data();
    void aModuleThatFailsIsReportedByNameAndReason();
    void aModuleOfThisPlatformIsLoaded();
    void aModuleOfAnotherPlatformIsNamedWithBothVersionsAndNeverRun();
    void aModuleThatFailsIsTakenDownAgain_data();
    void aModuleThatFailsIsTakenDownAgain();
    void aTextFileWithALibrarysNameIsReported();
    void aTruncatedModuleIsReported();
    void anEmptyFileIsReported();
    void otherFilesAreNotLookedAt();
    void aBrokenModuleDoesNotStopTheOthers();
    void twoModulesWithOneKeyAreTheFirstOnly();
    void aSecondNameOfAFileIsNoSecondModule_data();
    void aSecondNameOfAFileIsNoSecondModule();
    void aModuleWithoutAPageIsReportedWhenItIsOpened();
    void anOperatorSeesNoModuleForAdministrators();
    void aMissingDirectoryHoldsNoModules();

private:
    void Install(const QString& strModule) const
    {
        QVERIFY(TestModules::Install(strModule, m_directory->path()));
    }
    QString Modules() const { return m_directory->filePath(QStringLiteral("modules")); }
    void Load(UserRole role = UserRole::Administrator)
    {
        m_loader->Load({Modules()}, {&m_hub, &m_functions}, role);
    }
    void WriteModuleFile(const QByteArray& bytes) const
    {
        QVERIFY(QDir().mkpath(Modules()));
        QFile file(Modules() + QLatin1Char('/') + TestModules::FileName(QStringLiteral("broken")));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(bytes), qint64(bytes.size()));
    }
    void ExpectOneProblem(const QString& strModule) const
    {
        QCOMPARE(m_loader->Count(), 0);
        QCOMPARE(int(m_loader->Problems().size()), 1);
        QCOMPARE(m_loader->Problems().front().strName, TestModules::FileName(strModule));
        QVERIFY(!m_loader->Problems().front().strReason.isEmpty());
    }

    std::unique_ptr<QTemporaryDir> m_directory;
    HubManager m_hub;
    DeviceFunctionManager m_functions;
    std::unique_ptr<PluginLoader> m_loader;
};

void TestPluginLoader::aSoundModuleIsDescribed()
{
    Install(QStringLiteral("good"));
    Load();
    QVERIFY(m_loader->Problems().empty());
    QCOMPARE(m_loader->Count(), 1);
    const PluginInfo info = m_loader->Info(0);
    QCOMPARE(info.strKey, QStringLiteral("good"));
    QCOMPARE(info.strTitle, QStringLiteral("Title of good"));
    QCOMPARE(info.strDescription, QStringLiteral("Description of good"));
    QCOMPARE(info.strTabTitle, QStringLiteral("Tab of good"));
    QCOMPARE(info.strIconPath, QStringLiteral("./icon.png"));
    QCOMPARE(info.strHoverIconPath, QStringLiteral("./hover.png"));
    QCOMPARE(m_loader->Find(QStringLiteral("good")), 0);
    QCOMPARE(m_loader->Find(QStringLiteral("Good")), -1);
}

void TestPluginLoader::theLifeOfAModuleHasItsOrder()
{
    Install(QStringLiteral("good"));
    Load();
    const QStringList start{QStringLiteral("good:AddManager HubPluginManager"),
                            QStringLiteral("good:AddManager DeviceFunction"),
                            QStringLiteral("good:Load"),
                            QStringLiteral("good:Initialize"),
                            QStringLiteral("good:Start"),
                            QStringLiteral("good:GetUIObject")};
    QCOMPARE(TestModules::TakeCalls(), start);
    m_loader->Unload();
    const QStringList end{QStringLiteral("good:Stop"), QStringLiteral("good:Uninitialize"),
                          QStringLiteral("good:deleted")};
    QCOMPARE(TestModules::TakeCalls(), end);
}

void TestPluginLoader::allModulesAreInitialisedBeforeTheFirstStarts()
{
    Install(QStringLiteral("good"));
    Install(QStringLiteral("second"));
    Load();
    QCOMPARE(m_loader->Count(), 2);
    const QStringList calls = TestModules::TakeCalls();
    QVERIFY(calls.indexOf(QStringLiteral("second:Initialize")) < calls.indexOf(QStringLiteral("good:Start")));
    m_loader->Unload();
    const QStringList end = TestModules::TakeCalls();
    QVERIFY(end.indexOf(QStringLiteral("second:deleted")) < end.indexOf(QStringLiteral("good:Stop")));
}

void TestPluginLoader::pagesGoBeforeTheModuleIsStopped()
{
    Install(QStringLiteral("good"));
    Load();
    QWidget window;
    QWidget* pPage = m_loader->Page(0);
    QVERIFY(pPage != nullptr);
    QCOMPARE(m_loader->Page(0), pPage);
    pPage->setParent(&window);
    TestModules::TakeCalls();
    m_loader->Unload();
    QCOMPARE(TestModules::TakeCalls(),
             (QStringList{QStringLiteral("good:page destroyed"), QStringLiteral("good:Stop"),
                          QStringLiteral("good:Uninitialize"), QStringLiteral("good:deleted")}));
    QVERIFY(window.children().isEmpty());
}

void TestPluginLoader::aPageThatTheWindowDestroyedIsNotDestroyedTwice()
{
    Install(QStringLiteral("good"));
    Load();
    delete m_loader->Page(0);
    QVERIFY(m_loader->Page(0) != nullptr); // a fresh one
    delete m_loader->Page(0);
    m_loader->Unload();
    QCOMPARE(TestModules::TakeCalls().count(QStringLiteral("good:page destroyed")), 2);
}

void TestPluginLoader::unloadingTwiceIsHarmless()
{
    Install(QStringLiteral("good"));
    Load();
    m_loader->Unload();
    m_loader->Unload();
    QCOMPARE(m_loader->Count(), 0);
    m_loader.reset();
    QCOMPARE(TestModules::TakeCalls().count(QStringLiteral("good:deleted")), 1);
}

void TestPluginLoader::aModuleCanBeLoadedAgainAfterUnloading()
{
    Install(QStringLiteral("good"));
    Load();
    m_loader->Unload();
    TestModules::TakeCalls();
    m_loader = std::make_unique<PluginLoader>();
    Load();
    QCOMPARE(m_loader->Count(), 1);
    QVERIFY(m_loader->Page(0) != nullptr);
    QVERIFY(TestModules::TakeCalls().contains(QStringLiteral("good:Initialize")));
}

void TestPluginLoader::aModuleThatFailsIsReportedByNameAndReason_data()
{
    QTest::addColumn<QString>("strModule");
    QTest::addColumn<QString>("strWord");
    QTest::newRow("no plug-in at all") << QStringLiteral("plain") << QStringLiteral("no module");
    QTest::newRow("another interface")
        << QStringLiteral("foreign") << QStringLiteral("com.LXPluginAPI.IClientUIPluginAPI(1.0)");
    QTest::newRow("no UI object") << QStringLiteral("null_ui") << QStringLiteral("user interface");
    QTest::newRow("no descriptor") << QStringLiteral("null_descriptor") << QStringLiteral("no page");
    QTest::newRow("refuses to be loaded") << QStringLiteral("refuses_load") << QStringLiteral("loaded");
    QTest::newRow("refuses to start") << QStringLiteral("refuses_start") << QStringLiteral("start");
    QTest::newRow("throws") << QStringLiteral("throws") << QStringLiteral("no luck today");
    QTest::newRow("throws when asked for its right")
        << QStringLiteral("throws_right") << QStringLiteral("no right today");
    QTest::newRow("no key") << QStringLiteral("no_key") << QStringLiteral("key");
    QTest::newRow("throws in its constructor")
        << QStringLiteral("throws_in_constructor") << QStringLiteral("nothing to build on");
    QTest::newRow("calls what is nowhere")
        << QStringLiteral("missing_symbol") << QStringLiteral("OperationOfAnotherPlatform");
    QTest::newRow("built for the next platform")
        << QStringLiteral("next_platform") << QStringLiteral("built for version %1.0").arg(NextMajor);
    QTest::newRow("built for a newer platform of this major version")
        << QStringLiteral("newer_platform")
        << QStringLiteral("needs version %1.%2").arg(NextMajor - 1).arg(NextMinor);
    QTest::newRow("states no version that can be read")
        << QStringLiteral("unreadable_platform") << QStringLiteral("readable platform version");
}

void TestPluginLoader::aModuleThatFailsIsReportedByNameAndReason()
{
    QFETCH(QString, strModule);
    QFETCH(QString, strWord);
    Install(strModule);
    Load();
    ExpectOneProblem(strModule);
    QVERIFY2(m_loader->Problems().front().strReason.contains(strWord),
             qPrintable(m_loader->Problems().front().strReason));
}

void TestPluginLoader::aModuleOfThisPlatformIsLoaded()
{
    Install(QStringLiteral("this_platform"));
    Load();
    QVERIFY(m_loader->Problems().empty());
    QCOMPARE(m_loader->Count(), 1);
}

void TestPluginLoader::aModuleOfAnotherPlatformIsNamedWithBothVersionsAndNeverRun()
{
    Install(QStringLiteral("next_platform"));
    Load();
    ExpectOneProblem(QStringLiteral("next_platform"));
    const QString strReason = m_loader->Problems().front().strReason;
    QVERIFY2(strReason.contains(QStringLiteral("%1.0").arg(NextMajor)), qPrintable(strReason));
    QVERIFY2(
        strReason.contains(QStringLiteral("this client has %1.%2").arg(NextMajor - 1).arg(NextMinor - 1)),
        qPrintable(strReason));
    // It calls what only the next platform has, and would be reported for that had it been loaded.
    QVERIFY2(!strReason.contains(QStringLiteral("OperationOfAnotherPlatform")), qPrintable(strReason));
    QVERIFY(TestModules::TakeCalls().isEmpty());
}

void TestPluginLoader::aModuleThatFailsIsTakenDownAgain_data()
{
    QTest::addColumn<QString>("strModule");
    QTest::addColumn<bool>("bInitialized");
    QTest::newRow("no UI object") << QStringLiteral("null_ui") << true;
    QTest::newRow("refuses to be loaded") << QStringLiteral("refuses_load") << false;
    QTest::newRow("refuses to start") << QStringLiteral("refuses_start") << true;
    QTest::newRow("throws while initialising") << QStringLiteral("throws") << true;
    QTest::newRow("throws when asked for its right") << QStringLiteral("throws_right") << false;
    QTest::newRow("no key") << QStringLiteral("no_key") << false;
}

void TestPluginLoader::aModuleThatFailsIsTakenDownAgain()
{
    QFETCH(QString, strModule);
    QFETCH(bool, bInitialized);
    Install(strModule);
    Load();
    const QStringList calls = TestModules::TakeCalls();
    QCOMPARE(calls.count(strModule + QStringLiteral(":deleted")), 1);
    QCOMPARE(calls.count(strModule + QStringLiteral(":Uninitialize")), bInitialized ? 1 : 0);
    QCOMPARE(calls.constLast(), strModule + QStringLiteral(":deleted"));
}

void TestPluginLoader::aTextFileWithALibrarysNameIsReported()
{
    WriteModuleFile("this is no library\n");
    Load();
    ExpectOneProblem(QStringLiteral("broken"));
}

void TestPluginLoader::aTruncatedModuleIsReported()
{
    QFile file(QCoreApplication::applicationDirPath() + QStringLiteral("/modules/") +
               TestModules::FileName(QStringLiteral("good")));
    QVERIFY(file.open(QIODevice::ReadOnly));
    WriteModuleFile(file.read(file.size() / 2));
    Load();
    ExpectOneProblem(QStringLiteral("broken"));
}

void TestPluginLoader::anEmptyFileIsReported()
{
    WriteModuleFile({});
    Load();
    ExpectOneProblem(QStringLiteral("broken"));
}

void TestPluginLoader::otherFilesAreNotLookedAt()
{
    QVERIFY(QDir().mkpath(Modules() + QStringLiteral("/folder.so")));
    QFile file(Modules() + QStringLiteral("/README.txt"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.close();
    Load();
    QCOMPARE(m_loader->Count(), 0);
    QVERIFY(m_loader->Problems().empty());
}

void TestPluginLoader::aBrokenModuleDoesNotStopTheOthers()
{
    for (const char* szModule : {"foreign", "good", "missing_symbol", "next_platform", "null_ui", "plain",
                                 "second", "throws", "throws_in_constructor"}) {
        Install(QLatin1String(szModule));
    }
    WriteModuleFile("no library");
    Load();
    QCOMPARE(m_loader->Count(), 2);
    QCOMPARE(int(m_loader->Problems().size()), 8);
    QVERIFY(m_loader->Page(m_loader->Find(QStringLiteral("second"))) != nullptr);
}

void TestPluginLoader::twoModulesWithOneKeyAreTheFirstOnly()
{
    Install(QStringLiteral("good"));
    Install(QStringLiteral("twin"));
    Load();
    QCOMPARE(m_loader->Count(), 1);
    QCOMPARE(m_loader->Info(0).strTitle, QStringLiteral("Title of good"));
    QCOMPARE(int(m_loader->Problems().size()), 1);
    QCOMPARE(m_loader->Problems().front().strName, TestModules::FileName(QStringLiteral("twin")));
    QVERIFY(TestModules::TakeCalls().contains(QStringLiteral("twin:deleted")));
}

void TestPluginLoader::aSecondNameOfAFileIsNoSecondModule_data()
{
    QTest::addColumn<bool>("bSymbolic");
    QTest::newRow("symbolic link") << true;
    QTest::newRow("hard link") << false;
}

void TestPluginLoader::aSecondNameOfAFileIsNoSecondModule()
{
    QFETCH(bool, bSymbolic);
    Install(QStringLiteral("good"));
    const std::filesystem::path modules(Modules().toStdString());
    const std::filesystem::path file = modules / TestModules::FileName(QStringLiteral("good")).toStdString();
    const std::filesystem::path name = modules / TestModules::FileName(QStringLiteral("later")).toStdString();
    std::error_code error;
    if (bSymbolic) {
        std::filesystem::create_symlink(file, name, error);
    } else {
        std::filesystem::create_hard_link(file, name, error);
    }
    QVERIFY2(!error, error.message().c_str());
    Load();
    QCOMPARE(m_loader->Count(), 1);
    QVERIFY(m_loader->Problems().empty());
    QVERIFY(m_loader->Page(0) != nullptr);
    QVERIFY(!TestModules::TakeCalls().contains(QStringLiteral("good:deleted")));
    m_loader->Unload();
    QCOMPARE(TestModules::TakeCalls().count(QStringLiteral("good:deleted")), 1);
}

void TestPluginLoader::aModuleWithoutAPageIsReportedWhenItIsOpened()
{
    Install(QStringLiteral("null_page"));
    Load();
    QCOMPARE(m_loader->Count(), 1);
    QVERIFY(m_loader->Problems().empty());
    QVERIFY(m_loader->Page(0) == nullptr);
    QCOMPARE(int(m_loader->Problems().size()), 1);
    QCOMPARE(m_loader->Problems().front().strName, TestModules::FileName(QStringLiteral("null_page")));
}

void TestPluginLoader::anOperatorSeesNoModuleForAdministrators()
{
    Install(QStringLiteral("administrators"));
    Install(QStringLiteral("good"));
    Load(UserRole::Operator);
    QCOMPARE(m_loader->Count(), 1);
    QCOMPARE(m_loader->Find(QStringLiteral("administrators")), -1);
    QVERIFY(m_loader->Problems().empty()); // a right that is missing is no problem of the module
    m_loader = std::make_unique<PluginLoader>();
    Load(UserRole::Administrator);
    QCOMPARE(m_loader->Count(), 2);
}

void TestPluginLoader::aMissingDirectoryHoldsNoModules()
{
    m_loader->Load({m_directory->filePath(QStringLiteral("nowhere")), QString()}, {}, UserRole::Operator);
    QCOMPARE(m_loader->Count(), 0);
    QVERIFY(m_loader->Problems().empty());
}

QTEST_MAIN(TestPluginLoader)
#include "tst_plugin_loader.moc"
