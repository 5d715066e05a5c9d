#include "client/mail/MailSender.h"
#include "tests/client_mail/MailServer.h"

#include <QJsonArray>
#include <QSignalSpy>
#include <QtTest>

using Kind = MailOutcome::Kind;
using Encryption = SystemMailEncryption;

namespace {

MailTransfer::Job JobFor(const SystemMailServer& server)
{
    MailTransfer::Job job;
    job.server = server;
    job.message.strSender = server.strSender;
    job.message.strSenderName = QString::fromUtf8("门卫");
    job.message.recipients = server.recipients;
    job.message.strSubject = QString::fromUtf8("Tür 3");
    job.message.strBody = QString::fromUtf8("Erste Zeile\n.\n..zwei Punkte\n");
    job.message.time = QDateTime::currentDateTime();
    return job;
}

MailOutcome Send(const SystemMailServer& server)
{
    return MailTransfer(JobFor(server)).Run();
}

QStringList WithUser(const QStringList& options = {})
{
    return options + QStringList{QStringLiteral("--user"), QString::fromUtf8("wächter"),
                                 QStringLiteral("--password"), QString::fromUtf8("g€heim =%")};
}

void LogIn(SystemMailServer& server)
{
    server.strUser = QString::fromUtf8("wächter");
    server.strPassword = QString::fromUtf8("g€heim =%");
}

} // namespace

class TestMailTransfer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { qRegisterMetaType<MailOutcome>("MailOutcome"); }
    void aMailArrivesWithAllItSays();
    void everyRecipientIsInTheEnvelope();
    void aUserLogsInOverStartTls();
    void aUserLogsInOverTls();
    void aUserLogsInWithoutEncryptionWhereTheServerLetsHim();
    void aWrongPasswordIsRefused();
    void aLoginThatNobodyAskedForIsTold();
    void aLoginOfferedWithEncryptionOnlyIsTold();
    void aPortOnWhichNothingListensIsTold();
    void aHostThatDoesNotExistIsTold();
    void anUntrustedCertificateSendsNothing();
    void aCertificateForAnotherNameSendsNothing();
    void aCertificateFileThatIsNoneIsTold();
    void aServerThatNeverAnswersRunsIntoTheTimeLimit();
    void aServerThatWaitsForTlsRunsIntoTheTimeLimit();
    void missingStartTlsIsTold();
    void tlsToAPlainPortIsTold();
    void aRefusedSenderIsTold();
    void aRefusedRecipientIsTold();
    void aRefusedMessageIsTold();
    void aStrangerOnThePortIsTold_data();
    void aStrangerOnThePortIsTold();
    void aConnectionThatBreaksOffIsTold();
    void addressesThatCannotBeWrittenSendNothing_data();
    void addressesThatCannotBeWrittenSendNothing();
    void cancellingEndsAWaitAtOnce();
    void cancellingBeforehandSendsNothing();
    void theSenderWorksInTheBackgroundOneMailAtATime();
    void theSenderTellsOfACancelledMail();
    void theSenderMayGoWhileAMailIsUnderWay();
    void everyOutcomeSaysWhatToDo();
};

void TestMailTransfer::aMailArrivesWithAllItSays()
{
    MailServer server;
    QVERIFY(server.Start());
    const MailOutcome outcome = Send(server.Settings());
    QCOMPARE(outcome.eKind, Kind::Sent);
    QVERIFY(outcome.IsSent());
    const QJsonObject mail = server.Next();
    QCOMPARE(mail.value(QStringLiteral("from")).toString(), QStringLiteral("guard@example.com"));
    QCOMPARE(mail.value(QStringLiteral("to")).toArray(), QJsonArray{QStringLiteral("desk@example.com")});
    QVERIFY(!mail.value(QStringLiteral("encrypted")).toBool());
    QCOMPARE(MailServer::BodyOf(mail), QByteArray("Erste Zeile\r\n.\r\n..zwei Punkte\r\n"));
    const QByteArray headers = MailServer::HeadersOf(mail);
    QVERIFY(
        headers.contains("Subject: =?UTF-8?B?" + QString::fromUtf8("Tür 3").toUtf8().toBase64() + "?=\r\n"));
    QVERIFY(headers.contains("<guard@example.com>\r\n"));
    QVERIFY(server.Stop());
}

