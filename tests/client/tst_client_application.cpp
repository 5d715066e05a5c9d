#include "TestModules.h"

#include "client/ClientApplication.h"
#include "client/ClientPaths.h"
#include "client/ClientSettings.h"
#include "client/ClientTranslations.h"
#include "client/HomePage.h"
#include "client/InsightPages.h"
#include "client/MainWindow.h"
#include "client/PageTabs.h"
#include "client/SiteSession.h"
#include "platform/LXGUI/LXMessageNotify.h"
#include "platform/SystemLibrary/AlarmSchemeManager.h"
#include "platform/SystemLibrary/QCommon.h"
#include "platform/SystemLibrary/SystemPaths.h"

#include <QAction>
#include <QFile>
#include <QImage>
#include <QLabel>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

class TestClientApplication : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void aFirstStartMakesEverythingItNeeds();
    void aMissingDataDirectoryIsMade();
    void aDataDirectoryThatCannotBeMadeIsReported();
    void aBrokenSiteIsReportedAndLeftAlone();
    void anotherSiteFileCanBeAskedFor();
    void theRoleDecidesTheRights();
    void modulesAreOpenedAtTheStart();
    void aPageThatEditsNothingLeavesTheStatusBarEmpty();
    void anUnknownModuleAtTheStartIsReported();
    void aBrokenModuleIsReportedAndTheClientRunsOn();
    void withoutModulesTheClientRunsAndSaysSo();
    void takingDownDestroysPagesFirst();
    void takingDownLeavesNoBackendAndNoRemoval();
    void mailSettingsComeBackAtTheNextStart();
    void aChosenLanguageIsSpokenFromTheNextStartOn();
    void datesAreWrittenAsTheLanguageDoes();
    void aSiteWithoutDevicesSaysWhatToDo();
    void whatWasUnfoldedComesBackAtTheNextStart();
    void closingTheWindowEndsTheClient();
    void aPictureOfTheWindowIsWritten();
    void aPictureThatCannotBeWrittenIsReported();
    void theLogLiesInTheDataDirectory();
    void partsAreFoundBesideTheProgramOrInstalled();
    void aChoiceOfAFileBeginsWithThePersonsOwn();

private:
    QString DataPath(const QString& strName) const
    {
        return QDir(m_options.strDataDirectory).filePath(strName);
    }
    bool Start()
    {
        m_client = std::make_unique<ClientApplication>(m_options, m_program->path());
        return m_client->Start();
    }
    QTabWidget* Tabs() const
    {
        return m_client->Window()->findChild<QTabWidget*>(QStringLiteral("tabPages"));
    }

    std::unique_ptr<QTemporaryDir> m_data;
    std::unique_ptr<QTemporaryDir> m_program; ///< a program directory with the modules of one test
    ClientOptions m_options;
    std::unique_ptr<ClientApplication> m_client;
    QString m_strWorkingDirectory;
};

void TestClientApplication::init()
{
    m_strWorkingDirectory = QDir::currentPath();
    m_data = std::make_unique<QTemporaryDir>();
    m_program = std::make_unique<QTemporaryDir>();
    m_options = ClientOptions();
    m_options.strDataDirectory = m_data->path();
    TestModules::TakeCalls();
}

void TestClientApplication::cleanup()
{
    m_client.reset();
    QDir::setCurrent(m_strWorkingDirectory);
}

void TestClientApplication::aFirstStartMakesEverythingItNeeds()
{
    QVERIFY(Start());
    QVERIFY(QFile::exists(DataPath(QStringLiteral("site.json"))));
    QVERIFY(QFile::exists(DataPath(QStringLiteral("Database/AlarmScheme.db"))));
    QCOMPARE(m_client->Site()->GetOutcome(), SiteSession::Outcome::SampleWritten);
    QCOMPARE(SystemPaths::DataDirectory(), QFileInfo(m_data->path()).absoluteFilePath());
    QVERIFY(m_client->Window()->isVisible());
    QVERIFY(m_client->Window()->Home()->Problems().isEmpty());
    QCOMPARE(m_client->Window()->size(), QSize(1366, 768));
    AlarmInfoMap map;
    QCOMPARE(AlarmSchemeManager::Instance()->LoadAlarmInfo(&map), 0);
    QVERIFY(map.isEmpty());
}

void TestClientApplication::aMissingDataDirectoryIsMade()
{
    m_options.strDataDirectory = m_data->filePath(QStringLiteral("a/b/c"));
    QVERIFY(Start());
    QVERIFY(QFile::exists(DataPath(QStringLiteral("site.json"))));
}

