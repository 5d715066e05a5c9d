#include "AccessibleWalk.h"
#include "CutText.h"
#include "TellingPage.h"

#include "client/ClientSettings.h"
#include "client/ClientTranslations.h"
#include "client/HomePage.h"
#include "client/MailSettingsDialog.h"
#include "client/MainWindow.h"
#include "client/PageTabs.h"
#include "client/PluginTile.h"
#include "client/QuestionDialog.h"
#include "client/SaveIndicator.h"
#include "client/SchemeConflictDialog.h"
#include "client/SchemeDamageDialog.h"
#include "client/insight/CoveragePage.h"
#include "client/insight/ExplainPage.h"
#include "client/insight/HistoryPage.h"
#include "client/store/AlarmSchemeStoreBackend.h"
#include "platform/LXGUI/Theme.h"
#include "platform/SystemLibrary/QCommon.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFile>
#include <QImage>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QStyleFactory>
#include <QTabBar>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QtTest>

#include <functional>
#include <memory>

Q_DECLARE_METATYPE(std::function<QDialog*()>)
Q_DECLARE_METATYPE(std::function<QWidget*()>)

/// The client by keyboard alone, and as assistive technology finds it.
class TestClientAccessibility : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void everyControlOfTheWindowHasANameAndARole();
    void everyEntryOfTheMenusHasAName();
    void theTilesAreButtons();
    void everyControlOfADialogHasANameAndARole_data();
    void everyControlOfADialogHasANameAndARole();
    void everyControlOfAPageHasANameAndARole_data();
    void everyControlOfAPageHasANameAndARole();
    void noTextIsCutInEitherLanguage_data();
    void noTextIsCutInEitherLanguage();
    void aDialogIsWalkedThroughWithTab_data();
    void aDialogIsWalkedThroughWithTab();
    void enterPressesTheButtonThatHasTheFocus_data();
    void enterPressesTheButtonThatHasTheFocus();
    void theFocusIsSeenOnEveryButton_data();
    void theFocusIsSeenOnEveryButton();
    void whatIsDisabledLooksDisabled();
    void everyMenuIsReachedByAKeyOfItsOwn();
    void noWidgetIsGreyByDefault();

private:
    static void AddDialogs();
    void AddPages();

    std::unique_ptr<QTemporaryDir> m_directory;
    std::unique_ptr<ClientSettings> m_settings;
    std::unique_ptr<MainWindow> m_window;
    StoredSchemeView m_schemes{QStringLiteral("none.db")};
    AlarmSchemeStoreBackend m_store; // of no file
};

void TestClientAccessibility::initTestCase()
{
    // As the program dresses itself.
    LXGUI::Theme::Load(QStringLiteral("dark"));
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setPalette(LXGUI::Theme::Current().Palette());
    QFile sheet(QStringLiteral("./Skin/theme1/application.qss"));
    QVERIFY(sheet.open(QIODevice::ReadOnly));
    qApp->setStyleSheet(LXGUI::Theme::Current().Resolve(QString::fromUtf8(sheet.readAll())));
}

