#include "scheme_editor/ACSEventSchemeEditor.h"
#include "tests/scheme_editor/OpenPage.h"
#include "tests/scheme_editor/PageHands.h"
#include "tests/scheme_editor/PageHost.h"
#include "tests/scheme_editor/PageSchemes.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMainWindow>
#include <QTest>

using namespace PageSchemes;
using namespace PageSite;

/// The keys of undo and redo, and who has the say about them.
class TestPageUndoKeys : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theKeysWorkInThePage_data();
    void theKeysWorkInThePage();
    void aFieldWithTheKeyboardKeepsItsOwnUndo();
    void aHostsMenuAndThePageDoNotMeet();
    void thePageLeavesKeysToTheWindowThatItDoesNotKnow();
};

void TestPageUndoKeys::theKeysWorkInThePage_data()
{
    QTest::addColumn<QString>("strFocus");
    for (const char* const szName :
         {"btnOpenStatus", "treeDevices", "listAlarm", "btnAlarmSound", "btnCopyTo"})
        QTest::newRow(szName) << QString::fromLatin1(szName);
}

void TestPageUndoKeys::theKeysWorkInThePage()
{
    QFETCH(QString, strFocus);
    PageHost host;
    OpenPage page(&host.managers);
    page.Page().activateWindow();
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ToggleOpen());
    auto* const pFocus = page.Page().findChild<QWidget*>(strFocus);
    QVERIFY(pFocus != nullptr);
    pFocus->setFocus();
    QTRY_VERIFY(pFocus->hasFocus());
    QTest::keyClick(pFocus, Qt::Key_Z, Qt::ControlModifier);
    QVERIFY(!page.hands.IsOpenShown());
    QTest::keyClick(pFocus, Qt::Key_Y, Qt::ControlModifier);
    QVERIFY(page.hands.IsOpenShown());
    QTest::keyClick(pFocus, Qt::Key_Z, Qt::ControlModifier);
    QVERIFY(!page.hands.IsOpenShown());
    QTest::keyClick(pFocus, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    QVERIFY(page.hands.IsOpenShown());
}

void TestPageUndoKeys::aFieldWithTheKeyboardKeepsItsOwnUndo()
{
    PageHost host;
    OpenPage page(&host.managers);
    page.Page().activateWindow();
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.LinkAndGoToTime(Siren));
    QCOMPARE(page.byName.UndoText(), QStringLiteral("Link 1 Output(s)"));
    QLineEdit* const pTime = page.hands.TimeField();
    QTest::keyClick(pTime, Qt::Key_End);
    QTest::keyClick(pTime, '0');
    QCOMPARE(pTime->text(), QStringLiteral("200"));
    QTest::keyClick(pTime, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(pTime->text(), QStringLiteral("20"));
    // With nothing left to undo in the field the key still belongs to it.
    QTest::keyClick(pTime, Qt::Key_Z, Qt::ControlModifier);
    QTest::keyClick(pTime, Qt::Key_Z, Qt::ControlModifier);
    QCoreApplication::sendPostedEvents();
    QCOMPARE(page.Scheme(Key("100$1$0$101"), Alarm(0)).listAlarmOut.size(), 1);
}

void TestPageUndoKeys::aHostsMenuAndThePageDoNotMeet()
{
    PageHost host;
    QMainWindow window;
    auto* const pPage = new ACSEventSchemeEditor;
    pPage->Init(&host.managers);
    window.setCentralWidget(pPage);
    QAction undo;
    undo.setShortcut(QKeySequence::Undo);
    window.addAction(&undo);
    int iAsked = 0;
    connect(&undo, &QAction::triggered, pPage, [&iAsked, pPage] {
        ++iAsked;
        QMetaObject::invokeMethod(pPage, "Undo");
    });
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    const PageHands hands(*pPage);
    QVERIFY(hands.ClickDoor(Front));
    QVERIFY(hands.ToggleOpen());
    QVERIFY(hands.ToggleSound());
    hands.Widget("btnOpenStatus")->setFocus();
    QTest::keyClick(hands.Widget("btnOpenStatus"), Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(iAsked, 1);
    QVERIFY2(hands.IsOpenShown() && !hands.IsSoundShown(), "one key, one step");
    // A host whose menu is disabled leaves the key to the page, which then has the say.
    undo.setEnabled(false);
    QTest::keyClick(hands.Widget("btnOpenStatus"), Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(iAsked, 1);
    QVERIFY(!hands.IsOpenShown());
    // In a text field neither of them is asked.
    undo.setEnabled(true);
    QVERIFY(hands.LinkAndGoToTime(Siren));
    QCOMPARE(PageByName(*pPage).UndoText(), QStringLiteral("Link 1 Output(s)"));
    QTest::keyClick(hands.TimeField(), Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(iAsked, 1);
    QCOMPARE(PageByName(*pPage).UndoText(), QStringLiteral("Link 1 Output(s)"));
}

void TestPageUndoKeys::thePageLeavesKeysToTheWindowThatItDoesNotKnow()
{
    PageHost host;
    OpenPage page(&host.managers);
    page.Page().activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&page.Page()));
    QVERIFY(page.hands.ClickDoor(Front));
    QWidget* const pFrom = page.hands.Widget("btnOpenStatus");
    pFrom->setFocus();
    QTest::keyClick(pFrom, Qt::Key_F, Qt::ControlModifier);
    QTRY_VERIFY(page.hands.Widget("wndDevTree")->isAncestorOf(QApplication::focusWidget()));
    QCOMPARE(QApplication::focusWidget()->objectName(), QStringLiteral("edtSearch"));
    pFrom->setFocus();
    QTest::keyClick(pFrom, Qt::Key_3, Qt::ControlModifier);
    QVERIFY(page.hands.Button("btnDefTime")->isChecked());
    QTest::keyClick(pFrom, Qt::Key_2, Qt::AltModifier);
    QVERIFY(page.hands.Button("btnAbnormal")->isChecked());
    QTest::keyClick(pFrom, Qt::Key_4, Qt::AltModifier); // no such category is shown
    QVERIFY(page.hands.Button("btnAbnormal")->isChecked());
    QKeyEvent strange(QEvent::KeyPress, Qt::Key_K, Qt::ControlModifier);
    QCoreApplication::sendEvent(pFrom, &strange);
    QVERIFY(!strange.isAccepted());
}

QTEST_MAIN(TestPageUndoKeys)
#include "tst_page_undo_keys.moc"