void TestClientApplication::aDataDirectoryThatCannotBeMadeIsReported()
{
    QFile file(m_data->filePath(QStringLiteral("file")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    m_options.strDataDirectory = m_data->filePath(QStringLiteral("file/data"));
    QVERIFY(!Start());
    QVERIFY(m_client->ErrorText().contains(QStringLiteral("data")));
    QVERIFY(m_client->Window() == nullptr);
    m_client->Stop(); // what never started needs no end
}

void TestClientApplication::aBrokenSiteIsReportedAndLeftAlone()
{
    const QByteArray broken("{\n  \"groups\": [],\n  \"devices\": oops\n}\n");
    QFile file(DataPath(QStringLiteral("site.json")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(broken), qint64(broken.size()));
    file.close();
    QVERIFY(Start());
    QCOMPARE(m_client->Site()->DeviceCount(), 0);
    QCOMPARE(m_client->Window()->Home()->Problems().size(), 1);
    const QString strProblem = m_client->Window()->Home()->Problems().constFirst();
    QVERIFY2(strProblem.contains(QStringLiteral("site.json")), qPrintable(strProblem));
    QVERIFY2(strProblem.contains(QStringLiteral("line 3")), qPrintable(strProblem));
    QCOMPARE(LXGUI::LXSingleton<LXGUI::LXMessageNotify>::Instance()->GetLastText(), strProblem);
    m_client.reset();
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), broken);
}

void TestClientApplication::anotherSiteFileCanBeAskedFor()
{
    QVERIFY(Start());
    m_client.reset();
    const QString strOther = m_data->filePath(QStringLiteral("other.json"));
    QVERIFY(QFile::rename(DataPath(QStringLiteral("site.json")), strOther));
    m_options.strSiteFile = strOther;
    QVERIFY(Start());
    QCOMPARE(m_client->Site()->GetOutcome(), SiteSession::Outcome::Loaded);
    QVERIFY(!QFile::exists(DataPath(QStringLiteral("site.json"))));
    m_client.reset();
    m_options.strSiteFile = m_data->filePath(QStringLiteral("missing.json"));
    QVERIFY(Start());
    QCOMPARE(m_client->Site()->DeviceCount(), 0);
    QVERIFY(m_client->Window()->Home()->Problems().constFirst().contains(QStringLiteral("missing.json")));
    QVERIFY(!QFile::exists(m_options.strSiteFile));
}

void TestClientApplication::theRoleDecidesTheRights()
{
    m_options.role = UserRole::Operator;
    QVERIFY(Start());
    QVERIFY(!QCommon::CheckMenuRight(QCommon::RightSystemConfig));
    m_client.reset();
    m_options.role = UserRole::Administrator;
    QVERIFY(Start());
    QVERIFY(QCommon::CheckMenuRight(QCommon::RightSystemConfig));
}

void TestClientApplication::modulesAreOpenedAtTheStart()
{
    QVERIFY(TestModules::Install(QStringLiteral("good"), m_program->path()));
    m_options.strOpenModule = QStringLiteral("good");
    QVERIFY(Start());
    QCOMPARE(Tabs()->currentIndex(), 1);
    QVERIFY(m_client->Window()->findChild<QWidget*>(QStringLiteral("page_good"))->isVisible());
}

void TestClientApplication::aPageThatEditsNothingLeavesTheStatusBarEmpty()
{
    m_options.strOpenModule = QLatin1String(InsightPages::ExplainKey);
    QVERIFY(Start());
    QVERIFY(m_client->Window()->Pages().Current() != nullptr);
    QCOMPARE(m_client->Window()->StatusText(), QString());
}

void TestClientApplication::anUnknownModuleAtTheStartIsReported()
{
    m_options.strOpenModule = QStringLiteral("nobody");
    QVERIFY(Start());
    QVERIFY(m_client->Window()->Home()->Problems().constLast().contains(QStringLiteral("nobody")));
}

void TestClientApplication::aBrokenModuleIsReportedAndTheClientRunsOn()
{
    for (const char* szModule : {"foreign", "good", "null_ui", "plain"}) {
        QVERIFY(TestModules::Install(QLatin1String(szModule), m_program->path()));
    }
    QVERIFY(Start());
    QCOMPARE(m_client->Plugins()->Count(), 1);
    const QString strProblems = m_client->Window()->Home()->Problems().join(QLatin1Char('\n'));
    for (const char* szModule : {"foreign", "null_ui", "plain"}) {
        QVERIFY2(strProblems.contains(TestModules::FileName(QLatin1String(szModule))), szModule);
    }
    QVERIFY(m_client->Window()->OpenPage(QStringLiteral("good")));
}

void TestClientApplication::withoutModulesTheClientRunsAndSaysSo()
{
    QVERIFY(Start());
    QVERIFY(m_client->Window()->Home()->findChild<QLabel*>(QStringLiteral("lblEmpty"))->isVisible());
}

void TestClientApplication::takingDownDestroysPagesFirst()
{
    QVERIFY(TestModules::Install(QStringLiteral("good"), m_program->path()));
    m_options.strOpenModule = QStringLiteral("good");
    QVERIFY(Start());
    TestModules::TakeCalls();
    m_client->Stop();
    QCOMPARE(TestModules::TakeCalls(),
             (QStringList{QStringLiteral("good:page destroyed"), QStringLiteral("good:Stop"),
                          QStringLiteral("good:Uninitialize"), QStringLiteral("good:deleted")}));
    m_client->Stop();
    QVERIFY(TestModules::TakeCalls().isEmpty());
}

void TestClientApplication::takingDownLeavesNoBackendAndNoRemoval()
{
    QVERIFY(Start());
    QFile file(DataPath(QStringLiteral("site.json")));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray before = file.readAll();
    file.close();
    m_client->Stop();
    AlarmInfoMap map;
    QCOMPARE(AlarmSchemeManager::Instance()->LoadAlarmInfo(&map), -1);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), before);
}

