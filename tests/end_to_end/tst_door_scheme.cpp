#include "ClientDriver.h"
#include "SchemeFile.h"

#include "client/MainWindow.h"
#include "client/SiteSession.h"
#include "platform/SystemLibrary/AlarmSchemeCommon.h"
#include "platform/SystemLibrary/QCommon.h"
#include "platform/SystemLibrary/QSystem.h"

#include <QAbstractButton>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QImage>
#include <QLineEdit>
#include <QProcess>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QtTest>

namespace {

// From the sample site: a controller with its first two doors, and a second controller.
constexpr qint64 Controller = 1001;
constexpr qint64 MainEntrance = 100101;
constexpr qint64 Turnstile = 100102;
constexpr qint64 OtherController = 1002;
constexpr qint64 OfficeNorth = 100201;
constexpr int KindDevice = 2;
constexpr int KindChannel = 3;

QString DoorSource(qint64 iDevice, qint64 iDoor)
{
    return QStringLiteral("%1$1$0$%2").arg(QString::number(iDevice), QString::number(iDoor));
}

} // namespace

class TestDoorScheme : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void aDoorsSchemeIsSwitchedOnSavedAndFoundAgain();
    void anotherProcessFindsTheSchemeAndChangesNothing();
    void decliningTheMailPromptSavesNoMail();
    void anOperatorIsToldAboutTheMissingRight();
    void ctrlSSavesLikeTheButton();
    void withoutSaveNothingIsKept();
    void anEditSurvivesTheWayToAnotherDoorAndBack();
    void aClosedTabKeepsItsPlace();
    void aLockedDatabaseKeepsTheOldSchemesAndTheEdits();
    void aFileThatIsNoDatabaseIsLeftAlone();
    void aRemovedDeviceReachesNoSave();
    void thePageThatWasOpenComesBack();
    void aPageBehindTheHomePageComesBackToo();
    void aPageThatWasClosedStaysClosed();

private:
    void StartOnPage(UserRole role = UserRole::Administrator)
    {
        m_driver = std::make_unique<ClientDriver>(m_data->path(), role);
        QVERIFY(m_driver->Start());
        QVERIFY(m_driver->OpenByTile());
    }
    void ChooseDoorAndEvent()
    {
        QVERIFY(m_driver->ClickNode(MainEntrance, KindChannel));
        QVERIFY(m_driver->ClickEvent(m_strEvent));
    }
    void ClickSave() { QVERIFY(m_driver->ClickButton("btnSave")); }
    QString Flags(const QString& strSource) const
    {
        return SchemeFile(m_driver->DatabasePath()).Flags(strSource, m_iType);
    }
    static QByteArray Bytes(const QString& strPath)
    {
        QFile file(strPath);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    static void Press(QWidget* pDialog, const char* szButton)
    {
        auto* pButton = pDialog->findChild<QAbstractButton*>(QLatin1String(szButton));
        QVERIFY(pButton != nullptr);
        QTest::mouseClick(pButton, Qt::LeftButton);
    }
    static void FillInMail(QWidget* pDialog)
    {
        QCOMPARE(pDialog->objectName(), QStringLiteral("MailSettingsDialog"));
        QTest::mouseClick(pDialog->findChild<QAbstractButton*>(QStringLiteral("chkEnable")), Qt::LeftButton,
                          Qt::NoModifier, QPoint(10, 10));
        QTest::keyClicks(pDialog->findChild<QLineEdit*>(QStringLiteral("edtHost")),
                         QStringLiteral("mail.example.com"));
        QTest::keyClicks(pDialog->findChild<QLineEdit*>(QStringLiteral("edtSender")),
                         QStringLiteral("guard@example.com"));
        QTest::keyClicks(pDialog->findChild<QLineEdit*>(QStringLiteral("edtRecipients")),
                         QStringLiteral("desk@example.com"));
        QTest::keyClick(pDialog, Qt::Key_Return);
    }

    std::unique_ptr<QTemporaryDir> m_data;
    std::unique_ptr<ClientDriver> m_driver;
    int m_iType = -1;
    QString m_strEvent;
    QString m_strWorkingDirectory;
};

