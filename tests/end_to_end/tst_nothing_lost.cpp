#include "ClientDriver.h"
#include "SchemeFile.h"

#include "client/DraftFile.h"
#include "client/HomePage.h"
#include "client/MainWindow.h"
#include "client/UnsavedWork.h"
#include "platform/SystemLibrary/AlarmSchemeCommon.h"
#include "platform/SystemLibrary/QCommon.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QProcess>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QtTest>

#include <algorithm>
#include <cstdio>

namespace {

// From the sample site.
constexpr qint64 MainEntrance = 100101;
constexpr qint64 Turnstile = 100102;
constexpr int KindChannel = 3;
const QString Source = QStringLiteral("1001$1$0$100101");
const char* const EditAndWait = "--edit-and-wait";

/// Not the first entry of the list, which is current without any click.
int EventType()
{
    return AlarmSchemeCommon::ACSAlarmEvent().at(2);
}

/// Switches a scheme of the main entrance on, without saving it.
bool SwitchOn(ClientDriver& driver)
{
    return driver.OpenByTile() && driver.ClickNode(MainEntrance, KindChannel) &&
           driver.ClickEvent(QCommon::GetAlarmNameByType(EventType())) &&
           driver.ClickButton("btnOpenStatus") && driver.IsSwitchedOn("btnOpenStatus");
}

std::function<void(QWidget*)> Press(const char* szButton, QString* pQuestion = nullptr)
{
    return [szButton, pQuestion](QWidget* pDialog) {
        const auto* const pLabel = pDialog->findChild<QLabel*>(QStringLiteral("lblQuestion"));
        if (pQuestion != nullptr && pLabel != nullptr) {
            *pQuestion = pLabel->text();
        }
        auto* const pButton = pDialog->findChild<QAbstractButton*>(QLatin1String(szButton));
        QVERIFY2(pButton != nullptr, szButton);
        QTest::mouseClick(pButton, Qt::LeftButton);
    };
}

/// What this program does as another process: edits, says so, and waits for its end.
int RunAsAnotherProcess(const QString& strData)
{
    ClientDriver driver(strData);
    if (!driver.Start() || !SwitchOn(driver)) {
        return 1;
    }
    std::puts("edited");
    std::fflush(stdout);
    return QCoreApplication::exec();
}

} // namespace

/// Edits that are not saved, and every way to lose them.
class TestNothingLost : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void quittingWithAnEditAsksAndCanBeCancelled();
    void discardedEditsAreGoneForGood();
    void savingInTheQuestionStoresAndThenCloses();
    void aSaveThatIsRefusedKeepsTheProgramOpen();
    void closingTheTabAsks();
    void loadingAnewAsksAndShowsWhatIsStored();
    void undoingEverythingLeavesNothingToAskAbout();
    void theSearchKeepsItsOwnUndo();
    void aKilledProgramsEditsAreOfferedAndRestored();
    void aDraftIsOfferedAfterTheQuestionAboutTheDamage();
    void aDraftCanWaitAndBeDiscarded();
    void aProgramThatRunsKeepsItsDraftToItself();
    void aBrokenDraftIsSetAsideAndSaid();
    void aSessionThatEndsWithoutAQuestionKeepsADraft();
    void theStatusBarCountsTheSchemesThatAreOn();

