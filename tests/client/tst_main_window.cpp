#include "TestModules.h"

#include "client/ClientSettings.h"
#include "client/HomePage.h"
#include "client/MailSettingsDialog.h"
#include "client/MainWindow.h"
#include "client/PluginLoader.h"
#include "client/PluginTile.h"
#include "client/store/SchemeStoreOutcome.h"
#include "platform/LXGUI/LXMessageNotify.h"
#include "platform/SystemLibrary/QCommon.h"

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

class TestMainWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void aTileForEveryModuleStandsOnTheHomePage();
    void aTileOpensThePageInATab();
    void openingTwiceBringsTheSamePageToTheFront();
    void aClosedPageComesBackWithItsEdits();
    void theHomePageCannotBeClosed();
    void theStatusBarFollowsThePage();
    void ctrlSSavesTheCurrentPage();
    void theHomePageHasNothingToSave();
    void destroyingThePagesTakesClosedOnesToo();
    void anUnknownModuleIsReported();
    void aModuleWithoutAPageIsReported();
    void messageTwentyTwoRunsTheMailSettingsToTheirEnd();
    void messageTwentyTwoThatIsCancelledChangesNothing();
    void otherMessagesAreNotAnswered();
    void aWindowClosedUnderTheDialogIsSurvived();
    void anOperatorMayNotOpenTheMailSettings();
    void languageAndThemeAreKeptForTheNextStart();
    void theSiteIsNamedWithItsDevices();
    void outcomesOfSavingAreNotes();
    void aFailureIsToldUntilTheNextSuccess();
    void reloadingMakesThePagesThatSaveAnewAndKeepsTheTabs();
    void whatIsUnsavedIsShown();

private:
    QTabWidget* Tabs() const { return m_window->findChild<QTabWidget*>(QStringLiteral("tabPages")); }
    QAction* Action(const char* szName) const { return m_window->findChild<QAction*>(QLatin1String(szName)); }
    static LXGUI::LXMessageNotify* Notes() { return LXGUI::LXSingleton<LXGUI::LXMessageNotify>::Instance(); }
    void MakeWindow(UserRole role);

    std::unique_ptr<QTemporaryDir> m_directory;
    std::unique_ptr<ClientSettings> m_settings;
    std::unique_ptr<PluginLoader> m_loader;
    std::unique_ptr<MainWindow> m_window;
};

void TestMainWindow::init()
{
    m_directory = std::make_unique<QTemporaryDir>();
    m_settings = std::make_unique<ClientSettings>(m_directory->filePath(QStringLiteral("client.ini")));
    for (const char* szModule : {"good", "null_page", "second"}) {
        QVERIFY(TestModules::Install(QLatin1String(szModule), m_directory->path()));
    }
    m_loader = std::make_unique<PluginLoader>();
    m_loader->Load({m_directory->filePath(QStringLiteral("modules"))}, {}, UserRole::Administrator);
    MakeWindow(UserRole::Administrator);
    QSystem::GetInstance()->SetMailSettings({});
    TestModules::TakeCalls();
}

void TestMainWindow::cleanup()
{
    if (m_window) {
        m_window->DestroyPages();
    }
    m_loader.reset();
    m_window.reset();
    Notes()->Clear();
}