void TestDoorScheme::init()
{
    m_strWorkingDirectory = QDir::currentPath();
    m_data = std::make_unique<QTemporaryDir>();
    // Not the first entry, which is current without any click.
    m_iType = AlarmSchemeCommon::ACSAlarmEvent().at(2);
    m_strEvent = QCommon::GetAlarmNameByType(m_iType);
}

void TestDoorScheme::cleanup()
{
    m_driver.reset();
    QDir::setCurrent(m_strWorkingDirectory);
}

void TestDoorScheme::aDoorsSchemeIsSwitchedOnSavedAndFoundAgain()
{
    StartOnPage();
    ChooseDoorAndEvent();
    QVERIFY2(m_driver->StatusText().contains(QStringLiteral("Main entrance")),
             qPrintable(m_driver->StatusText()));
    QVERIFY2(m_driver->StatusText().contains(m_strEvent), qPrintable(m_driver->StatusText()));
    QVERIFY(!m_driver->IsSwitchedOn("btnOpenStatus"));
    QVERIFY(m_driver->ClickButton("btnOpenStatus"));
    QVERIFY(m_driver->HasMark(m_strEvent));
    QVERIFY(m_driver->ClickButton("btnAlarmSound"));
    // Mail is not set up yet: the page asks, and the client opens its mail settings.
    m_driver->AnswerDialogs({[](QWidget* pPrompt) { Press(pPrompt, "btnAccept"); }, &FillInMail});
    QVERIFY(m_driver->ClickButton("btnSendEmail"));
    QCOMPARE(m_driver->AnsweredDialogs(), 2);
    QVERIFY(QSystem::GetInstance()->GetMailSettings().bEnable);
    QVERIFY(m_driver->IsSwitchedOn("btnSendEmail"));
    ClickSave();
    QVERIFY(!ClientDriver::LastNote().isEmpty());
    m_driver->End();

    const QString strSource = DoorSource(Controller, MainEntrance);
    const SchemeFile file(m_driver->DatabasePath());
    QCOMPARE(file.Flags(strSource, m_iType), QStringLiteral("1|1|1"));
    QCOMPARE(file.Rows(QStringLiteral("select count(*) from AlarmBaseInfo where bOpen = 1")),
             QStringList{QStringLiteral("1")});
    // A fresh scheme is armed all day on all seven days; the file counts them from Sunday, 1, to Saturday, 7.
    QStringList week;
    for (int iDay = 1; iDay <= 7; ++iDay) {
        week.append(QStringLiteral("%1|0|86399").arg(iDay));
    }
    QCOMPARE(file.Rows(QStringLiteral("select t.Day, t.\"Begin\", t.\"End\" from AlarmDefenceTimeInfo t join "
                                      "AlarmUniqueID u on u.AlarmUniqueID = t.AlarmUniqueID "
                                      "where u.strEventSource = '%1' and u.AlarmType = %2 order by t.Day")
                           .arg(strSource, QString::number(m_iType))),
             week);

    StartOnPage();
    ChooseDoorAndEvent();
    QVERIFY(m_driver->IsSwitchedOn("btnOpenStatus"));
    QVERIFY(m_driver->IsSwitchedOn("btnAlarmSound"));
    QVERIFY(m_driver->IsSwitchedOn("btnSendEmail"));
    QVERIFY(m_driver->HasMark(m_strEvent));
    QVERIFY(QSystem::GetInstance()->GetMailSettings().bEnable);
    // The door beside it has nothing of this.
    QVERIFY(m_driver->ClickNode(Turnstile, KindChannel));
    QVERIFY(m_driver->ClickEvent(m_strEvent));
    QVERIFY(!m_driver->IsSwitchedOn("btnOpenStatus"));
    QVERIFY(!m_driver->IsSwitchedOn("btnAlarmSound"));
}

