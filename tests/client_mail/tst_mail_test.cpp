#include "client/MailSettingsDialog.h"
#include "tests/client_mail/MailServer.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSpinBox>
#include <QtTest>

#include <memory>

/// The test mail of the mail settings, from the button to the server.
class TestMailTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void whatIsTypedIsTriedOut();
    void aFailureSaysWhatToDo();
    void whatIsMissingIsAskedForFirst_data();
    void whatIsMissingIsAskedForFirst();
    void theTestNeedsNoMailSwitchedOn();
    void theDialogStaysUsableMeanwhile();
    void theTestCanBeStopped();
    void theDialogMayBeAcceptedMeanwhile();
    void theDialogMayBeDestroyedMeanwhile();

private:
    template <typename T>
    T* Find(const char* szName) const
    {
        T* pFound = m_dialog->findChild<T*>(QLatin1String(szName));
        Q_ASSERT(pFound != nullptr);
        return pFound;
    }
    QPushButton* Button(const char* szName) const { return Find<QPushButton>(szName); }
    void Show(const SystemMailServer& server, bool bEnable = true);
    void Click(const char* szButton) const { QTest::mouseClick(Button(szButton), Qt::LeftButton); }
    QString Result() const { return Find<QLabel>("lblTest")->text(); }
    QString Problem() const { return Find<QLabel>("lblProblem")->text(); }

    std::unique_ptr<MailServer> m_server;
    std::unique_ptr<MailSettingsDialog> m_dialog;
};

void TestMailTest::init()
{
    m_dialog.reset();
    m_server = std::make_unique<MailServer>();
}

void TestMailTest::Show(const SystemMailServer& server, bool bEnable)
{
    m_dialog = std::make_unique<MailSettingsDialog>(SystemMailSettings{bEnable, {server}});
    m_dialog->show();
}

void TestMailTest::whatIsTypedIsTriedOut()
{
    QVERIFY(
        m_server->Start({QStringLiteral("--encryption"), QStringLiteral("starttls"), QStringLiteral("--user"),
                         QStringLiteral("guard"), QStringLiteral("--password"), QStringLiteral("secret")}));
    const SystemMailServer settings = m_server->Settings(SystemMailEncryption::StartTls);
    m_dialog = std::make_unique<MailSettingsDialog>(SystemMailSettings());
    m_dialog->show();
    QTest::keyClicks(Find<QLineEdit>("edtHost"), settings.strServer);
    Find<QSpinBox>("spinPort")->setValue(settings.iPort);
    QTest::keyClicks(Find<QLineEdit>("edtUser"), QStringLiteral("guard"));
    QTest::keyClicks(Find<QLineEdit>("edtPassword"), QStringLiteral("secret"));
    QTest::keyClicks(Find<QLineEdit>("edtSender"), settings.strSender);
    QTest::keyClicks(Find<QLineEdit>("edtRecipients"), QStringLiteral("desk@example.com; chief@example.com"));
    QTest::keyClicks(Find<QLineEdit>("edtCertificateFile"), settings.strCertificateFile);
    QVERIFY(Button("btnStop")->isHidden());
    Click("btnTest");
    QVERIFY(!Button("btnTest")->isEnabled());
    QVERIFY(Button("btnStop")->isVisible());
    QTRY_VERIFY(Button("btnTest")->isEnabled());
    QVERIFY2(Result().contains(QLatin1String("desk@example.com, chief@example.com")),
             qUtf8Printable(Result()));
    QVERIFY(Button("btnStop")->isHidden());
    const QJsonObject mail = m_server->Next();
    QCOMPARE(mail.value(QStringLiteral("user")).toString(), QStringLiteral("guard"));
    QVERIFY(MailServer::HeadersOf(mail).contains("<guard@example.com>"));
    QVERIFY(!MailServer::BodyOf(mail).isEmpty());
}

void TestMailTest::aFailureSaysWhatToDo()
{
    QVERIFY(m_server->Start({QStringLiteral("--refuse-recipient"), QStringLiteral("desk@example.com")}));
    Show(m_server->Settings());
    Click("btnTest");
    QTRY_VERIFY(Button("btnTest")->isEnabled());
    QVERIFY(Result().contains(QLatin1String("desk@example.com")));
    QVERIFY(Result().contains(QLatin1String("no such mailbox")));
    QVERIFY(Find<QLabel>("lblTestIcon")->isVisible());
}

