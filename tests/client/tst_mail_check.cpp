#include "client/MailCheck.h"

#include <QtTest>

namespace {

SystemMailServer SoundServer()
{
    SystemMailServer server;
    server.strServer = QStringLiteral("mail.example.com");
    server.strSender = QStringLiteral("guard@example.com");
    return server;
}

} // namespace

class TestMailCheck : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void soundSettingsHaveNoProblem()
    {
        QVERIFY(!MailCheck::FirstProblem({true, {SoundServer(), SoundServer()}}));
        QVERIFY(!MailCheck::FirstProblem({false, {}}));
    }
    void enabledMailNeedsAServer()
    {
        const auto problem = MailCheck::FirstProblem({true, {}});
        QVERIFY(problem.has_value());
        QCOMPARE(problem->field, MailCheck::Field::List);
        QCOMPARE(problem->iServer, -1);
        QVERIFY(!problem->strText.isEmpty());
    }
    void everyFieldIsChecked_data()
    {
        QTest::addColumn<QString>("strHost");
        QTest::addColumn<int>("iPort");
        QTest::addColumn<QString>("strUser");
        QTest::addColumn<QString>("strSender");
        QTest::addColumn<int>("iField");
        const QString strHost = SoundServer().strServer;
        const QString strSender = SoundServer().strSender;
        const auto field = [](MailCheck::Field f) { return static_cast<int>(f); };
        QTest::newRow("no host") << QString() << 25 << QString() << strSender
                                 << field(MailCheck::Field::Host);
        QTest::newRow("a host with a blank") << QStringLiteral("mail example") << 25 << QString() << strSender
                                             << field(MailCheck::Field::Host);
        QTest::newRow("port 0") << strHost << 0 << QString() << strSender << field(MailCheck::Field::Port);
        QTest::newRow("port 65536") << strHost << 65536 << QString() << strSender
                                    << field(MailCheck::Field::Port);
        QTest::newRow("a negative port")
            << strHost << -1 << QString() << strSender << field(MailCheck::Field::Port);
        QTest::newRow("a line break in the user")
            << strHost << 25 << QStringLiteral("a\r\nb") << strSender << field(MailCheck::Field::User);
        QTest::newRow("an endless user")
            << strHost << 25 << QString(257, QLatin1Char('u')) << strSender << field(MailCheck::Field::User);
        QTest::newRow("no sender") << strHost << 25 << QString() << QString()
                                   << field(MailCheck::Field::Sender);
        QTest::newRow("two senders") << strHost << 25 << QString() << QStringLiteral("a@b.c, d@e.f")
                                     << field(MailCheck::Field::Sender);
    }
    void everyFieldIsChecked()
    {
        QFETCH(QString, strHost);
        QFETCH(int, iPort);
        QFETCH(QString, strUser);
        QFETCH(QString, strSender);
        QFETCH(int, iField);
        SystemMailServer server;
        server.strServer = strHost;
        server.iPort = iPort;
        server.strUser = strUser;
        server.strSender = strSender;
        for (const bool bEnable : {true, false}) {
            const auto problem = MailCheck::FirstProblem({bEnable, {SoundServer(), server}});
            QVERIFY(problem.has_value());
            QCOMPARE(static_cast<int>(problem->field), iField);
            QCOMPARE(problem->iServer, 1);
            QVERIFY(!problem->strText.isEmpty());
        }
    }
    void hostsAreNamesOrAddresses_data()
    {
        QTest::addColumn<QString>("strHost");
        QTest::addColumn<bool>("bGood");
        const auto row = [](const char* szHost, bool bGood) {
            QTest::newRow(QByteArray(szHost).replace("\n", "\\n").constData())
                << QString::fromUtf8(szHost) << bGood;
        };
        row("localhost", true);
        row("mail-1.example.com", true);
        row("mail.example.com.", true);
        row("192.168.1.20", true);
        row("::1", true);
        row("fe80::1:2", true);
        row("почта.рф", true);
        row("-mail.example.com", false);
        row("mail..example.com", false);
        row("mail_server", false);
        row("mail.example.com:25", false);
        row("http://mail.example.com", false);
        row("mail\n.example.com", false);
        row("", false);
        QTest::newRow("64 letters between dots") << QString(64, QLatin1Char('a')) << false;
        QTest::newRow("63 letters between dots") << QString(63, QLatin1Char('a')) << true;
        QTest::newRow("a very long text") << QString(100000, QLatin1Char('a')) << false;
        QTest::newRow("a line break behind") << QStringLiteral("localhost\n") << false;
    }
    void hostsAreNamesOrAddresses()
    {
        QFETCH(QString, strHost);
        QFETCH(bool, bGood);
        QCOMPARE(MailCheck::IsHost(strHost), bGood);
    }
    void sendersAreOneAddress_data()
    {
        QTest::addColumn<QString>("strSender");
        QTest::addColumn<bool>("bGood");
        const auto row = [](const char* szSender, bool bGood) {
            QTest::newRow(QByteArray(szSender).replace("\n", "\\n").constData())
                << QString::fromUtf8(szSender) << bGood;
        };
        row("guard@example.com", true);
        row("g.u+ard@host", true);
        row("guard", false);
        row("@example.com", false);
        row("guard@", false);
        row("a@b@c", false);
        row("Guard <guard@example.com>", false);
        row("guard@example.com\nBcc: all@example.com", false);
    }
    void sendersAreOneAddress()
    {
        QFETCH(QString, strSender);
        QFETCH(bool, bGood);
        QCOMPARE(MailCheck::IsAddress(strSender), bGood);
    }
    void tidyingTakesBlanksOffAndEmptyEntriesOut()
    {
        SystemMailServer blanks = SoundServer();
        blanks.strServer = QStringLiteral("  mail.example.com\t");
        blanks.strUser = QStringLiteral(" u ");
        SystemMailServer empty;
        empty.iPort = 2525;
        empty.strUser = QStringLiteral("   ");
        const SystemMailSettings tidied = MailCheck::Tidied({true, {empty, blanks, SystemMailServer()}});
        QVERIFY(tidied.bEnable);
        QCOMPARE(tidied.servers.size(), 1);
        QCOMPARE(tidied.servers.at(0).strServer, QStringLiteral("mail.example.com"));
        QCOMPARE(tidied.servers.at(0).strUser, QStringLiteral("u"));
    }
};

QTEST_GUILESS_MAIN(TestMailCheck)
#include "tst_mail_check.moc"