private:
    void Start()
    {
        m_driver = std::make_unique<ClientDriver>(m_data->path());
        QVERIFY(m_driver->Start());
    }
    MainWindow* Window() const { return m_driver->Client().Window(); }
    QTabWidget* Tabs() const { return Window()->findChild<QTabWidget*>(QStringLiteral("tabPages")); }
    QAction* Action(const char* szName) const { return Window()->findChild<QAction*>(QLatin1String(szName)); }
    QString Stored() const { return SchemeFile(m_driver->DatabasePath()).Flags(Source, EventType()); }
    QStringList Drafts() const
    {
        return QDir(m_data->filePath(QStringLiteral("Database")))
            .entryList({QStringLiteral("*.draft")}, QDir::Files);
    }
    /// Where no window manager is, nobody gives the window its keys back after a dialog.
    void Activate()
    {
        Window()->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(Window()));
    }
    void ShowEditedScheme()
    {
        QVERIFY(m_driver->ClickNode(MainEntrance, KindChannel));
        QVERIFY(m_driver->ClickEvent(QCommon::GetAlarmNameByType(EventType())));
    }
    /// The database is none any more.
    void Damage()
    {
        QVERIFY(QDir().mkpath(m_data->filePath(QStringLiteral("Database"))));
        QFile file(m_data->filePath(QStringLiteral("Database/AlarmScheme.db")));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QVERIFY(file.write(QByteArray("Dear guard, this is a letter and no database.\n").repeated(100)) > 0);
    }
    /// Another process with an edit that it has kept in a draft.
    void StartOther()
    {
        m_other = std::make_unique<QProcess>();
        m_other->start(QCoreApplication::applicationFilePath(), {QLatin1String(EditAndWait), m_data->path()});
        QVERIFY(m_other->waitForStarted());
        QTRY_VERIFY2_WITH_TIMEOUT(!Drafts().isEmpty() || m_other->state() == QProcess::NotRunning,
                                  "the other process makes no draft", 30000);
        QCOMPARE(m_other->state(), QProcess::Running);
    }
    void KillOther()
    {
        m_other->kill();
        QVERIFY(m_other->waitForFinished());
        QCOMPARE(m_other->exitStatus(), QProcess::CrashExit);
    }

    std::unique_ptr<QTemporaryDir> m_data;
    std::unique_ptr<ClientDriver> m_driver;
    std::unique_ptr<QProcess> m_other;
    QString m_strWorkingDirectory;
};

void TestNothingLost::init()
{
    m_strWorkingDirectory = QDir::currentPath();
    m_data = std::make_unique<QTemporaryDir>();
}

void TestNothingLost::cleanup()
{
    m_driver.reset();
    if (m_other && m_other->state() != QProcess::NotRunning) {
        m_other->kill();
        m_other->waitForFinished();
    }
    m_other.reset();
    QDir::setCurrent(m_strWorkingDirectory);
}

void TestNothingLost::quittingWithAnEditAsksAndCanBeCancelled()
{
    Start();
    QVERIFY(m_driver->OpenByTile());
    const QString strTab = Tabs()->tabText(1);
    QVERIFY(SwitchOn(*m_driver));
    QVERIFY(Tabs()->tabText(1) != strTab && Tabs()->tabText(1).contains(strTab));
    QString strQuestion;
    m_driver->AnswerDialogs({Press("btnNothing", &strQuestion)});
    QVERIFY(!Window()->close());
    QCOMPARE(m_driver->AnsweredDialogs(), 1);
    QVERIFY2(strQuestion.contains(strTab), qPrintable(strQuestion));
    QVERIFY(Window()->isVisible());
    QVERIFY(m_driver->IsSwitchedOn("btnOpenStatus"));
    QVERIFY(m_driver->ClickButton("btnSave"));
    QCOMPARE(Tabs()->tabText(1), strTab);
    QVERIFY(Window()->close());
    QCOMPARE(m_driver->AnsweredDialogs(), 1);
    QCOMPARE(Stored(), QStringLiteral("1|0|0"));
    QCOMPARE(Drafts(), QStringList());
}

void TestNothingLost::discardedEditsAreGoneForGood()
{
    Start();
    QVERIFY(SwitchOn(*m_driver));
    m_driver->AnswerDialogs({Press("btnGiveUp")});
    QVERIFY(Window()->close());
    m_driver->End();
    QCOMPARE(Stored(), QString());
    QCOMPARE(Drafts(), QStringList());
    Start();
    QVERIFY(QApplication::activeModalWidget() == nullptr);
    ShowEditedScheme(); // the page was open and has come back
    QVERIFY(!m_driver->IsSwitchedOn("btnOpenStatus"));
}

void TestNothingLost::savingInTheQuestionStoresAndThenCloses()
{
    Start();
    QVERIFY(SwitchOn(*m_driver));
    m_driver->AnswerDialogs({Press("btnKeep")});
    QVERIFY(!Window()->close()); // not yet
    QTRY_VERIFY(!Window()->isVisible());
    QCOMPARE(Stored(), QStringLiteral("1|0|0"));
    QCOMPARE(Drafts(), QStringList());
}