void TestClientAccessibility::init()
{
    m_directory = std::make_unique<QTemporaryDir>();
    m_settings = std::make_unique<ClientSettings>(m_directory->filePath(QStringLiteral("client.ini")));
    QCommon::SetMenuRights(UserRoles::MenuRights(UserRole::Administrator));
    m_window = std::make_unique<MainWindow>(*m_settings, UserRole::Administrator, m_directory->path());
    PluginInfo info;
    info.strKey = QStringLiteral("module");
    info.strTitle = QStringLiteral("Title of the module");
    info.strDescription = QStringLiteral("What the module does");
    m_window->Home()->AddTile(info);
    m_window->Home()->AddProblem(QStringLiteral("Something went wrong"));
    auto* const pPage = new TellingPage;
    m_window->Pages().Show(pPage, QStringLiteral("module"), QStringLiteral("Title of the tab"));
    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

void TestClientAccessibility::cleanup()
{
    m_window.reset();
}

void TestClientAccessibility::everyControlOfTheWindowHasANameAndARole()
{
    const QStringList complaints = AccessibleWalk::Complaints(*m_window, 8);
    QVERIFY2(complaints.isEmpty(), qPrintable(complaints.join(QLatin1Char('\n'))));
    // What a save shows, too.
    auto* const pIndicator = m_window->findChild<SaveIndicator*>();
    pIndicator->show();
    const QStringList saving = AccessibleWalk::Complaints(*pIndicator, 1);
    QVERIFY2(saving.isEmpty(), qPrintable(saving.join(QLatin1Char('\n'))));
    m_window->findChild<QTabWidget*>(QStringLiteral("tabPages"))->setCurrentIndex(0);
    const QStringList home = AccessibleWalk::Complaints(*m_window->Home(), 1);
    QVERIFY2(home.isEmpty(), qPrintable(home.join(QLatin1Char('\n'))));
}

void TestClientAccessibility::everyEntryOfTheMenusHasAName()
{
    const QList<QMenu*> menus = m_window->menuBar()->findChildren<QMenu*>();
    QVERIFY(menus.size() >= 4);
    for (QMenu* const pMenu : menus) {
        if (pMenu->isEmpty()) {
            continue; // nobody has put anything into it
        }
        const QStringList complaints = AccessibleWalk::Complaints(*pMenu, 1);
        QVERIFY2(complaints.isEmpty(), qPrintable(pMenu->title() + complaints.join(QLatin1Char('\n'))));
    }
}

void TestClientAccessibility::theTilesAreButtons()
{
    QAccessibleInterface* const pTile =
        QAccessible::queryAccessibleInterface(m_window->Home()->Tiles().constFirst());
    QVERIFY(pTile != nullptr);
    QCOMPARE(pTile->role(), QAccessible::PushButton);
    QCOMPARE(pTile->text(QAccessible::Name), QStringLiteral("Title of the module"));
    QCOMPARE(pTile->text(QAccessible::Description), QStringLiteral("What the module does"));
}

void TestClientAccessibility::AddDialogs()
{
    QTest::addColumn<std::function<QDialog*()>>("make");
    const auto add = [](const char* szName, const std::function<QDialog*()>& make) {
        QTest::newRow(szName) << make;
    };
    add("question", []() -> QDialog* {
        return new QuestionDialog({QStringLiteral("Title"), QStringLiteral("Question?"),
                                   QStringLiteral("&Save"), QStringLiteral("&Discard"),
                                   QStringLiteral("Cancel")});
    });
    add("conflict", []() -> QDialog* { return new SchemeConflictDialog(SchemeConflict{3, 1}); });
    add("damage", []() -> QDialog* { return new SchemeDamageDialog(SchemeDamage{}); });
    add("mail", []() -> QDialog* { return new MailSettingsDialog(SystemMailSettings{}); });
}

void TestClientAccessibility::everyControlOfADialogHasANameAndARole_data()
{
    AddDialogs();
}

void TestClientAccessibility::everyControlOfADialogHasANameAndARole()
{
    QFETCH(std::function<QDialog*()>, make);
    const std::unique_ptr<QDialog> dialog(make());
    dialog->show();
    const QStringList complaints = AccessibleWalk::Complaints(*dialog, 3);
    QVERIFY2(complaints.isEmpty(), qPrintable(complaints.join(QLatin1Char('\n'))));
}

void TestClientAccessibility::AddPages()
{
    QTest::addColumn<std::function<QWidget*()>>("make");
    QTest::newRow("explain") << std::function<QWidget*()>([this] { return new ExplainPage(m_schemes); });
    QTest::newRow("coverage") << std::function<QWidget*()>([this] { return new CoveragePage(m_schemes); });
    QTest::newRow("history") << std::function<QWidget*()>(
        [this] { return new HistoryPage(QStringLiteral("none.db"), m_store); });
}

void TestClientAccessibility::everyControlOfAPageHasANameAndARole_data()
{
    AddPages();
}

void TestClientAccessibility::everyControlOfAPageHasANameAndARole()
{
    QFETCH(std::function<QWidget*()>, make);
    const std::unique_ptr<QWidget> page(make());
    page->show();
    const QStringList complaints = AccessibleWalk::Complaints(*page, 2);
    QVERIFY2(complaints.isEmpty(), qPrintable(complaints.join(QLatin1Char('\n'))));
}

void TestClientAccessibility::noTextIsCutInEitherLanguage_data()
{
    QTest::addColumn<QString>("strLanguage");
    QTest::newRow("English") << QStringLiteral("en");
    QTest::newRow("Chinese") << QStringLiteral("zh_cn");
}

void TestClientAccessibility::noTextIsCutInEitherLanguage()
{
    QFETCH(QString, strLanguage);
    const ClientTranslations translations(strLanguage, {QStringLiteral("./translations")});
    QVERIFY(translations.InstalledCatalogues() > 0);
    const QSize windowSize(1366, 768);
    const auto look = [](QWidget* pMade, const QSize& size) {
        const std::unique_ptr<QWidget> widget(pMade);
        if (!size.isEmpty()) {
            widget->resize(size);
        }
        widget->show();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
        return CutText::Complaints(*widget).join(QLatin1Char('\n'));
    };
    QCOMPARE(look(new QuestionDialog({tr("Changes are not saved"), tr("Question?"), tr("&Save"),
                                      tr("&Discard"), tr("Cancel")}),
                  QSize()),
             QString());
    QCOMPARE(look(new SchemeConflictDialog(SchemeConflict{3, 1}), QSize()), QString());
    QCOMPARE(look(new SchemeDamageDialog(SchemeDamage{}), QSize()), QString());
    QCOMPARE(look(new MailSettingsDialog(SystemMailSettings{}), QSize()), QString());
    QCOMPARE(look(new ExplainPage(m_schemes), windowSize), QString());
    QCOMPARE(look(new CoveragePage(m_schemes), windowSize), QString());
    QCOMPARE(look(new HistoryPage(QStringLiteral("none.db"), m_store), windowSize), QString());
}

void TestClientAccessibility::aDialogIsWalkedThroughWithTab_data()
{
    AddDialogs();
}

void TestClientAccessibility::aDialogIsWalkedThroughWithTab()
{
    QFETCH(std::function<QDialog*()>, make);
    const std::unique_ptr<QDialog> dialog(make());
    dialog->show();
    QVERIFY(QTest::qWaitForWindowActive(dialog.get()));
    QVERIFY(QApplication::focusWidget() != nullptr); // somewhere to begin
    QSet<QWidget*> reached;
    for (int i = 0; i < 100; ++i) {
        reached.insert(QApplication::focusWidget());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    const QList<QAbstractButton*> buttons = dialog->findChildren<QAbstractButton*>();
    for (QAbstractButton* const pButton : buttons) {
        // The cross of the title bar is Escape.
        if (pButton->isVisible() && pButton->isEnabled() &&
            pButton->objectName() != QLatin1String("btnDialogClose")) {
            QVERIFY2(reached.contains(pButton), qPrintable(pButton->objectName() + pButton->text()));
        }
    }
}

void TestClientAccessibility::enterPressesTheButtonThatHasTheFocus_data()
{
    AddDialogs();
}

void TestClientAccessibility::enterPressesTheButtonThatHasTheFocus()
{
    QFETCH(std::function<QDialog*()>, make);
    const std::unique_ptr<QDialog> dialog(make());
    dialog->show();
    QVERIFY(QTest::qWaitForWindowActive(dialog.get()));
    const QList<QPushButton*> buttons = dialog->findChildren<QPushButton*>();
    for (QPushButton* const pButton : buttons)
        pButton->disconnect(); // what a press does is another matter, and could open or close something
    int iPressed = 0;
    for (QPushButton* const pButton : buttons) {
        if (!pButton->isVisible() || !pButton->isEnabled() || (pButton->focusPolicy() & Qt::TabFocus) == 0)
            continue;
        const QSignalSpy clicks(pButton, &QPushButton::clicked);
        pButton->setFocus();
        QTest::keyClick(pButton, Qt::Key_Return);
        QVERIFY2(clicks.size() == 1, qPrintable(pButton->objectName() + pButton->text()));
        ++iPressed;
    }
    QVERIFY(iPressed >= 2);
}

void TestClientAccessibility::theFocusIsSeenOnEveryButton_data()
{
    AddDialogs();
}

void TestClientAccessibility::theFocusIsSeenOnEveryButton()
{
    QFETCH(std::function<QDialog*()>, make);
    const std::unique_ptr<QDialog> dialog(make());
    dialog->show();
    QVERIFY(QTest::qWaitForWindowActive(dialog.get()));
    const QList<QAbstractButton*> buttons = dialog->findChildren<QAbstractButton*>();
    for (QAbstractButton* const pButton : buttons) {
        if (!pButton->isVisible() || !pButton->isEnabled() || (pButton->focusPolicy() & Qt::TabFocus) == 0) {
            continue;
        }
        pButton->clearFocus();
        const QImage without = pButton->grab().toImage();
        pButton->setFocus(Qt::TabFocusReason);
        QVERIFY2(pButton->grab().toImage() != without, qPrintable(pButton->objectName()));
    }
}

void TestClientAccessibility::whatIsDisabledLooksDisabled()
{
    const QuestionDialog dialog({QStringLiteral("Title"), QStringLiteral("Question?"), QStringLiteral("Save"),
                                 QStringLiteral("Discard"), QStringLiteral("Cancel")});
    const QList<QAbstractButton*> buttons = dialog.findChildren<QAbstractButton*>();
    for (QAbstractButton* const pButton : buttons) {
        if (pButton->text().isEmpty()) {
            continue;
        }
        const QImage enabled = pButton->grab().toImage();
        pButton->setEnabled(false);
        QVERIFY2(pButton->grab().toImage() != enabled, qPrintable(pButton->objectName()));
    }
}

void TestClientAccessibility::everyMenuIsReachedByAKeyOfItsOwn()
{
    // Within each menu, and in the bar, no two entries share a key.
    QList<QWidget*> places{m_window->menuBar()};
    const QList<QMenu*> menus = m_window->menuBar()->findChildren<QMenu*>();
    for (QMenu* const pMenu : menus) {
        places.append(pMenu);
    }
    QStringList shortcuts;
    for (const QWidget* const pPlace : qAsConst(places)) {
        QStringList keys;
        const QList<QAction*> actions = pPlace->actions();
        for (const QAction* const pAction : actions) {
            const QKeySequence key = QKeySequence::mnemonic(pAction->text());
            // The names of languages are names.
            if (!pAction->isSeparator() &&
                !pAction->objectName().startsWith(QLatin1String("actionEnglish")) &&
                !pAction->objectName().startsWith(QLatin1String("actionChinese"))) {
                QVERIFY2(!key.isEmpty(), qPrintable(pAction->text()));
                QVERIFY2(!keys.contains(key.toString()), qPrintable(pAction->text()));
                keys.append(key.toString());
            }
            const QList<QKeySequence> own = pAction->shortcuts();
            for (const QKeySequence& shortcut : own) {
                QVERIFY2(!shortcuts.contains(shortcut.toString()), qPrintable(pAction->text()));
                shortcuts.append(shortcut.toString());
            }
        }
    }
    for (const char* szKey : {"Ctrl+S", "Ctrl+W", "Ctrl+Q", "Ctrl+Z", "Ctrl+Y", "Ctrl+F", "F5"}) {
        QVERIFY2(shortcuts.contains(QLatin1String(szKey)), szKey);
    }
}

void TestClientAccessibility::noWidgetIsGreyByDefault()
{
    // The ground of everything in the window is one of the theme's few colours; the toolkit's own light grey
    // would stand out by its brightness.
    m_window->findChild<QTabWidget*>(QStringLiteral("tabPages"))->setCurrentIndex(0);
    const QImage picture = m_window->grab().toImage();
    int iBright = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            iBright += qGray(picture.pixel(x, y)) > 200 ? 1 : 0;
        }
    }
    // Letters and icons, but no area.
    QVERIFY2(iBright < picture.width() * picture.height() / 100, qPrintable(QString::number(iBright)));
}

QTEST_MAIN(TestClientAccessibility)
#include "tst_client_accessibility.moc"