void TestMailTransfer::everyRecipientIsInTheEnvelope()
{
    MailServer server;
    QVERIFY(server.Start());
    SystemMailServer settings = server.Settings();
    settings.recipients =
        QStringList{QStringLiteral("desk@example.com"), QString::fromUtf8("chief@bücher.example")};
    QCOMPARE(Send(settings).eKind, Kind::Sent);
    QCOMPARE(server.Next().value(QStringLiteral("to")).toArray(),
             (QJsonArray{QStringLiteral("desk@example.com"), QStringLiteral("chief@xn--bcher-kva.example")}));
}

void TestMailTransfer::aUserLogsInOverStartTls()
{
    MailServer server;
    QVERIFY(server.Start(WithUser({QStringLiteral("--encryption"), QStringLiteral("starttls")})));
    SystemMailServer settings = server.Settings(Encryption::StartTls);
    LogIn(settings);
    QCOMPARE(Send(settings).eKind, Kind::Sent);
    const QJsonObject mail = server.Next();
    QVERIFY(mail.value(QStringLiteral("encrypted")).toBool());
    QCOMPARE(mail.value(QStringLiteral("user")).toString(), settings.strUser);
}

void TestMailTransfer::aUserLogsInOverTls()
{
    MailServer server;
    QVERIFY(server.Start(WithUser({QStringLiteral("--encryption"), QStringLiteral("tls")})));
    SystemMailServer settings = server.Settings(Encryption::Tls);
    LogIn(settings);
    QCOMPARE(Send(settings).eKind, Kind::Sent);
    const QJsonObject mail = server.Next();
    QVERIFY(mail.value(QStringLiteral("encrypted")).toBool());
    QCOMPARE(mail.value(QStringLiteral("user")).toString(), settings.strUser);
}

void TestMailTransfer::aUserLogsInWithoutEncryptionWhereTheServerLetsHim()
{
    MailServer server;
    QVERIFY(server.Start(WithUser()));
    SystemMailServer settings = server.Settings();
    LogIn(settings);
    QCOMPARE(Send(settings).eKind, Kind::Sent);
    QCOMPARE(server.Next().value(QStringLiteral("user")).toString(), settings.strUser);
}

void TestMailTransfer::aWrongPasswordIsRefused()
{
    MailServer server;
    QVERIFY(server.Start(WithUser({QStringLiteral("--encryption"), QStringLiteral("starttls")})));
    SystemMailServer settings = server.Settings(Encryption::StartTls);
    LogIn(settings);
    settings.strPassword = QStringLiteral("Not-The-Password");
    const MailOutcome outcome = Send(settings);
    QCOMPARE(outcome.eKind, Kind::LoginRefused);
    QVERIFY(outcome.strServerText.startsWith(QLatin1String("535")));
    const QString strText = outcome.Text(settings) + outcome.strDetail;
    QVERIFY(strText.contains(settings.strUser));
    QVERIFY(!strText.contains(settings.strPassword));
    QVERIFY(!strText.contains(QString::fromLatin1(settings.strPassword.toUtf8().toBase64())));
    QVERIFY(server.Stop());
}

void TestMailTransfer::aLoginThatNobodyAskedForIsTold()
{
    MailServer server;
    QVERIFY(server.Start());
    SystemMailServer settings = server.Settings();
    LogIn(settings);
    const MailOutcome outcome = Send(settings);
    QCOMPARE(outcome.eKind, Kind::SentWithoutLogin);
    QVERIFY(outcome.IsSent());
    QVERIFY(server.Next().contains(QStringLiteral("message")));
}

void TestMailTransfer::aLoginOfferedWithEncryptionOnlyIsTold()
{
    MailServer server;
    QVERIFY(server.Start(WithUser({QStringLiteral("--encryption"), QStringLiteral("starttls")})));
    SystemMailServer settings = server.Settings(Encryption::None);
    LogIn(settings);
    QCOMPARE(Send(settings).eKind, Kind::LoginNotOffered);
    QVERIFY(server.Stop());
}

void TestMailTransfer::aPortOnWhichNothingListensIsTold()
{
    MailServer server;
    QVERIFY(server.Start());
    QVERIFY(server.Stop());
    const MailOutcome outcome = Send(server.Settings());
    QCOMPARE(outcome.eKind, Kind::NoConnection);
    QVERIFY(outcome.Text(server.Settings()).contains(QString::number(server.Port())));
}

