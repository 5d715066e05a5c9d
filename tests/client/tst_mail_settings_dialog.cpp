#include "client/MailSettingsDialog.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSpinBox>
#include <QtTest>

namespace {

SystemMailServer Server(const QString& strHost, int32_t iPort)
{
    SystemMailServer server;
    server.strServer = strHost;
    server.iPort = iPort;
    server.strSender = QStringLiteral("guard@example.com");
    server.recipients = QStringList{QStringLiteral("desk@example.com")};
    return server;
}

} // namespace

class TestMailSettingsDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void itShowsWhatItIsGiven();
    void whatIsTypedIsHandedOut();
    void acceptingWithAProblemStaysOpenAndSaysWhy();
    void aNewServerIsEncrypted();
    void thePortFollowsTheEncryptionUnlessItWasChosen();
    void showingAnotherServerKeepsItsPort();
    void onlyWhatMattersCanBeTyped();
    void theProblemOfAnotherServerBringsThatServerUp();
    void anEmptyListStartsWithOneEmptyEntryThatCostsNothing();
    void serversAreAddedAndRemoved();
    void removingTheLastServerLeavesNothingToType();
    void noMoreServersThanAreKept();
    void cancellingIsNoAcceptance();
    void escapeIsNoAcceptance();

private:
    template <typename T>
    static T* Find(const QWidget& dialog, const char* szName)
    {
        T* pFound = dialog.findChild<T*>(QLatin1String(szName));
        Q_ASSERT(pFound != nullptr);
        return pFound;
    }
    static void Type(const QWidget& dialog, const char* szEdit, const QString& strText)
    {
        auto* pEdit = Find<QLineEdit>(dialog, szEdit);
        pEdit->setFocus();
        pEdit->selectAll();
        QTest::keyClicks(pEdit, strText);
    }
    static void Click(const QWidget& dialog, const char* szButton)
    {
        QTest::mouseClick(Find<QAbstractButton>(dialog, szButton), Qt::LeftButton);
    }
    static void Accept(const MailSettingsDialog& dialog)
    {
        QTest::mouseClick(dialog.GetButton(QDialogButtonBox::Ok), Qt::LeftButton);
    }
};

void TestMailSettingsDialog::itShowsWhatItIsGiven()
{
    const MailSettingsDialog dialog(
        {true, {Server(QStringLiteral("a.example"), 587), Server(QStringLiteral("b.example"), 25)}});
    QVERIFY(Find<QCheckBox>(dialog, "chkEnable")->isChecked());
    const auto* pList = Find<QListWidget>(dialog, "listServers");
    QCOMPARE(pList->count(), 2);
    QCOMPARE(pList->item(1)->text(), QStringLiteral("b.example"));
    QCOMPARE(pList->currentRow(), 0);
    QCOMPARE(Find<QLineEdit>(dialog, "edtHost")->text(), QStringLiteral("a.example"));
    QCOMPARE(Find<QSpinBox>(dialog, "spinPort")->value(), 587);
    QCOMPARE(Find<QLineEdit>(dialog, "edtSender")->text(), QStringLiteral("guard@example.com"));
}

void TestMailSettingsDialog::whatIsTypedIsHandedOut()
{
    MailSettingsDialog dialog({});
    dialog.show();
    Find<QCheckBox>(dialog, "chkEnable")->click();
    Type(dialog, "edtHost", QStringLiteral(" mail.example.com "));
    Find<QSpinBox>(dialog, "spinPort")->setValue(465);
    Find<QComboBox>(dialog, "cmbEncryption")->setCurrentIndex(2);
    Type(dialog, "edtUser", QStringLiteral("guard"));
    Type(dialog, "edtPassword", QStringLiteral("secret"));
    Type(dialog, "edtSender", QStringLiteral("guard@example.com"));
    Type(dialog, "edtRecipients", QStringLiteral("desk@example.com"));
    Type(dialog, "edtCertificateFile", QStringLiteral("own.pem"));
    QCOMPARE(Find<QListWidget>(dialog, "listServers")->item(0)->text(), QStringLiteral("mail.example.com"));
    Accept(dialog);
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QVERIFY(!dialog.isVisible());
    SystemMailServer expected = Server(QStringLiteral("mail.example.com"), 465);
    expected.strUser = QStringLiteral("guard");
    expected.strPassword = QStringLiteral("secret");
    expected.eEncryption = SystemMailEncryption::Tls;
    expected.strCertificateFile = QStringLiteral("own.pem");
    QVERIFY(dialog.Settings() == (SystemMailSettings{true, {expected}}));
}

