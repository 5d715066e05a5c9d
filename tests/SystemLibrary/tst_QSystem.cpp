#include "platform/SystemLibrary/QSystem.h"

#include <QSignalSpy>
#include <QTest>

#include <functional>

using Change = std::function<void(SystemMailSettings&)>;
Q_DECLARE_METATYPE(Change)

namespace {

SystemMailSettings UsableMail()
{
    SystemMailSettings settings;
    settings.bEnable = true;
    SystemMailServer server;
    server.strServer = QStringLiteral("mail.example.org");
    server.strUser = QStringLiteral("guard");
    server.strSender = QStringLiteral("guard@example.org");
    settings.servers.append(server);
    return settings;
}

} // namespace

class tst_QSystem : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aFreshSystemIsStartingAndHasNoMail()
    {
        // The first test to run, before anything was set.
        QCOMPARE(QSystem::GetInstance()->GetState(), 0);
        QVERIFY(!QSystem::GetInstance()->GetMailSettings().bEnable);
        QVERIFY(QSystem::GetInstance()->GetMailSettings().servers.isEmpty());
    }

    void cleanup()
    {
        QSystem::GetInstance()->SetMailSettings(SystemMailSettings());
        QSystem::GetInstance()->SetLanguage(QStringLiteral("en"));
        QSystem::GetInstance()->SetState(QSystem::StateStarting);
    }

    void thereIsOneInstance() { QCOMPARE(QSystem::GetInstance(), QSystem::GetInstance()); }

    void theLanguageIsKept()
    {
        QSystem::GetInstance()->SetLanguage(QStringLiteral("zh_cn"));
        QCOMPARE(QSystem::GetInstance()->GetLanguage(), QStringLiteral("zh_cn"));
        QSystem::GetInstance()->SetLanguage(QStringLiteral("en"));
        QCOMPARE(QSystem::GetInstance()->GetLanguage(), QStringLiteral("en"));
    }

    void theStateIsKept()
    {
        QSystem::GetInstance()->SetState(QSystem::StateRunning);
        QCOMPARE(QSystem::GetInstance()->GetState(), static_cast<int>(QSystem::StateRunning));
        QSystem::GetInstance()->SetState(4);
        QCOMPARE(QSystem::GetInstance()->GetState(), static_cast<int>(QSystem::StateClosing));
    }

    void mailSettingsAreReadBack()
    {
        QSystem::GetInstance()->SetMailSettings(UsableMail());
        const SystemMailSettings& settings = QSystem::GetInstance()->GetMailSettings();
        QVERIFY(settings.bEnable);
        QCOMPARE(settings.servers.size(), 1);
        QCOMPARE(settings.servers[0].strServer, QStringLiteral("mail.example.org"));
        QCOMPARE(settings.servers[0].iPort, 25);
        QCOMPARE(settings.servers[0].strUser, QStringLiteral("guard"));
        QCOMPARE(settings.servers[0].strSender, QStringLiteral("guard@example.org"));
    }

    void everyChangeOfTheMailSettingsIsSaidOnce_data()
    {
        QTest::addColumn<Change>("change");
        QTest::newRow("off") << Change([](SystemMailSettings& mail) { mail.bEnable = false; });
        QTest::newRow("server") << Change(
            [](SystemMailSettings& mail) { mail.servers[0].strServer.clear(); });
        QTest::newRow("port") << Change([](SystemMailSettings& mail) { mail.servers[0].iPort = 587; });
        QTest::newRow("user") << Change([](SystemMailSettings& mail) { mail.servers[0].strUser.clear(); });
        QTest::newRow("sender") << Change(
            [](SystemMailSettings& mail) { mail.servers[0].strSender.clear(); });
        QTest::newRow("encryption") << Change(
            [](SystemMailSettings& mail) { mail.servers[0].eEncryption = SystemMailEncryption::Tls; });
        QTest::newRow("password") << Change(
            [](SystemMailSettings& mail) { mail.servers[0].strPassword = QStringLiteral("other"); });
        QTest::newRow("recipients") << Change([](SystemMailSettings& mail) {
            mail.servers[0].recipients.append(QStringLiteral("chief@example.com"));
        });
        QTest::newRow("certificates") << Change(
            [](SystemMailSettings& mail) { mail.servers[0].strCertificateFile = QStringLiteral("own.pem"); });
        QTest::newRow("none left") << Change([](SystemMailSettings& mail) { mail.servers.clear(); });
        QTest::newRow("one more") << Change(
            [](SystemMailSettings& mail) { mail.servers.append(SystemMailServer()); });
        QTest::newRow("everything") << Change([](SystemMailSettings& mail) { mail = SystemMailSettings(); });
    }

    void everyChangeOfTheMailSettingsIsSaidOnce()
    {
        QFETCH(Change, change);
        QSystem::GetInstance()->SetMailSettings(UsableMail());
        QSignalSpy spy(QSystem::GetInstance(), &QSystem::SignalMailSettingsChanged);
        SystemMailSettings changed = UsableMail();
        change(changed);
        QSystem::GetInstance()->SetMailSettings(changed);
        QCOMPARE(spy.count(), 1);
        QVERIFY(QSystem::GetInstance()->GetMailSettings() == changed);
        QSystem::GetInstance()->SetMailSettings(changed);
        QCOMPARE(spy.count(), 1);
    }

    void theNewSettingsStandWhenTheChangeIsSaid()
    {
        bool enabled = false;
        const auto connection =
            connect(QSystem::GetInstance(), &QSystem::SignalMailSettingsChanged, this,
                    [&enabled] { enabled = QSystem::GetInstance()->GetMailSettings().bEnable; });
        QSystem::GetInstance()->SetMailSettings(UsableMail());
        disconnect(connection);
        QVERIFY(enabled);
    }

    void settingTheirOwnSettingsAgainIsNoChange()
    {
        QSystem::GetInstance()->SetMailSettings(UsableMail());
        QSignalSpy spy(QSystem::GetInstance(), &QSystem::SignalMailSettingsChanged);
        QSystem::GetInstance()->SetMailSettings(QSystem::GetInstance()->GetMailSettings());
        QVERIFY(spy.isEmpty());
        QVERIFY(QSystem::GetInstance()->GetMailSettings() == UsableMail());
    }

    void languageAndStateSayNothingAboutMail()
    {
        QSignalSpy spy(QSystem::GetInstance(), &QSystem::SignalMailSettingsChanged);
        QSystem::GetInstance()->SetLanguage(QStringLiteral("zh_cn"));
        QSystem::GetInstance()->SetState(QSystem::StateClosing);
        QVERIFY(spy.isEmpty());
    }
};

QTEST_GUILESS_MAIN(tst_QSystem)
#include "tst_QSystem.moc"