void TestMailTransfer::aHostThatDoesNotExistIsTold()
{
    // The top-level name "invalid" is reserved: nobody can ever have it.
    SystemMailServer settings;
    settings.strServer = QStringLiteral("mail.invalid");
    settings.strSender = QStringLiteral("guard@example.com");
    settings.recipients = QStringList{QStringLiteral("desk@example.com")};
    const MailOutcome outcome = Send(settings);
    QCOMPARE(outcome.eKind, Kind::NoSuchHost);
    QVERIFY(outcome.Text(settings).contains(QLatin1String("mail.invalid")));
}

void TestMailTransfer::anUntrustedCertificateSendsNothing()
{
    for (const auto& [eEncryption, strName] : {std::pair(Encryption::StartTls, QStringLiteral("starttls")),
                                               std::pair(Encryption::Tls, QStringLiteral("tls"))}) {
        MailServer server;
        QVERIFY(server.Start(WithUser({QStringLiteral("--encryption"), strName})));
        SystemMailServer settings = server.Settings(eEncryption);
        LogIn(settings);
        settings.strCertificateFile.clear();
        const MailOutcome outcome = Send(settings);
        QCOMPARE(outcome.eKind, Kind::CertificateUntrusted);
        QVERIFY(server.Stop());
    }
}

void TestMailTransfer::aCertificateForAnotherNameSendsNothing()
{
    MailServer server;
    QVERIFY(server.Start({QStringLiteral("--encryption"), QStringLiteral("tls")}));
    SystemMailServer settings = server.Settings(Encryption::Tls);
    settings.strServer = QStringLiteral("127.0.0.1"); // the certificate says "localhost"
    QCOMPARE(Send(settings).eKind, Kind::CertificateUntrusted);
    QVERIFY(server.Stop());
}

void TestMailTransfer::aCertificateFileThatIsNoneIsTold()
{
    MailServer server;
    QVERIFY(server.Start({QStringLiteral("--encryption"), QStringLiteral("tls")}));
    SystemMailServer settings = server.Settings(Encryption::Tls);
    settings.strCertificateFile += QStringLiteral(".gone");
    QCOMPARE(Send(settings).eKind, Kind::CertificateFileUnusable);
    settings.strCertificateFile = QStringLiteral(MAIL_SERVER_SCRIPT);
    QCOMPARE(Send(settings).eKind, Kind::CertificateFileUnusable);
    QVERIFY(server.Stop());
}

void TestMailTransfer::aServerThatNeverAnswersRunsIntoTheTimeLimit()
{
    MailServer server;
    QVERIFY(server.Start({QStringLiteral("--mute")}));
    MailTransfer::Job job = JobFor(server.Settings());
    job.timeLimit = std::chrono::milliseconds(200);
    QCOMPARE(MailTransfer(job).Run().eKind, Kind::NoAnswer);
    QVERIFY(server.Next().value(QStringLiteral("connected")).toBool());
}

void TestMailTransfer::aServerThatWaitsForTlsRunsIntoTheTimeLimit()
{
    MailServer server;
    QVERIFY(server.Start({QStringLiteral("--encryption"), QStringLiteral("tls")}));
    MailTransfer::Job job = JobFor(server.Settings(Encryption::None));
    job.timeLimit = std::chrono::milliseconds(200);
    QCOMPARE(MailTransfer(job).Run().eKind, Kind::NoAnswer);
}

void TestMailTransfer::missingStartTlsIsTold()
{
    MailServer server;
    QVERIFY(server.Start(WithUser()));
    SystemMailServer settings = server.Settings(Encryption::StartTls);
    settings.strCertificateFile.clear();
    LogIn(settings);
    QCOMPARE(Send(settings).eKind, Kind::NoEncryption);
    QVERIFY(server.Stop());
}

void TestMailTransfer::tlsToAPlainPortIsTold()
{
    MailServer server;
    QVERIFY(server.Start());
    SystemMailServer settings = server.Settings(Encryption::Tls);
    settings.strCertificateFile.clear();
    QCOMPARE(Send(settings).eKind, Kind::EncryptionFailed);
    QVERIFY(server.Stop());
}