void TestNothingLost::aSaveThatIsRefusedKeepsTheProgramOpen()
{
    Damage();
    m_driver = std::make_unique<ClientDriver>(m_data->path());
    m_driver->AnswerDialogs({Press("btnLeaveAlone"), Press("btnKeep")});
    QVERIFY(m_driver->Start());
    QVERIFY(m_driver->OpenByTile());
    QTRY_COMPARE(m_driver->AnsweredDialogs(), 1);
    QVERIFY(SwitchOn(*m_driver));
    QVERIFY(!Window()->close());
    QCOMPARE(m_driver->AnsweredDialogs(), 2);
    m_driver->WaitForSaves();
    QCoreApplication::sendPostedEvents();
    QVERIFY(Window()->isVisible());
    QVERIFY(m_driver->Page()->isWindowModified());
}

void TestNothingLost::closingTheTabAsks()
{
    Start();
    QVERIFY(SwitchOn(*m_driver));
    m_driver->AnswerDialogs({Press("btnNothing"), Press("btnGiveUp")});
    QTest::keyClick(Window(), Qt::Key_W, Qt::ControlModifier);
    QCOMPARE(Tabs()->count(), 2);
    QVERIFY(m_driver->IsSwitchedOn("btnOpenStatus"));
    Activate();
    QTest::keyClick(Window(), Qt::Key_W, Qt::ControlModifier);
    QCOMPARE(m_driver->AnsweredDialogs(), 2);
    QCOMPARE(Tabs()->count(), 1);
    QVERIFY(m_driver->Page() == nullptr);
    QVERIFY(m_driver->OpenByTile());
    ShowEditedScheme();
    QVERIFY(!m_driver->IsSwitchedOn("btnOpenStatus"));
    QVERIFY(!m_driver->Page()->isWindowModified());
}

void TestNothingLost::loadingAnewAsksAndShowsWhatIsStored()
{
    Start();
    QVERIFY(SwitchOn(*m_driver));
    QVERIFY(m_driver->ClickButton("btnSave"));
    QVERIFY(m_driver->ClickButton("btnAlarmSound"));
    QTRY_VERIFY(m_driver->Page()->isWindowModified());
    m_driver->AnswerDialogs({Press("btnNothing"), Press("btnGiveUp")});
    const QPointer<QWidget> before = m_driver->Page();
    QTest::keyClick(Window(), Qt::Key_F5);
    QCOMPARE(m_driver->AnsweredDialogs(), 1);
    QVERIFY(!before.isNull());
    QVERIFY(m_driver->IsSwitchedOn("btnAlarmSound"));
    Activate();
    QTest::keyClick(Window(), Qt::Key_F5);
    QCOMPARE(m_driver->AnsweredDialogs(), 2);
    QVERIFY(before.isNull() && m_driver->Page() != nullptr);
    ShowEditedScheme();
    QVERIFY(m_driver->IsSwitchedOn("btnOpenStatus"));
    QVERIFY(!m_driver->IsSwitchedOn("btnAlarmSound"));
    QCOMPARE(Drafts(), QStringList());
}

void TestNothingLost::undoingEverythingLeavesNothingToAskAbout()
{
    Start();
    QVERIFY(SwitchOn(*m_driver));
    QVERIFY(Action("actionUndo")->isEnabled());
    QVERIFY(Action("actionUndo")->text() != QStringLiteral("&Undo"));
    QTest::keyClick(Window(), Qt::Key_Z, Qt::ControlModifier);
    QVERIFY(!m_driver->IsSwitchedOn("btnOpenStatus"));
    QVERIFY(!Action("actionUndo")->isEnabled());
    QVERIFY(!m_driver->Page()->isWindowModified());
    QTest::keyClick(Window(), Qt::Key_Y, Qt::ControlModifier);
    QVERIFY(m_driver->IsSwitchedOn("btnOpenStatus"));
    QVERIFY(m_driver->Page()->isWindowModified());
    Action("actionUndo")->trigger();
    QVERIFY(Window()->close());
    QCOMPARE(Drafts(), QStringList());
}

void TestNothingLost::theSearchKeepsItsOwnUndo()
{
    Start();
    QVERIFY(SwitchOn(*m_driver));
    QTest::keyClick(Window(), Qt::Key_F, Qt::ControlModifier);
    auto* const pSearch = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    QVERIFY(pSearch != nullptr);
    QTest::keyClicks(pSearch, QStringLiteral("Main"));
    QTest::keyClick(pSearch, Qt::Key_Z, Qt::ControlModifier);
    QVERIFY(pSearch->text() != QStringLiteral("Main"));
    QTest::keyClick(pSearch, Qt::Key_Z, Qt::ControlModifier);
    QVERIFY(m_driver->IsSwitchedOn("btnOpenStatus"));
    QVERIFY(m_driver->Page()->isWindowModified());
}