void TestDoorScheme::anotherProcessFindsTheSchemeAndChangesNothing()
{
    StartOnPage();
    ChooseDoorAndEvent();
    QVERIFY(m_driver->ClickButton("btnOpenStatus"));
    ClickSave();
    m_driver->End();
    const QByteArray before = Bytes(m_driver->DatabasePath());
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    const QString strPicture = m_data->filePath(QStringLiteral("page.png"));
    process.start(QCoreApplication::applicationDirPath() + QStringLiteral("/../bin/acs-client"),
                  {QStringLiteral("--data-dir"), m_data->path(), QStringLiteral("--open"),
                   QStringLiteral("ACSEventConfigUI"), QStringLiteral("--picture"), strPicture});
    QVERIFY(process.waitForFinished());
    QVERIFY2(process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0,
             process.readAll().constData());
    QVERIFY(QImage(strPicture).width() >= 1061);
    QCOMPARE(SchemeFile(m_driver->DatabasePath()).Flags(DoorSource(Controller, MainEntrance), m_iType),
             QStringLiteral("1|0|0"));
    QCOMPARE(Bytes(m_driver->DatabasePath()), before);
}

void TestDoorScheme::decliningTheMailPromptSavesNoMail()
{
    StartOnPage();
    ChooseDoorAndEvent();
    QVERIFY(m_driver->ClickButton("btnOpenStatus"));
    m_driver->AnswerDialogs({[](QWidget* pPrompt) { Press(pPrompt, "btnRefuse"); }});
    QVERIFY(m_driver->ClickButton("btnSendEmail"));
    QCOMPARE(m_driver->AnsweredDialogs(), 1);
    QVERIFY(!m_driver->IsSwitchedOn("btnSendEmail"));
    // Accepting the prompt and then cancelling the settings ends the same way.
    m_driver->AnswerDialogs({[](QWidget* pPrompt) { Press(pPrompt, "btnAccept"); },
                             [](QWidget* pDialog) { QTest::keyClick(pDialog, Qt::Key_Escape); }});
    QVERIFY(m_driver->ClickButton("btnSendEmail"));
    QCOMPARE(m_driver->AnsweredDialogs(), 2);
    QVERIFY(!m_driver->IsSwitchedOn("btnSendEmail"));
    ClickSave();
    QCOMPARE(Flags(DoorSource(Controller, MainEntrance)), QStringLiteral("1|0|0"));
}

void TestDoorScheme::anOperatorIsToldAboutTheMissingRight()
{
    StartOnPage(UserRole::Operator);
    ChooseDoorAndEvent();
    m_driver->AnswerDialogs({[](QWidget* pPrompt) { Press(pPrompt, "btnAccept"); }});
    QVERIFY(m_driver->ClickButton("btnSendEmail"));
    QCOMPARE(m_driver->AnsweredDialogs(), 1);
    QCOMPARE(ClientDriver::LastNote(), QStringLiteral("You do not have system config right."));
    QVERIFY(m_driver->IsSwitchedOn("btnSendEmail")); // left on, on purpose
    ClickSave();
    QCOMPARE(Flags(DoorSource(Controller, MainEntrance)), QStringLiteral("0|0|1"));
}