void TestClientApplication::mailSettingsComeBackAtTheNextStart()
{
    SystemMailServer server;
    server.strServer = QStringLiteral("mail.example.com");
    server.iPort = 587;
    server.strUser = QString::fromUtf8("夜班");
    server.strSender = QStringLiteral("guard@example.com");
    const SystemMailSettings mail{true, {server}};
    QVERIFY(Start());
    QVERIFY(QSystem::GetInstance()->GetMailSettings() == SystemMailSettings());
    QSystem::GetInstance()->SetMailSettings(mail);
    m_client.reset();
    QSystem::GetInstance()->SetMailSettings({}); // the client has gone and must not notice
    QVERIFY(Start());
    QVERIFY(QSystem::GetInstance()->GetMailSettings() == mail);
}

void TestClientApplication::aChosenLanguageIsSpokenFromTheNextStartOn()
{
    const auto action = [this](const char* szName) {
        return m_client->Window()->findChild<QAction*>(QLatin1String(szName));
    };
    ClientSettings(ClientPaths::SettingsFile(m_data->path())).SetLanguage(QStringLiteral("en"));
    QVERIFY(Start());
    QCOMPARE(QSystem::GetInstance()->GetLanguage(), QStringLiteral("en"));
    QVERIFY(action("actionEnglish")->isChecked());
    action("actionChinese")->trigger();
    QCOMPARE(QSystem::GetInstance()->GetLanguage(), QStringLiteral("en")); // not while it runs
    m_client.reset();
    QVERIFY(Start());
    QCOMPARE(QSystem::GetInstance()->GetLanguage(), QStringLiteral("zh_cn"));
    QVERIFY(action("actionChinese")->isChecked() && !action("actionEnglish")->isChecked());
    m_client.reset();
    // What is asked for on the command line holds for one start.
    m_options.strLanguage = QStringLiteral("en");
    QVERIFY(Start());
    QCOMPARE(QSystem::GetInstance()->GetLanguage(), QStringLiteral("en"));
    m_client.reset();
    QCOMPARE(ClientSettings(ClientPaths::SettingsFile(m_data->path())).Language(), QStringLiteral("zh_cn"));
}

void TestClientApplication::datesAreWrittenAsTheLanguageDoes()
{
    const QLocale british(QLocale::English, QLocale::UnitedKingdom);
    const QLocale german(QLocale::German);
    QCOMPARE(ClientTranslations::Locale(QStringLiteral("en"), british), british);
    QCOMPARE(ClientTranslations::Locale(QStringLiteral("en"), german).language(), QLocale::English);
    QCOMPARE(ClientTranslations::Locale(QStringLiteral("zh_cn"), german).name(), QStringLiteral("zh_CN"));
    m_options.strLanguage = QStringLiteral("zh_cn");
    QVERIFY(Start());
    QCOMPARE(QLocale().language(), QLocale::Chinese);
    m_client.reset();
    m_options.strLanguage = QStringLiteral("en");
    QVERIFY(Start());
    QVERIFY(QLocale().language() != QLocale::Chinese);
}

void TestClientApplication::aSiteWithoutDevicesSaysWhatToDo()
{
    QVERIFY(Start());
    const auto label = [this] {
        return m_client->Window()->Home()->findChild<QLabel*>(QStringLiteral("lblNoDevices"));
    };
    QVERIFY(!label()->isVisible());
    m_client.reset();
    m_options.strSiteFile = m_data->filePath(QStringLiteral("missing.json"));
    QVERIFY(Start());
    QVERIFY(label()->isVisible());
    QVERIFY(label()->text().contains(QStringLiteral("missing.json")));
}