void TestNothingLost::aKilledProgramsEditsAreOfferedAndRestored()
{
    StartOther();
    KillOther();
    QCOMPARE(Drafts().size(), 1);
    QString strQuestion;
    m_driver = std::make_unique<ClientDriver>(m_data->path());
    m_driver->AnswerDialogs({Press("btnKeep", &strQuestion)});
    QVERIFY(m_driver->Start());
    QTRY_COMPARE(m_driver->AnsweredDialogs(), 1);
    QTRY_VERIFY(QApplication::activeModalWidget() == nullptr);
    QVERIFY2(strQuestion.contains(QStringLiteral("1")), qPrintable(strQuestion));
    QVERIFY2(strQuestion.contains(QLocale().toString(QDate::currentDate(), QLocale::ShortFormat)),
             qPrintable(strQuestion));
    QVERIFY(m_driver->Page() != nullptr && m_driver->Page()->isWindowModified());
    QCOMPARE(Stored(), QString()); // restoring saves nothing
    ShowEditedScheme();
    QVERIFY(m_driver->IsSwitchedOn("btnOpenStatus"));
    QCOMPARE(Drafts().size(), 1); // another crash would lose nothing either
    QVERIFY(m_driver->ClickButton("btnSave"));
    QCOMPARE(Stored(), QStringLiteral("1|0|0"));
    QTRY_COMPARE(Drafts(), QStringList());
    QVERIFY(Window()->close());
}

void TestNothingLost::aDraftIsOfferedAfterTheQuestionAboutTheDamage()
{
    StartOther();
    KillOther();
    Damage();
    QStringList dialogs;
    QList<int> open; // dialogs, when each of them was answered
    const auto answer = [&](const char* szButton) {
        return [&dialogs, &open, szButton](QWidget* pDialog) {
            const QWidgetList windows = QApplication::topLevelWidgets();
            open.append(
                static_cast<int>(std::count_if(windows.cbegin(), windows.cend(), [](const QWidget* pWindow) {
                    return pWindow->isVisible() && qobject_cast<const QDialog*>(pWindow) != nullptr;
                })));
            dialogs.append(pDialog->objectName());
            Press(szButton)(pDialog);
        };
    };
    m_driver = std::make_unique<ClientDriver>(m_data->path());
    m_driver->AnswerDialogs({answer("btnStartEmpty"), answer("btnKeep")});
    QVERIFY(m_driver->Start());
    QTRY_COMPARE(m_driver->AnsweredDialogs(), 2);
    QTRY_VERIFY(QApplication::activeModalWidget() == nullptr);
    QCOMPARE(dialogs, (QStringList{QStringLiteral("SchemeDamageDialog"), QStringLiteral("QuestionDialog")}));
    QCOMPARE(open, (QList<int>{1, 1}));
    QVERIFY(m_driver->Page() != nullptr && m_driver->Page()->isWindowModified());
    Activate();
    ShowEditedScheme();
    QVERIFY(m_driver->ClickButton("btnSave"));
    QCOMPARE(Stored(), QStringLiteral("1|0|0"));
}

void TestNothingLost::aDraftCanWaitAndBeDiscarded()
{
    StartOther();
    KillOther();
    m_driver = std::make_unique<ClientDriver>(m_data->path());
    m_driver->AnswerDialogs({Press("btnNothing")});
    QVERIFY(m_driver->Start());
    QTRY_COMPARE(m_driver->AnsweredDialogs(), 1);
    QCOMPARE(Drafts().size(), 1);
    // What is edited meanwhile takes no place of the draft that waits.
    QVERIFY(SwitchOn(*m_driver));
    QTRY_COMPARE(Drafts().size(), 2);
    m_driver->AnswerDialogs({Press("btnGiveUp")});
    QVERIFY(Window()->close());
    m_driver->End();
    QCOMPARE(Drafts().size(), 1);

    m_driver = std::make_unique<ClientDriver>(m_data->path());
    m_driver->AnswerDialogs({Press("btnGiveUp")});
    QVERIFY(m_driver->Start());
    QTRY_COMPARE(m_driver->AnsweredDialogs(), 1);
    QTRY_COMPARE(Drafts(), QStringList());
    m_driver->End();
    Start();
    QVERIFY(QApplication::activeModalWidget() == nullptr);
    QCOMPARE(Stored(), QString());
}