void TestDoorScheme::ctrlSSavesLikeTheButton()
{
    StartOnPage();
    ChooseDoorAndEvent();
    QVERIFY(m_driver->ClickButton("btnAlarmSound"));
    QTest::keyClick(m_driver->Client().Window(), Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(Flags(DoorSource(Controller, MainEntrance)), QStringLiteral("0|1|0"));
}

void TestDoorScheme::withoutSaveNothingIsKept()
{
    StartOnPage();
    ChooseDoorAndEvent();
    QVERIFY(m_driver->ClickButton("btnOpenStatus"));
    QVERIFY(m_driver->ClickButton("btnAlarmSound"));
    m_driver->End();
    QCOMPARE(SchemeFile(m_driver->DatabasePath()).Rows(QStringLiteral("select * from AlarmUniqueID")),
             QStringList());
    m_driver = std::make_unique<ClientDriver>(m_data->path());
    m_driver->AnswerDialogs({[](QWidget* pDraft) { Press(pDraft, "btnGiveUp"); }});
    QVERIFY(m_driver->Start());
    QTRY_COMPARE(m_driver->AnsweredDialogs(), 1);
    QVERIFY(m_driver->OpenByTile());
    ChooseDoorAndEvent();
    QVERIFY(!m_driver->IsSwitchedOn("btnOpenStatus"));
    QVERIFY(!m_driver->IsSwitchedOn("btnAlarmSound"));
}

void TestDoorScheme::anEditSurvivesTheWayToAnotherDoorAndBack()
{
    StartOnPage();
    ChooseDoorAndEvent();
    QVERIFY(m_driver->ClickButton("btnOpenStatus"));
    QVERIFY(m_driver->ClickButton("btnAlarmSound"));
    QVERIFY(m_driver->ClickNode(OtherController, KindDevice));
    QVERIFY(m_driver->ClickNode(OfficeNorth, KindChannel));
    QVERIFY(m_driver->ClickEvent(m_strEvent));
    QVERIFY(!m_driver->IsSwitchedOn("btnOpenStatus"));
    ChooseDoorAndEvent();
    QVERIFY(m_driver->IsSwitchedOn("btnOpenStatus"));
    QVERIFY(m_driver->IsSwitchedOn("btnAlarmSound"));
    QVERIFY(m_driver->ClickNode(OtherController, KindDevice));
    ClickSave();
    QCOMPARE(Flags(DoorSource(Controller, MainEntrance)), QStringLiteral("1|1|0"));
    QCOMPARE(Flags(DoorSource(OtherController, OfficeNorth)), QStringLiteral("0|0|0"));
}

void TestDoorScheme::aClosedTabKeepsItsPlace()
{
    StartOnPage();
    ChooseDoorAndEvent();
    QVERIFY(m_driver->ClickButton("btnOpenStatus"));
    ClickSave();
    const QString strEdited = m_driver->StatusText();
    QTest::keyClick(m_driver->Client().Window(), Qt::Key_W, Qt::ControlModifier);
    QVERIFY(!m_driver->Page()->isVisible());
    QVERIFY(m_driver->OpenByTile());
    QCOMPARE(m_driver->StatusText(), strEdited);
    QVERIFY(m_driver->IsSwitchedOn("btnOpenStatus"));
}

void TestDoorScheme::aLockedDatabaseKeepsTheOldSchemesAndTheEdits()
{
    StartOnPage();
    ChooseDoorAndEvent();
    QVERIFY(m_driver->ClickButton("btnOpenStatus"));
    ClickSave();
    QVERIFY(m_driver->ClickButton("btnAlarmSound"));
    {
        const SchemeFile other(m_driver->DatabasePath());
        QVERIFY(other.Execute(QStringLiteral("begin exclusive")));
        const QByteArray before = Bytes(m_driver->DatabasePath());
        QElapsedTimer timer;
        timer.start();
        ClickSave();
        QVERIFY2(timer.elapsed() < 8000, "waits up to five seconds in all, not once a statement");
        QCOMPARE(Bytes(m_driver->DatabasePath()), before);
        const QString strNote = ClientDriver::LastNote();
        QVERIFY(!strNote.isEmpty());
        QVERIFY(other.Execute(QStringLiteral("rollback")));
    }
    QCOMPARE(Flags(DoorSource(Controller, MainEntrance)), QStringLiteral("1|0|0"));
    QVERIFY(m_driver->IsSwitchedOn("btnAlarmSound")); // the edit is still there
    ClickSave();
    QCOMPARE(Flags(DoorSource(Controller, MainEntrance)), QStringLiteral("1|1|0"));
}

void TestDoorScheme::aFileThatIsNoDatabaseIsLeftAlone()
{
    const QByteArray letter = QByteArray("Dear guard, this is a letter and no database.\n").repeated(100);
    const QString strPath = m_data->filePath(QStringLiteral("Database/AlarmScheme.db"));
    QVERIFY(QDir().mkpath(m_data->filePath(QStringLiteral("Database"))));
    QFile file(strPath);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(letter), qint64(letter.size()));
    file.close();
    m_driver = std::make_unique<ClientDriver>(m_data->path());
    m_driver->AnswerDialogs({[](QWidget* pDamage) { Press(pDamage, "btnLeaveAlone"); }});
    QVERIFY(m_driver->Start());
    QVERIFY(m_driver->OpenByTile());
    QTRY_COMPARE(m_driver->AnsweredDialogs(), 1);
    QVERIFY(!ClientDriver::LastNote().isEmpty()); // loading failed, and was told
    ChooseDoorAndEvent();
    QVERIFY(m_driver->ClickButton("btnOpenStatus"));
    ClickSave();
    QVERIFY(m_driver->IsSwitchedOn("btnOpenStatus"));
    m_driver->End();
    QCOMPARE(Bytes(strPath), letter);
}