void TestMainWindow::MakeWindow(UserRole role)
{
    QCommon::SetMenuRights(UserRoles::MenuRights(role));
    m_window = std::make_unique<MainWindow>(*m_settings, role, m_directory->path());
    m_window->SetPlugins(m_loader.get());
    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

void TestMainWindow::aTileForEveryModuleStandsOnTheHomePage()
{
    QCOMPARE(m_window->Home()->Tiles().size(), 3);
    QCOMPARE(m_window->Home()->Tiles().at(0)->text(), QStringLiteral("Title of good"));
    QVERIFY(m_window->Home()->Tiles().at(0)->hasFocus());
    QVERIFY(m_window->Home()->Problems().isEmpty());
}

void TestMainWindow::aTileOpensThePageInATab()
{
    QTest::mouseClick(m_window->Home()->Tiles().at(0), Qt::LeftButton);
    QCOMPARE(Tabs()->count(), 2);
    QCOMPARE(Tabs()->tabText(1), QStringLiteral("Tab of good"));
    QCOMPARE(Tabs()->currentIndex(), 1);
    QVERIFY(m_window->findChild<QWidget*>(QStringLiteral("page_good"))->isVisible());
    QVERIFY(m_window->windowTitle().contains(QStringLiteral("Tab of good")));
    Tabs()->setCurrentIndex(0);
    QVERIFY(!m_window->windowTitle().contains(QStringLiteral("Tab of good")));
    QVERIFY(!m_window->windowTitle().isEmpty());
}

void TestMainWindow::openingTwiceBringsTheSamePageToTheFront()
{
    QVERIFY(m_window->OpenPage(QStringLiteral("good")));
    QVERIFY(m_window->OpenPage(QStringLiteral("second")));
    QVERIFY(m_window->OpenPage(QStringLiteral("good")));
    QCOMPARE(Tabs()->count(), 3);
    QCOMPARE(Tabs()->currentIndex(), 1);
    QCOMPARE(m_window->OpenPages().size(), 2);
    QCOMPARE(m_window->KeyOfPage(m_window->OpenPages().at(1)), QStringLiteral("second"));
}

void TestMainWindow::aClosedPageComesBackWithItsEdits()
{
    QVERIFY(m_window->OpenPage(QStringLiteral("good")));
    auto* pPage = m_window->findChild<QWidget*>(QStringLiteral("page_good"));
    QMetaObject::invokeMethod(pPage, "Edit", Q_ARG(QString, QStringLiteral("half done")));
    QTest::keyClick(m_window.get(), Qt::Key_W, Qt::ControlModifier);
    QCOMPARE(Tabs()->count(), 1);
    QVERIFY(!pPage->isVisible());
    QVERIFY(!TestModules::TakeCalls().contains(QStringLiteral("good:page destroyed")));
    QVERIFY(m_window->OpenPage(QStringLiteral("good")));
    QCOMPARE(Tabs()->currentWidget(), pPage);
    QVERIFY(pPage->isVisible());
    QCOMPARE(m_window->StatusText(), QStringLiteral("half done"));
}

void TestMainWindow::theHomePageCannotBeClosed()
{
    m_window->ClosePage(0);
    m_window->ClosePage(-1);
    m_window->ClosePage(7);
    QCOMPARE(Tabs()->count(), 1);
    QVERIFY(!Action("actionCloseTab")->isEnabled());
}

void TestMainWindow::theStatusBarFollowsThePage()
{
    QVERIFY(m_window->StatusText().isEmpty());
    QVERIFY(m_window->OpenPage(QStringLiteral("good")));
    QVERIFY(m_window->StatusText().isEmpty()); // nothing is put into the mouth of a page that says nothing
    auto* pPage = m_window->findChild<QWidget*>(QStringLiteral("page_good"));
    const QString strEdited = QStringLiteral("<b>Main</b> entrance: forced open");
    QMetaObject::invokeMethod(pPage, "Edit", Q_ARG(QString, strEdited));
    QCOMPARE(m_window->StatusText(), strEdited);
    QCOMPARE(m_window->findChild<QLabel*>(QStringLiteral("lblEditedScheme"))->textFormat(), Qt::PlainText);
    QVERIFY(m_window->OpenPage(QStringLiteral("second")));
    QVERIFY(m_window->StatusText() != strEdited);
    Tabs()->setCurrentIndex(1);
    QCOMPARE(m_window->StatusText(), strEdited);
    Tabs()->setCurrentIndex(0);
    QVERIFY(m_window->StatusText().isEmpty());
}

void TestMainWindow::ctrlSSavesTheCurrentPage()
{
    QVERIFY(m_window->OpenPage(QStringLiteral("second")));
    QVERIFY(m_window->OpenPage(QStringLiteral("good")));
    TestModules::TakeCalls();
    QTest::keyClick(m_window.get(), Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(TestModules::TakeCalls(), QStringList{QStringLiteral("good:page saved")});
}

void TestMainWindow::theHomePageHasNothingToSave()
{
    QVERIFY(!Action("actionSave")->isEnabled());
    QVERIFY(m_window->OpenPage(QStringLiteral("good")));
    QVERIFY(Action("actionSave")->isEnabled());
    Tabs()->setCurrentIndex(0);
    QVERIFY(!Action("actionSave")->isEnabled());
    QTest::keyClick(m_window.get(), Qt::Key_S, Qt::ControlModifier);
    QVERIFY(!TestModules::TakeCalls().contains(QStringLiteral("good:page saved")));
}

void TestMainWindow::destroyingThePagesTakesClosedOnesToo()
{
    QVERIFY(m_window->OpenPage(QStringLiteral("good")));
    QVERIFY(m_window->OpenPage(QStringLiteral("second")));
    m_window->ClosePage(1);
    TestModules::TakeCalls();
    m_window->DestroyPages();
    m_window->DestroyPages();
    const QStringList calls = TestModules::TakeCalls();
    QCOMPARE(calls.count(QStringLiteral("good:page destroyed")), 1);
    QCOMPARE(calls.count(QStringLiteral("second:page destroyed")), 1);
    QVERIFY(!m_window->OpenPage(QStringLiteral("good")));
}

void TestMainWindow::anUnknownModuleIsReported()
{
    QVERIFY(!m_window->OpenPage(QStringLiteral("nobody")));
    QCOMPARE(Tabs()->count(), 1);
    QCOMPARE(m_window->Home()->Problems().size(), 1);
    QVERIFY(m_window->Home()->Problems().constFirst().contains(QStringLiteral("nobody")));
    QVERIFY(Notes()->GetLastText().contains(QStringLiteral("nobody")));
}

void TestMainWindow::aModuleWithoutAPageIsReported()
{
    QTest::mouseClick(m_window->Home()->Tiles().at(1), Qt::LeftButton);
    QCOMPARE(Tabs()->count(), 1);
    QCOMPARE(m_window->Home()->Problems().size(), 1);
    QVERIFY(Notes()->GetLastText().contains(TestModules::FileName(QStringLiteral("null_page"))));
}

void TestMainWindow::messageTwentyTwoRunsTheMailSettingsToTheirEnd()
{
    bool bSeen = false;
    QTimer::singleShot(0, this, [&bSeen] {
        auto* pDialog = qobject_cast<MailSettingsDialog*>(QApplication::activeModalWidget());
        QVERIFY(pDialog != nullptr);
        bSeen = true;
        pDialog->findChild<QAbstractButton*>(QStringLiteral("chkEnable"))->click();
        QTest::keyClicks(pDialog->findChild<QLineEdit*>(QStringLiteral("edtHost")),
                         QStringLiteral("mail.example.com"));
        QTest::keyClicks(pDialog->findChild<QLineEdit*>(QStringLiteral("edtSender")),
                         QStringLiteral("guard@example.com"));
        QTest::keyClicks(pDialog->findChild<QLineEdit*>(QStringLiteral("edtRecipients")),
                         QStringLiteral("desk@example.com"));
        QTest::mouseClick(pDialog->GetButton(QDialogButtonBox::Ok), Qt::LeftButton);
    });
    QVERIFY(QCommon::QtSendMessage(m_window.get(), 22, 0, 0));
    QVERIFY(bSeen);
    // When the message has been answered the settings are there, for the module that checks right after it.
    const SystemMailSettings mail = QSystem::GetInstance()->GetMailSettings();
    QVERIFY(mail.bEnable);
    QCOMPARE(mail.servers.size(), 1);
    QCOMPARE(mail.servers.at(0).strServer, QStringLiteral("mail.example.com"));
    QVERIFY(m_window->findChildren<MailSettingsDialog*>().isEmpty());
}

void TestMainWindow::messageTwentyTwoThatIsCancelledChangesNothing()
{
    QTimer::singleShot(0, this, [] {
        auto* pDialog = qobject_cast<MailSettingsDialog*>(QApplication::activeModalWidget());
        QVERIFY(pDialog != nullptr);
        pDialog->findChild<QAbstractButton*>(QStringLiteral("chkEnable"))->click();
        QTest::keyClick(pDialog, Qt::Key_Escape);
    });
    QVERIFY(QCommon::QtSendMessage(m_window.get(), 22, 0, 0));
    QVERIFY(QSystem::GetInstance()->GetMailSettings() == SystemMailSettings());
}

void TestMainWindow::otherMessagesAreNotAnswered()
{
    QVERIFY(!QCommon::QtSendMessage(m_window.get(), 21, 0, 0));
    QVERIFY(!QCommon::QtSendMessage(m_window.get(), -22, 0, 0));
    QVERIFY(QApplication::activeModalWidget() == nullptr);
}

void TestMainWindow::aWindowClosedUnderTheDialogIsSurvived()
{
    QTimer::singleShot(0, this, [] {
        delete QApplication::activeModalWidget(); // as a parent does that goes while the dialog is open
    });
    QVERIFY(QCommon::QtSendMessage(m_window.get(), 22, 0, 0));
    QVERIFY(QSystem::GetInstance()->GetMailSettings() == SystemMailSettings());
}

void TestMainWindow::anOperatorMayNotOpenTheMailSettings()
{
    QVERIFY(Action("actionMail")->isEnabled());
    m_window->DestroyPages();
    MakeWindow(UserRole::Operator);
    QVERIFY(!Action("actionMail")->isEnabled());
    const QString strRole = m_window->findChild<QLabel*>(QStringLiteral("lblRole"))->text();
    QCOMPARE(strRole, UserRoles::Name(UserRole::Operator));
}

void TestMainWindow::languageAndThemeAreKeptForTheNextStart()
{
    Action("actionChinese")->trigger();
    QCOMPARE(m_settings->Language(), QStringLiteral("zh_cn"));
    QVERIFY(!Notes()->GetLastText().isEmpty());
    Notes()->Clear();
    Action("actionLight")->trigger();
    QCOMPARE(m_settings->Theme(), QStringLiteral("light"));
    QVERIFY(!Notes()->GetLastText().isEmpty());
    Action("actionEnglish")->trigger();
    QCOMPARE(m_settings->Language(), QStringLiteral("en"));
    QVERIFY(!Action("actionChinese")->isChecked());
}

void TestMainWindow::theSiteIsNamedWithItsDevices()
{
    m_window->SetSite(QStringLiteral("/data/tower.json"), 12);
    const auto* pSite = m_window->findChild<QLabel*>(QStringLiteral("lblSite"));
    QVERIFY(pSite->text().contains(QStringLiteral("tower.json")));
    QVERIFY(pSite->text().contains(QStringLiteral("12")));
}

void TestMainWindow::outcomesOfSavingAreNotes()
{
    using Outcome = SchemeStoreOutcome;
    QSignalSpy notes(Notes(), &LXGUI::LXMessageNotify::SignalNotificationAdded);
    m_window->ShowSaveOutcome(Outcome::Success(Outcome::Operation::Load, 3));
    QCOMPARE(notes.count(), 0); // a load that went well is no news
    m_window->ShowSaveOutcome(Outcome::Success(Outcome::Operation::Save, 3));
    QCOMPARE(notes.count(), 1);
    QVERIFY(!notes.at(0).at(0).toString().isEmpty());
    QCOMPARE(notes.at(0).at(1).toInt(), int(LXGUI::LXMessageNotify::Success));
    const Outcome failure =
        Outcome::Failure(Outcome::Operation::Save, Outcome::Reason::DiskFull, QStringLiteral("disk full"));
    m_window->ShowSaveOutcome(failure);
    QCOMPARE(notes.count(), 2);
    QCOMPARE(notes.at(1).at(0).toString(), failure.Text());
    QCOMPARE(notes.at(1).at(1).toInt(), int(LXGUI::LXMessageNotify::Error));
    m_window->ShowSaveOutcome(
        Outcome::Failure(Outcome::Operation::Load, Outcome::Reason::Damaged, QStringLiteral("malformed")));
    QCOMPARE(notes.count(), 3);
}

void TestMainWindow::aFailureIsToldUntilTheNextSuccess()
{
    using Outcome = SchemeStoreOutcome;
    Notes()->SetAnchor(m_window.get());
    Notes()->AddTextNotification(QStringLiteral("something else"), LXGUI::LXMessageNotify::Error);
    const Outcome full = Outcome::Failure(Outcome::Operation::Save, Outcome::Reason::DiskFull, QString());
    const Outcome locked = Outcome::Failure(Outcome::Operation::Save, Outcome::Reason::Locked, QString());
    m_window->ShowSaveOutcome(full);
    m_window->ShowSaveOutcome(locked);
    QCOMPARE(Notes()->GetVisibleTexts(),
             (QStringList{QStringLiteral("something else"), full.Text(), locked.Text()}));

    const Outcome takenBack = Outcome::Reverted(1, 0);
    m_window->ShowSaveOutcome(takenBack); // the edits are still not saved
    QVERIFY(Notes()->GetVisibleTexts().contains(full.Text()));
    QVERIFY(Notes()->GetVisibleTexts().contains(locked.Text()));

    const Outcome saved = Outcome::Success(Outcome::Operation::Save, 3);
    m_window->ShowSaveOutcome(saved);

    QCOMPARE(Notes()->GetVisibleTexts(),
             (QStringList{QStringLiteral("something else"), takenBack.Text(), saved.Text()}));
    Notes()->SetAnchor(nullptr);
}

void TestMainWindow::reloadingMakesThePagesThatSaveAnewAndKeepsTheTabs()
{
    QVERIFY(m_window->OpenPage(QStringLiteral("good")));
    QVERIFY(m_window->OpenPage(QStringLiteral("second")));
    Tabs()->setCurrentIndex(1);
    const QPointer<QWidget> before = m_window->OpenPages().at(0);
    QMetaObject::invokeMethod(before, "Edit", Q_ARG(QString, QStringLiteral("half done")));
    m_window->ReloadPages();
    QVERIFY(before.isNull());
    QCOMPARE(m_window->OpenPages().size(), 2);
    QCOMPARE(m_window->KeyOfPage(m_window->OpenPages().at(0)), QStringLiteral("good"));
    QCOMPARE(Tabs()->currentIndex(), 1);
    QVERIFY(m_window->StatusText() != QStringLiteral("half done"));
    // A page whose tab is closed goes too, and comes back when it is opened.
    m_window->ClosePage(1);
    TestModules::TakeCalls();
    m_window->ReloadPages();
    QVERIFY(TestModules::TakeCalls().contains(QStringLiteral("good:page destroyed")));
    QCOMPARE(m_window->OpenPages().size(), 1);
    QVERIFY(m_window->OpenPage(QStringLiteral("good")));
}

void TestMainWindow::whatIsUnsavedIsShown()
{
    const auto* pUnsaved = m_window->findChild<QLabel*>(QStringLiteral("lblUnsaved"));
    QVERIFY(!pUnsaved->isVisible());
    m_window->ShowUnsaved(true);
    QVERIFY(pUnsaved->isVisible() && !pUnsaved->text().isEmpty());
    m_window->ShowUnsaved(false);
    QVERIFY(!pUnsaved->isVisible());
}

QTEST_MAIN(TestMainWindow)
#include "tst_main_window.moc"
