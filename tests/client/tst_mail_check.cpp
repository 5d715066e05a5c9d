#include "client/MailCheck.h"

#include <QtTest>

namespace {

SystemMailServer SoundServer()
{
    SystemMailServer server;
    server.strServer = QStringLiteral("mail.example.com");
    server.strSender = QStringLiteral("guard@example.com");
    server.recipients = QStringList{QStringLiteral("desk@example.com")};
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
        SystemMailServer server = SoundServer();
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
    void theNewerFieldsAreCheckedToo_data()
    {
        QTest::addColumn<QString>("strPassword");
        QTest::addColumn<QString>("strRecipients");
        QTest::addColumn<QString>("strCertificateFile");
        QTest::addColumn<int>("iField");
        QTest::addColumn<bool>("bOnlyWhenEnabled");
        const QString strSecret = QStringLiteral("secret");
        const QString strDesk = QStringLiteral("desk@example.com");
        const auto field = [](MailCheck::Field f) { return static_cast<int>(f); };
        QTest::newRow("a user without a password")
            << QString() << strDesk << QString() << field(MailCheck::Field::Password) << true;
        QTest::newRow("nobody gets it")
            << strSecret << QString() << QString() << field(MailCheck::Field::Recipients) << true;
        QTest::newRow("a line break in the password")
            << QStringLiteral("a\nb") << strDesk << QString() << field(MailCheck::Field::Password) << false;
        QTest::newRow("an endless password") << QString(257, QLatin1Char('p')) << strDesk << QString()
                                             << field(MailCheck::Field::Password) << false;
        QTest::newRow("one recipient is none") << strSecret << QStringLiteral("desk@example.com|chief")
                                               << QString() << field(MailCheck::Field::Recipients) << false;
        QTest::newRow("a header in a recipient")
            << strSecret << QStringLiteral("desk@example.com\r\nBcc:all@example.com") << QString()
            << field(MailCheck::Field::Recipients) << false;
        QStringList many;
        for (int i = 0; i < 101; ++i) {
            many.append(QStringLiteral("desk%1@example.com").arg(i));
        }
        QTest::newRow("101 recipients") << strSecret << many.join(QLatin1Char('|')) << QString()
                                        << field(MailCheck::Field::Recipients) << false;
        QTest::newRow("a NUL in the file name") << strSecret << strDesk << QString(1, QChar(u'\0'))
                                                << field(MailCheck::Field::CertificateFile) << false;
    }
    void theNewerFieldsAreCheckedToo()
    {
        QFETCH(QString, strPassword);
        QFETCH(QString, strRecipients);
        QFETCH(QString, strCertificateFile);
        QFETCH(int, iField);
        QFETCH(bool, bOnlyWhenEnabled);
        SystemMailServer server = SoundServer();
        server.strUser = QStringLiteral("guard");
        server.strPassword = strPassword;
        server.recipients = strRecipients.split(QLatin1Char('|'), Qt::SkipEmptyParts);
        server.strCertificateFile = strCertificateFile;
        const auto problem = MailCheck::FirstProblem({true, {SoundServer(), server}});
        QVERIFY(problem.has_value());
        QCOMPARE(static_cast<int>(problem->field), iField);
        QCOMPARE(problem->iServer, 1);
        QCOMPARE(MailCheck::FirstProblem({false, {SoundServer(), server}}).has_value(), !bOnlyWhenEnabled);
    }
    void recipientsAreSplitWherePeopleSeparateThem()
    {
        const QString strA = QStringLiteral("a@example.com");
        const QString strB = QStringLiteral("b@example.com");
        QCOMPARE(
            MailCheck::SplitRecipients(QStringLiteral("a@example.com, b@example.com;\r\n a@example.com ")),
            (QStringList{strA, strB}));
        QCOMPARE(MailCheck::SplitRecipients(QStringLiteral(" ,;\t\n")), QStringList());
        QCOMPARE(MailCheck::SplitRecipients(QString()), QStringList());
    }
    void everyEncryptionHasAUsualPort()
    {
        QCOMPARE(MailCheck::UsualPort(SystemMailEncryption::None), 25);
        QCOMPARE(MailCheck::UsualPort(SystemMailEncryption::StartTls), 587);
        QCOMPARE(MailCheck::UsualPort(SystemMailEncryption::Tls), 465);
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
        row("guard@bücher.example", true);
        row("门卫@example.com", false); // few servers take anything but ASCII before the @
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
        blanks.strPassword = QStringLiteral(" p ");
        blanks.strCertificateFile = QStringLiteral(" own.pem ");
        SystemMailServer noUser = SoundServer();
        noUser.strPassword = QStringLiteral("left behind");
        SystemMailServer empty;
        empty.iPort = 2525;
        empty.strUser = QStringLiteral("   ");
        const SystemMailSettings tidied =
            MailCheck::Tidied({true, {empty, blanks, SystemMailServer(), noUser}});
        QVERIFY(tidied.bEnable);
        QCOMPARE(tidied.servers.size(), 2);
        QCOMPARE(tidied.servers.at(0).strPassword, QStringLiteral(" p ")); // blanks may be part of it
        QCOMPARE(tidied.servers.at(0).strCertificateFile, QStringLiteral("own.pem"));
        QCOMPARE(tidied.servers.at(1).strPassword, QString());
        QCOMPARE(tidied.servers.at(0).strServer, QStringLiteral("mail.example.com"));
        QCOMPARE(tidied.servers.at(0).strUser, QStringLiteral("u"));
    }
};

QTEST_GUILESS_MAIN(TestMailCheck)
#include "tst_mail_check.moc"