void TestClientApplication::whatWasUnfoldedComesBackAtTheNextStart()
{
    ClientSettings(ClientPaths::SettingsFile(m_data->path())).SetTreeExpansion({QStringLiteral("2:1001:1")});
    QVERIFY(Start());
    m_client.reset();
    QCOMPARE(ClientSettings(ClientPaths::SettingsFile(m_data->path())).TreeExpansion(),
             QStringList{QStringLiteral("2:1001:1")});
}

void TestClientApplication::closingTheWindowEndsTheClient()
{
    QVERIFY(Start());
    m_client->Window()->resize(1000, 700);
    QVERIFY(QTest::qWaitForWindowActive(m_client->Window()));
    QTimer::singleShot(0, m_client->Window(),
                       [this] { QTest::keyClick(m_client->Window(), Qt::Key_Q, Qt::ControlModifier); });
    // A client that does not end fails this test instead of holding it up.
    QTimer::singleShot(10000, m_client->Window(), [] { QCoreApplication::exit(-1); });
    QCOMPARE(m_client->Run(), 0);
    QVERIFY(!m_client->Window()->isVisible());
    QCOMPARE(QSystem::GetInstance()->GetState(), int(QSystem::StateClosing));
    m_client.reset();
    QVERIFY(Start());
    QCOMPARE(m_client->Window()->size(), QSize(1000, 700));
    QCOMPARE(QSystem::GetInstance()->GetState(), int(QSystem::StateRunning));
}

void TestClientApplication::aPictureOfTheWindowIsWritten()
{
    m_options.strPictureFile = m_data->filePath(QStringLiteral("window.png"));
    QVERIFY(Start());
    QCOMPARE(m_client->Run(), 0);
    const QImage picture(m_options.strPictureFile);
    QCOMPARE(picture.size(), m_client->Window()->size() * picture.devicePixelRatio());
    QVERIFY(picture.width() >= 1061);
}

void TestClientApplication::aPictureThatCannotBeWrittenIsReported()
{
    m_options.strPictureFile = m_data->filePath(QStringLiteral("missing/window.png"));
    QVERIFY(Start());
    QCOMPARE(m_client->Run(), 3);
    QVERIFY(m_client->ErrorText().contains(QStringLiteral("window.png")));
    QVERIFY(!QFile::exists(m_options.strPictureFile));
}

void TestClientApplication::theLogLiesInTheDataDirectory()
{
    m_options.strOpenModule = QStringLiteral("nobody");
    QVERIFY(Start());
    m_client.reset();
    QFile file(DataPath(QStringLiteral("acs-client.log")));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(file.readAll().contains("nobody"));
}

void TestClientApplication::partsAreFoundBesideTheProgramOrInstalled()
{
    const QString strBin = m_program->filePath(QStringLiteral("bin"));
    const QString strShare = m_program->filePath(QStringLiteral("share/acs-client"));
    QVERIFY(QDir().mkpath(strBin));
    QCOMPARE(ClientPaths::SkinParentDirectory(strBin), strBin); // nowhere: beside the program
    QVERIFY(QDir().mkpath(strShare + QStringLiteral("/Skin")));
    QCOMPARE(ClientPaths::SkinParentDirectory(strBin), strShare);
    QVERIFY(QDir().mkpath(strBin + QStringLiteral("/Skin")));
    QCOMPARE(ClientPaths::SkinParentDirectory(strBin), strBin);
    QCOMPARE(ClientPaths::ModuleDirectories(strBin).constFirst(), strBin + QStringLiteral("/modules"));
    QCOMPARE(ClientPaths::TranslationDirectories(strBin).constFirst(),
             strBin + QStringLiteral("/translations"));
    QVERIFY(QDir::isAbsolutePath(ClientPaths::DefaultDataDirectory()));
}

void TestClientApplication::aChoiceOfAFileBeginsWithThePersonsOwn()
{
    const QString strBefore = QDir::currentPath();
    QVERIFY(QDir::setCurrent(m_program->path())); // as a started program has it
    const QStringList never{QString(), QStringLiteral("."), QStringLiteral("site.csv"),
                            m_data->filePath(QStringLiteral("gone/site.csv"))};
    for (const QString& strLast : never) {
        const QString strBegin = ClientPaths::ChoiceDirectory(strLast);
        QVERIFY2(QDir::isAbsolutePath(strBegin) && QDir(strBegin).exists(), qPrintable(strBegin));
        QVERIFY2(QDir(strBegin) != QDir(m_program->path()), qPrintable(strLast));
        QVERIFY2(QDir(strBegin) != QDir(m_data->path()), qPrintable(strLast));
    }
    QCOMPARE(ClientPaths::ChoiceDirectory(m_data->filePath(QStringLiteral("site.csv"))), m_data->path());
    QVERIFY(QDir::setCurrent(strBefore));
}

QTEST_MAIN(TestClientApplication)
#include "tst_client_application.moc"