void TestMailSettingsDialog::acceptingWithAProblemStaysOpenAndSaysWhy()
{
    MailSettingsDialog dialog({});
    dialog.show();
    Find<QCheckBox>(dialog, "chkEnable")->click();
    Accept(dialog);
    QVERIFY(dialog.isVisible());
    QVERIFY(!Find<QLabel>(dialog, "lblProblem")->text().isEmpty());
    Type(dialog, "edtHost", QStringLiteral("mail.example.com"));
    QVERIFY(Find<QLabel>(dialog, "lblProblem")->text().isEmpty());
    Accept(dialog);
    QVERIFY(dialog.isVisible()); // the sender is still missing
    QVERIFY(!Find<QLabel>(dialog, "lblProblem")->text().isEmpty());
    Type(dialog, "edtSender", QStringLiteral("guard@example.com"));
    Accept(dialog);
    QVERIFY(dialog.isVisible()); // nobody would get the mail
    Type(dialog, "edtRecipients", QStringLiteral("desk@example.com"));
    Type(dialog, "edtUser", QStringLiteral("guard"));
    Accept(dialog);
    QVERIFY(dialog.isVisible()); // the user needs a password
    Type(dialog, "edtPassword", QStringLiteral("secret"));
    Accept(dialog);
    QVERIFY(!dialog.isVisible());
}

void TestMailSettingsDialog::aNewServerIsEncrypted()
{
    const MailSettingsDialog dialog({});
    QCOMPARE(Find<QComboBox>(dialog, "cmbEncryption")->currentText(), QStringLiteral("STARTTLS"));
    QCOMPARE(Find<QSpinBox>(dialog, "spinPort")->value(), 587);
}

void TestMailSettingsDialog::thePortFollowsTheEncryptionUnlessItWasChosen()
{
    const MailSettingsDialog dialog({});
    auto* pEncryption = Find<QComboBox>(dialog, "cmbEncryption");
    auto* pPort = Find<QSpinBox>(dialog, "spinPort");
    pEncryption->setCurrentIndex(2);
    QCOMPARE(pPort->value(), 465);
    pEncryption->setCurrentIndex(0);
    QCOMPARE(pPort->value(), 25);
    pPort->setValue(2525);
    pEncryption->setCurrentIndex(1);
    QCOMPARE(pPort->value(), 2525);
}

void TestMailSettingsDialog::showingAnotherServerKeepsItsPort()
{
    SystemMailServer odd = Server(QStringLiteral("b.example"), 25);
    odd.eEncryption = SystemMailEncryption::Tls;
    const SystemMailSettings settings{false, {Server(QStringLiteral("a.example"), 25), odd}};
    const MailSettingsDialog dialog(settings);
    auto* pList = Find<QListWidget>(dialog, "listServers");
    pList->setCurrentRow(1);
    QCOMPARE(Find<QComboBox>(dialog, "cmbEncryption")->currentText(), QStringLiteral("TLS"));
    QCOMPARE(Find<QSpinBox>(dialog, "spinPort")->value(), 25);
    pList->setCurrentRow(0);
    QVERIFY(dialog.Settings() == settings);
}

void TestMailSettingsDialog::onlyWhatMattersCanBeTyped()
{
    MailSettingsDialog dialog({});
    dialog.show();
    auto* pEncryption = Find<QComboBox>(dialog, "cmbEncryption");
    auto* pWarning = Find<QLabel>(dialog, "lblOpenPassword");
    QVERIFY(!Find<QLineEdit>(dialog, "edtPassword")->isEnabled());
    QVERIFY(Find<QLineEdit>(dialog, "edtCertificateFile")->isEnabled());
    QCOMPARE(Find<QLineEdit>(dialog, "edtPassword")->echoMode(), QLineEdit::Password);
    Type(dialog, "edtUser", QStringLiteral("guard"));
    QVERIFY(Find<QLineEdit>(dialog, "edtPassword")->isEnabled());
    QVERIFY(!pWarning->isVisible());
    pEncryption->setCurrentIndex(0);
    QVERIFY(pWarning->isVisible());
    QVERIFY(!Find<QLineEdit>(dialog, "edtCertificateFile")->isEnabled());
    QVERIFY(!Find<QAbstractButton>(dialog, "btnBrowse")->isEnabled());
}