void TestMailTest::whatIsMissingIsAskedForFirst_data()
{
    QTest::addColumn<QString>("strEdit");
    for (const char* szEdit : {"edtHost", "edtPassword", "edtSender", "edtRecipients"}) {
        QTest::newRow(szEdit) << QString::fromLatin1(szEdit);
    }
}

void TestMailTest::whatIsMissingIsAskedForFirst()
{
    QFETCH(QString, strEdit);
    QVERIFY(m_server->Start());
    SystemMailServer settings = m_server->Settings();
    settings.strUser = QStringLiteral("guard");
    settings.strPassword = QStringLiteral("secret");
    Show(settings);
    m_dialog->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_dialog.get()));
    auto* pEdit = m_dialog->findChild<QLineEdit*>(strEdit);
    pEdit->clear();
    Click("btnTest");
    QVERIFY(!Problem().isEmpty());
    QVERIFY(pEdit->hasFocus());
    QVERIFY(Button("btnTest")->isEnabled());
    QVERIFY(Result().isEmpty());
    QVERIFY(m_server->Stop());
}

void TestMailTest::theTestNeedsNoMailSwitchedOn()
{
    QVERIFY(m_server->Start());
    Show(m_server->Settings(), false);
    Click("btnTest");
    QVERIFY(m_server->Next().contains(QStringLiteral("message")));
    QTRY_VERIFY(Button("btnTest")->isEnabled());
    QVERIFY(!m_dialog->Settings().bEnable);
}

void TestMailTest::theDialogStaysUsableMeanwhile()
{
    QVERIFY(m_server->Start({QStringLiteral("--mute")}));
    Show(m_server->Settings());
    Click("btnTest");
    QVERIFY(m_server->Next().value(QStringLiteral("connected")).toBool());
    auto* pHost = Find<QLineEdit>("edtHost");
    pHost->selectAll();
    QTest::keyClicks(pHost, QStringLiteral("other.example"));
    Click("btnAdd");
    QCOMPARE(Find<QListWidget>("listServers")->count(), 2);
    QVERIFY(!Button("btnTest")->isEnabled()); // one test at a time
    QVERIFY(Result().contains(QLatin1String("localhost")));
    Click("btnStop");
    QTRY_VERIFY(Button("btnTest")->isEnabled());
    QCOMPARE(m_dialog->Settings().servers.at(0).strServer, QStringLiteral("other.example"));
}

void TestMailTest::theTestCanBeStopped()
{
    QVERIFY(m_server->Start({QStringLiteral("--mute")}));
    Show(m_server->Settings());
    Click("btnTest");
    const QString strSending = Result();
    QVERIFY(!strSending.isEmpty());
    QVERIFY(m_server->Next().value(QStringLiteral("connected")).toBool());
    Click("btnStop");
    QTRY_VERIFY(Button("btnStop")->isHidden());
    QVERIFY(Result() != strSending);
    const QJsonObject gone = m_server->Next();
    QVERIFY(gone.contains(QStringLiteral("connected")));
    QVERIFY(!gone.value(QStringLiteral("connected")).toBool());
}

void TestMailTest::theDialogMayBeAcceptedMeanwhile()
{
    QVERIFY(m_server->Start({QStringLiteral("--mute")}));
    Show(m_server->Settings());
    Click("btnTest");
    QVERIFY(m_server->Next().value(QStringLiteral("connected")).toBool());
    QTest::mouseClick(m_dialog->GetButton(QDialogButtonBox::Ok), Qt::LeftButton);
    QCOMPARE(m_dialog->result(), int(QDialog::Accepted));
    QVERIFY(!m_dialog->isVisible());
    QVERIFY(m_dialog->Settings() == (SystemMailSettings{true, {m_server->Settings()}}));
    // Nobody is there any more to read the answer.
    QVERIFY(!m_server->Next().value(QStringLiteral("connected")).toBool(true));
}

void TestMailTest::theDialogMayBeDestroyedMeanwhile()
{
    QVERIFY(m_server->Start({QStringLiteral("--mute")}));
    Show(m_server->Settings());
    Click("btnTest");
    QVERIFY(m_server->Next().value(QStringLiteral("connected")).toBool());
    m_dialog.reset();
    QVERIFY(!m_server->Next().value(QStringLiteral("connected")).toBool(true));
}

QTEST_MAIN(TestMailTest)
#include "tst_mail_test.moc"