void TestMailTransfer::aRefusedSenderIsTold()
{
    MailServer server;
    QVERIFY(server.Start({QStringLiteral("--refuse-sender"), QStringLiteral("guard@example.com")}));
    const MailOutcome outcome = Send(server.Settings());
    QCOMPARE(outcome.eKind, Kind::SenderRefused);
    // A stranger's text is shown as one line without control characters.
    QCOMPARE(outcome.strServerText, QStringLiteral("550 5.7.1 sender not accepted [31mhere"));
    QVERIFY(server.Stop());
}

void TestMailTransfer::aRefusedRecipientIsTold()
{
    MailServer server;
    QVERIFY(server.Start({QStringLiteral("--refuse-recipient"), QStringLiteral("gone@example.com")}));
    SystemMailServer settings = server.Settings();
    settings.recipients.insert(1, QStringLiteral("gone@example.com"));
    const MailOutcome outcome = Send(settings);
    QCOMPARE(outcome.eKind, Kind::RecipientRefused);
    QCOMPARE(outcome.strRecipient, QStringLiteral("gone@example.com"));
    QVERIFY(outcome.Text(settings).contains(QLatin1String("gone@example.com")));
    QVERIFY(outcome.Text(settings).contains(QLatin1String("no such mailbox")));
    QVERIFY(server.Stop());
}

void TestMailTransfer::aRefusedMessageIsTold()
{
    MailServer server;
    QVERIFY(server.Start({QStringLiteral("--refuse-message")}));
    const MailOutcome outcome = Send(server.Settings());
    QCOMPARE(outcome.eKind, Kind::MessageRefused);
    QVERIFY(outcome.strServerText.contains(QLatin1String("not wanted")));
    QVERIFY(server.Stop());
}

void TestMailTransfer::aStrangerOnThePortIsTold_data()
{
    QTest::addColumn<QString>("strLine");
    QTest::newRow("a web server") << QStringLiteral("HTTP/1.1 400 Bad Request");
    QTest::newRow("a remote shell") << QStringLiteral("SSH-2.0-Server");
    QTest::newRow("a mail server that takes none") << QStringLiteral("554 no mail here");
}

void TestMailTransfer::aStrangerOnThePortIsTold()
{
    QFETCH(QString, strLine);
    MailServer server;
    QVERIFY(server.Start({QStringLiteral("--line"), strLine, QStringLiteral("--hang-up")}));
    QCOMPARE(Send(server.Settings()).eKind, Kind::NoMailServer);
}

void TestMailTransfer::aConnectionThatBreaksOffIsTold()
{
    MailServer server;
    QVERIFY(server.Start({QStringLiteral("--hang-up")}));
    QCOMPARE(Send(server.Settings()).eKind, Kind::ConnectionLost);
}

void TestMailTransfer::addressesThatCannotBeWrittenSendNothing_data()
{
    QTest::addColumn<QString>("strSender");
    QTest::addColumn<QStringList>("recipients");
    const QString strGood = QStringLiteral("guard@example.com");
    const QString strAttack = QStringLiteral("guard@example.com>\r\nRCPT TO:<all@example.com");
    QTest::newRow("sender") << strAttack << QStringList{strGood};
    QTest::newRow("recipient") << strGood << QStringList{strGood, strAttack};
    QTest::newRow("no recipient") << strGood << QStringList();
    QTest::newRow("no sender") << QString() << QStringList{strGood};
}

void TestMailTransfer::addressesThatCannotBeWrittenSendNothing()
{
    QFETCH(QString, strSender);
    QFETCH(QStringList, recipients);
    MailServer server;
    QVERIFY(server.Start());
    SystemMailServer settings = server.Settings();
    settings.strSender = strSender;
    settings.recipients = recipients;
    QCOMPARE(Send(settings).eKind, Kind::BadAddress);
    QVERIFY(server.Stop());
}

void TestMailTransfer::cancellingEndsAWaitAtOnce()
{
    MailServer server;
    QVERIFY(server.Start({QStringLiteral("--mute")}));
    MailTransfer::Job job = JobFor(server.Settings());
    job.timeLimit = std::chrono::hours(1);
    MailTransfer transfer(job);
    MailOutcome outcome;
    std::thread thread([&] { outcome = transfer.Run(); });
    const bool bConnected = server.Next().value(QStringLiteral("connected")).toBool();
    transfer.Cancel();
    thread.join();
    QVERIFY(bConnected);
    QCOMPARE(outcome.eKind, Kind::Cancelled);
}