void TestMailSettingsDialog::theProblemOfAnotherServerBringsThatServerUp()
{
    // An empty entry in front: positions in what is checked and in what is shown differ.
    MailSettingsDialog dialog({true,
                               {SystemMailServer(), Server(QStringLiteral("a.example"), 25),
                                Server(QStringLiteral("not a host"), 25)}});
    dialog.show();
    Accept(dialog);
    QVERIFY(dialog.isVisible());
    QCOMPARE(Find<QListWidget>(dialog, "listServers")->currentRow(), 2);
    QCOMPARE(Find<QLineEdit>(dialog, "edtHost")->text(), QStringLiteral("not a host"));
}

void TestMailSettingsDialog::anEmptyListStartsWithOneEmptyEntryThatCostsNothing()
{
    MailSettingsDialog dialog({});
    dialog.show();
    QCOMPARE(Find<QListWidget>(dialog, "listServers")->count(), 1);
    Accept(dialog);
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QVERIFY(dialog.Settings() == SystemMailSettings());
}

void TestMailSettingsDialog::serversAreAddedAndRemoved()
{
    MailSettingsDialog dialog(
        {false,
         {Server(QStringLiteral("a.example"), 1), Server(QStringLiteral("b.example"), 2),
          Server(QStringLiteral("c.example"), 3)}});
    dialog.show();
    auto* pList = Find<QListWidget>(dialog, "listServers");
    pList->setCurrentRow(1);
    Click(dialog, "btnRemove");
    QCOMPARE(pList->count(), 2);
    QCOMPARE(dialog.Settings().servers.at(0).strServer, QStringLiteral("a.example"));
    QCOMPARE(dialog.Settings().servers.at(1).strServer, QStringLiteral("c.example"));
    QCOMPARE(Find<QLineEdit>(dialog, "edtHost")->text(), pList->currentItem()->text());
    Click(dialog, "btnAdd");
    QCOMPARE(pList->currentRow(), 2);
    QVERIFY(Find<QLineEdit>(dialog, "edtHost")->text().isEmpty());
    Type(dialog, "edtHost", QStringLiteral("d.example"));
    Find<QSpinBox>(dialog, "spinPort")->setValue(4);
    pList->setCurrentRow(0);
    QCOMPARE(Find<QSpinBox>(dialog, "spinPort")->value(), 1);
    const SystemMailSettings settings = dialog.Settings();
    QCOMPARE(settings.servers.size(), 3);
    QCOMPARE(settings.servers.at(0).iPort, 1);
    QCOMPARE(settings.servers.at(1).iPort, 3);
    QCOMPARE(settings.servers.at(2).strServer, QStringLiteral("d.example"));
    QCOMPARE(settings.servers.at(2).iPort, 4);
}

void TestMailSettingsDialog::removingTheLastServerLeavesNothingToType()
{
    MailSettingsDialog dialog({true, {Server(QStringLiteral("a.example"), 25)}});
    dialog.show();
    Click(dialog, "btnRemove");
    QVERIFY(dialog.Settings().servers.isEmpty());
    QVERIFY(!Find<QLineEdit>(dialog, "edtHost")->isEnabled());
    QVERIFY(Find<QLineEdit>(dialog, "edtHost")->text().isEmpty());
    QVERIFY(!Find<QAbstractButton>(dialog, "btnRemove")->isEnabled());
    Accept(dialog);
    QVERIFY(dialog.isVisible()); // mail is on, and there is no server
    Click(dialog, "btnAdd");
    QVERIFY(Find<QLineEdit>(dialog, "edtHost")->isEnabled());
}

void TestMailSettingsDialog::noMoreServersThanAreKept()
{
    MailSettingsDialog dialog({});
    dialog.show();
    for (int i = 0; i < 100; ++i) {
        Click(dialog, "btnAdd");
    }
    QCOMPARE(Find<QListWidget>(dialog, "listServers")->count(), 32);
    QVERIFY(!Find<QAbstractButton>(dialog, "btnAdd")->isEnabled());
}

void TestMailSettingsDialog::cancellingIsNoAcceptance()
{
    MailSettingsDialog dialog({});
    dialog.show();
    Type(dialog, "edtHost", QStringLiteral("not a host"));
    QTest::mouseClick(dialog.GetButton(QDialogButtonBox::Cancel), Qt::LeftButton);
    QVERIFY(!dialog.isVisible());
    QCOMPARE(dialog.result(), int(QDialog::Rejected));
}

void TestMailSettingsDialog::escapeIsNoAcceptance()
{
    MailSettingsDialog dialog({});
    dialog.show();
    QTest::keyClick(&dialog, Qt::Key_Escape);
    QVERIFY(!dialog.isVisible());
    QCOMPARE(dialog.result(), int(QDialog::Rejected));
}

QTEST_MAIN(TestMailSettingsDialog)
#include "tst_mail_settings_dialog.moc"