void TestNothingLost::aProgramThatRunsKeepsItsDraftToItself()
{
    StartOther();
    Start();
    QVERIFY(QApplication::activeModalWidget() == nullptr);
    QVERIFY(SwitchOn(*m_driver));
    QTRY_COMPARE(Drafts().size(), 2);
    m_driver->AnswerDialogs({Press("btnGiveUp")});
    QVERIFY(Window()->close());
    QCOMPARE(Drafts().size(), 1);
    KillOther();
}

void TestNothingLost::aBrokenDraftIsSetAsideAndSaid()
{
    const QString strFolder = m_data->filePath(QStringLiteral("Database"));
    QVERIFY(QDir().mkpath(strFolder));
    const QByteArray letter("Dear guard, this is a letter and no draft.\n");
    QFile letterFile(strFolder + QStringLiteral("/ACSEventConfigUI.draft"));
    QVERIFY(letterFile.open(QIODevice::WriteOnly));
    QCOMPARE(letterFile.write(letter), qint64(letter.size()));
    letterFile.close();
    // Sound as a file, but nothing that the page could use.
    const Draft draft{QStringLiteral("ACSEventConfigUI"), QDateTime::currentDateTimeUtc(), 3, letter};
    QString strError;
    QVERIFY(DraftFile::Write(strFolder + QStringLiteral("/ACSEventConfigUI-2.draft"), draft, strError));
    m_driver = std::make_unique<ClientDriver>(m_data->path());
    m_driver->AnswerDialogs({Press("btnKeep")});
    QVERIFY(m_driver->Start());
    QTRY_COMPARE(m_driver->AnsweredDialogs(), 1);
    QTRY_COMPARE(Window()->Home()->Problems().size(), 2);
    QCOMPARE(Drafts(), QStringList());
    QCOMPARE(QDir(strFolder).entryList({QStringLiteral("*.draft.broken*")}, QDir::Files).size(), 2);
    QVERIFY(Window()->Home()->Problems().join(QLatin1Char('\n')).contains(QStringLiteral(".broken")));
    QVERIFY(!m_driver->Page()->isWindowModified());
}

void TestNothingLost::aSessionThatEndsWithoutAQuestionKeepsADraft()
{
    Start();
    QVERIFY(SwitchOn(*m_driver));
    m_driver->End(); // as the end of a session that waits for nobody
    QCOMPARE(Drafts().size(), 1);
    m_driver = std::make_unique<ClientDriver>(m_data->path());
    m_driver->AnswerDialogs({Press("btnKeep")});
    QVERIFY(m_driver->Start());
    QTRY_COMPARE(m_driver->AnsweredDialogs(), 1);
    ShowEditedScheme();
    QVERIFY(m_driver->IsSwitchedOn("btnOpenStatus"));
}

void TestNothingLost::theStatusBarCountsTheSchemesThatAreOn()
{
    Start();
    const auto* const pCount = Window()->findChild<QLabel*>(QStringLiteral("lblEnabledSchemes"));
    QVERIFY(!pCount->isVisible());
    QVERIFY(m_driver->OpenByTile());
    QVERIFY(pCount->isVisible() && pCount->text().contains(QLatin1Char('0')));
    QVERIFY(SwitchOn(*m_driver));
    QVERIFY(pCount->text().contains(QLatin1Char('1')));
    QVERIFY(m_driver->ClickNode(Turnstile, KindChannel));
    QVERIFY(m_driver->ClickEvent(QCommon::GetAlarmNameByType(EventType())));
    QVERIFY(m_driver->ClickButton("btnOpenStatus"));
    QVERIFY(pCount->text().contains(QLatin1Char('2')));
    QTest::keyClick(Window(), Qt::Key_Z, Qt::ControlModifier);
    QVERIFY(pCount->text().contains(QLatin1Char('1')));
    Tabs()->setCurrentIndex(0);
    QVERIFY(!pCount->isVisible());
}

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() == 3 && arguments.at(1) == QLatin1String(EditAndWait)) {
        return RunAsAnotherProcess(arguments.at(2));
    }
    TestNothingLost test;
    QTEST_SET_MAIN_SOURCE_PATH
    return QTest::qExec(&test, argc, argv);
}

#include "tst_nothing_lost.moc"