void TestDoorScheme::aRemovedDeviceReachesNoSave()
{
    StartOnPage();
    ChooseDoorAndEvent();
    QVERIFY(m_driver->ClickButton("btnOpenStatus"));
    QVERIFY(m_driver->ClickNode(OfficeNorth, KindChannel));
    QVERIFY(m_driver->ClickEvent(m_strEvent));
    QVERIFY(m_driver->ClickButton("btnAlarmSound"));
    QVERIFY(m_driver->Client().Site()->Devices().RemoveDevice(Controller));
    QVERIFY(!Bytes(m_data->filePath(QStringLiteral("site.json"))).contains("Entrance controller"));
    ClickSave();
    const SchemeFile file(m_driver->DatabasePath());
    QCOMPARE(file.Rows(QStringLiteral("select * from AlarmUniqueID where strEventSource like '1001$%'")),
             QStringList());
    QCOMPARE(file.Flags(DoorSource(OtherController, OfficeNorth), m_iType), QStringLiteral("0|1|0"));
    m_driver->End();
    m_driver = std::make_unique<ClientDriver>(m_data->path());
    QVERIFY(m_driver->Start());
    QVERIFY(m_driver->OpenByTile());
    QVERIFY(!m_driver->ClickNode(Controller, KindDevice)); // gone for good
    QVERIFY(m_driver->ClickNode(OtherController, KindDevice));
}

void TestDoorScheme::thePageThatWasOpenComesBack()
{
    StartOnPage();
    m_driver->Client().Window()->close();
    m_driver->End();
    m_driver = std::make_unique<ClientDriver>(m_data->path());
    QVERIFY(m_driver->Start());
    QVERIFY(m_driver->Page() != nullptr);
    QVERIFY(m_driver->Page()->isVisible());
}

void TestDoorScheme::aPageBehindTheHomePageComesBackToo()
{
    StartOnPage();
    auto* const pTabs = m_driver->Client().Window()->findChild<QTabWidget*>(QStringLiteral("tabPages"));
    pTabs->setCurrentIndex(0);
    QVERIFY(!m_driver->Page()->isVisible());
    m_driver->Client().Window()->close();
    m_driver->End();
    m_driver = std::make_unique<ClientDriver>(m_data->path());
    QVERIFY(m_driver->Start());
    QVERIFY(m_driver->Page() != nullptr);
}

void TestDoorScheme::aPageThatWasClosedStaysClosed()
{
    StartOnPage();
    m_driver->Client().Window()->ClosePage(1);
    m_driver->Client().Window()->close();
    m_driver->End();
    m_driver = std::make_unique<ClientDriver>(m_data->path());
    QVERIFY(m_driver->Start());
    QVERIFY(m_driver->Page() == nullptr);
}

QTEST_MAIN(TestDoorScheme)
#include "tst_door_scheme.moc"