void TestMailTransfer::cancellingBeforehandSendsNothing()
{
    MailServer server;
    QVERIFY(server.Start());
    MailTransfer transfer(JobFor(server.Settings()));
    transfer.Cancel();
    QCOMPARE(transfer.Run().eKind, Kind::Cancelled);
    QVERIFY(server.Stop());
}

void TestMailTransfer::theSenderWorksInTheBackgroundOneMailAtATime()
{
    MailServer server;
    QVERIFY(server.Start());
    MailSender sender;
    QSignalSpy finished(&sender, &MailSender::SignalFinished);
    Kind eKind = Kind::Failed;
    QThread* pThread = nullptr;
    connect(&sender, &MailSender::SignalFinished, &sender, [&](const MailOutcome& outcome) {
        eKind = outcome.eKind;
        pThread = QThread::currentThread();
    });
    QVERIFY(sender.Send(JobFor(server.Settings())));
    QVERIFY(sender.IsBusy());
    QVERIFY(!sender.Send(JobFor(server.Settings())));
    QVERIFY(finished.wait(30000));
    QCOMPARE(eKind, Kind::Sent);
    QCOMPARE(pThread, QThread::currentThread());
    QVERIFY(!sender.IsBusy());
    QVERIFY(server.Next().contains(QStringLiteral("message")));
    QVERIFY(sender.Send(JobFor(server.Settings())));
    QVERIFY(finished.wait(30000));
    QVERIFY(server.Next().contains(QStringLiteral("message")));
    QVERIFY(server.Stop());
}

void TestMailTransfer::theSenderTellsOfACancelledMail()
{
    MailServer server;
    QVERIFY(server.Start({QStringLiteral("--mute")}));
    MailSender sender;
    sender.Cancel(); // nothing is under way: no harm
    Kind eKind = Kind::Failed;
    connect(&sender, &MailSender::SignalFinished, &sender,
            [&eKind](const MailOutcome& outcome) { eKind = outcome.eKind; });
    QVERIFY(sender.Send(JobFor(server.Settings())));
    QVERIFY(server.Next().value(QStringLiteral("connected")).toBool());
    sender.Cancel();
    sender.Cancel();
    QTRY_COMPARE(eKind, Kind::Cancelled);
    QVERIFY(!sender.IsBusy());
}

void TestMailTransfer::theSenderMayGoWhileAMailIsUnderWay()
{
    MailServer server;
    QVERIFY(server.Start({QStringLiteral("--mute")}));
    bool bTold = false;
    {
        MailSender sender;
        connect(&sender, &MailSender::SignalFinished, &sender, [&bTold] { bTold = true; });
        QVERIFY(sender.Send(JobFor(server.Settings())));
        QVERIFY(server.Next().value(QStringLiteral("connected")).toBool());
    }
    const QJsonObject gone = server.Next();
    QVERIFY(gone.contains(QStringLiteral("connected")));
    QVERIFY(!gone.value(QStringLiteral("connected")).toBool());
    QCoreApplication::sendPostedEvents();
    QVERIFY(!bTold);
}

void TestMailTransfer::everyOutcomeSaysWhatToDo()
{
    SystemMailServer server;
    server.strServer = QStringLiteral("mail.example.com");
    server.iPort = 2525;
    QSet<QString> texts;
    for (int i = 0; i <= static_cast<int>(Kind::Failed); ++i) {
        MailOutcome outcome;
        outcome.eKind = static_cast<Kind>(i);
        const QString strText = outcome.Text(server);
        QVERIFY(!strText.isEmpty());
        QVERIFY(!strText.contains(QLatin1Char('%')));
        texts.insert(strText);
    }
    QCOMPARE(texts.size(), static_cast<int>(Kind::Failed) + 1);
    QCOMPARE(MailOutcome::CleanLine("a\r\nb\t\x1b[31m\xff "), QString::fromUtf8("a b [31m\xef\xbf\xbd"));
    QCOMPARE(MailOutcome::CleanLine(QByteArray(5000, 'x')).size(), 200);
}

QTEST_GUILESS_MAIN(TestMailTransfer)
#include "tst_mail_transfer.moc"
