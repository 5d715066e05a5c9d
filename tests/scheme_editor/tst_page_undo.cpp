#include "AlarmCtrl/QAlarmDayDetailEditor.h"
#include "scheme_editor/ACSEventSchemeEditor.h"
#include "tests/scheme_editor/OpenPage.h"
#include "tests/scheme_editor/PageHands.h"
#include "tests/scheme_editor/PageHost.h"
#include "tests/scheme_editor/PageSchemes.h"
#include "tests/scheme_editor/SchemeText.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

using namespace PageSchemes;
using namespace PageSite;

/// What a step is, as a person and a host meet it on the page.
class TestPageUndo : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nothingIsThereToUndoAtTheStart();
    void browsingIsNoStep();
    void eachSwitchIsAStepWithItsName();
    void undoGoesBackStepByStepAndRedoForth();
    void aNewEditForgetsWhatCouldBeRedone();
    void paintingIsOneStepNamedByTheDay();
    void lockedDaysArePaintedInOneStep();
    void aRefusedPaintIsNoStep();
    void lockingIsNoStep();
    void aDayCopyIsOneStep();
    void aCancelledDayDialogIsNoStep();
    void outputsAreLinkedInSteps();
    void typingATimeIsOneStep();
    void typingBackIsNoStep();
    void aCopyIsOneStepThatRestoresTheTargets();
    void aCopyThatChangesNothingIsNoStep();
    void aRefusedMailSwitchIsNoStep();
    void savingKeepsTheSteps();
    void theHostIsToldOfEveryChange();
    void theStepsAreLimited();
    void undoOnAPageWithoutServicesDoesNothing();
};

void TestPageUndo::nothingIsThereToUndoAtTheStart()
{
    PageHost host({{{Key("100$1$0$101"), Alarm(0)}, On()}});
    OpenPage page(&host.managers);
    QVERIFY(!page.byName.CanUndo());
    QVERIFY(!page.byName.CanRedo());
    QCOMPARE(page.byName.UndoText(), QString());
    QCOMPARE(page.byName.RedoText(), QString());
    QVERIFY(page.byName.Undo());
    QVERIFY(page.byName.Redo());
    QCOMPARE(SchemeText::Edited(page.Schemes()).size(), 1);
}

void TestPageUndo::browsingIsNoStep()
{
    AlarmInfo dangling = On();
    dangling.listAlarmOut = {Output("999$3$0$0")};
    PageHost host({{{Key("100$1$0$101"), Alarm(0)}, dangling}});
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ClickTab("btnDefTime"));
    QVERIFY(page.hands.ClickTab("btnAlarmOut"));
    QVERIFY(page.hands.ClickEvent(Alarm(1)));
    QVERIFY(page.hands.ClickDevice(Lobby));
    QVERIFY(page.hands.ClickDoor(Back));
    QCoreApplication::sendPostedEvents();
    QVERIFY(!page.byName.CanUndo());
}

void TestPageUndo::eachSwitchIsAStepWithItsName()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ToggleOpen());
    QTRY_COMPARE(page.byName.UndoText(), QStringLiteral("Switch Scheme On"));
    QVERIFY(page.hands.ToggleOpen());
    QTRY_COMPARE(page.byName.UndoText(), QStringLiteral("Switch Scheme Off"));
    QVERIFY(page.hands.ToggleSound());
    QTRY_COMPARE(page.byName.UndoText(), QStringLiteral("Switch Alarm Sound On"));
    QVERIFY(page.hands.ToggleMail());
    QTRY_COMPARE(page.byName.UndoText(), QStringLiteral("Switch Mail On"));
}

void TestPageUndo::undoGoesBackStepByStepAndRedoForth()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ToggleOpen());
    QVERIFY(page.hands.ToggleSound());
    QTRY_COMPARE(page.byName.UndoText(), QStringLiteral("Switch Alarm Sound On"));

    QVERIFY(page.byName.Undo());
    QVERIFY(page.hands.IsOpenShown());
    QVERIFY(!page.hands.IsSoundShown());
    QCOMPARE(page.byName.RedoText(), QStringLiteral("Switch Alarm Sound On"));
    QCOMPARE(page.byName.UndoText(), QStringLiteral("Switch Scheme On"));
    QVERIFY(page.byName.Undo());
    QVERIFY(!page.hands.IsOpenShown());
    QVERIFY(SchemeText::Edited(page.Schemes()).isEmpty());
    QVERIFY(!page.byName.CanUndo());

    QVERIFY(page.byName.Redo());
    QVERIFY(page.byName.Redo());
    QVERIFY(page.byName.Redo());
    QVERIFY(page.hands.IsOpenShown() && page.hands.IsSoundShown());
    QVERIFY(!page.byName.CanRedo());
    QVERIFY(page.hands.Save());
    QVERIFY(host.Kept().schemes.value({Key("100$1$0$101"), Alarm(0)}).bOpenSound);
}

void TestPageUndo::aNewEditForgetsWhatCouldBeRedone()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ToggleOpen());
    QVERIFY(page.byName.Undo());
    QVERIFY(page.byName.CanRedo());
    QVERIFY(page.hands.ToggleSound());
    QTRY_VERIFY(!page.byName.CanRedo());
    QCOMPARE(page.byName.UndoText(), QStringLiteral("Switch Alarm Sound On"));
}

void TestPageUndo::paintingIsOneStepNamedByTheDay()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ToggleDay(1));
    QTRY_COMPARE(page.byName.UndoText(), QStringLiteral("Erase Monday"));
    QVERIFY(page.hands.ToggleDay(1));
    QTRY_COMPARE(page.byName.UndoText(), QStringLiteral("Paint Monday"));
    QVERIFY(page.byName.Undo());
    QVERIFY(page.Scheme(Key("100$1$0$101"), Alarm(0)).defenceTime[1].isEmpty());
    QVERIFY(page.byName.Undo());
    QCOMPARE(page.Scheme(Key("100$1$0$101"), Alarm(0)).defenceTime, AlarmWeek());
}

void TestPageUndo::lockedDaysArePaintedInOneStep()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ClickTab("btnDefTime"));
    QVERIFY(PageHands::Click(page.hands.Widget("btn1")));
    QVERIFY(PageHands::Click(page.hands.Widget("btn3")));
    QVERIFY(page.hands.ToggleDay(3));
    QTRY_COMPARE(page.byName.UndoText(), QStringLiteral("Erase 2 Day(s)"));
    QVERIFY(page.byName.Undo());
    QCOMPARE(page.Scheme(Key("100$1$0$101"), Alarm(0)).defenceTime, AlarmWeek());
    QVERIFY(!page.byName.CanUndo());
    QVERIFY2(page.hands.Button("btn1")->isChecked(), "a lock belongs to the editor, not to the plan");
}

void TestPageUndo::aRefusedPaintIsNoStep()
{
    AlarmInfo full = On();
    full.defenceTime[2].clear();
    for (int i = 0; i < 6; ++i)
        full.defenceTime[2].append({i * 7200, i * 7200 + 3600});
    PageHost host({{{Key("100$1$0$101"), Alarm(0)}, full}});
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ClickTab("btnDefTime"));
    QWidget* const pBar = page.hands.DayBar(2);
    const QPoint free(pBar->width() * 9 / 10, pBar->height() / 2);
    QTest::mouseMove(pBar, free);
    QTest::mousePress(pBar, Qt::LeftButton, Qt::NoModifier, free);
    QTest::mouseRelease(pBar, Qt::LeftButton, Qt::NoModifier, free + QPoint(pBar->width() / 20, 0));
    QCoreApplication::sendPostedEvents();
    QVERIFY(!page.byName.CanUndo());
    QVERIFY(!page.Page().isWindowModified());
}

void TestPageUndo::lockingIsNoStep()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ClickTab("btnDefTime"));
    QVERIFY(PageHands::Click(page.hands.Widget("btnAll")));
    QCoreApplication::sendPostedEvents();
    QVERIFY(!page.byName.CanUndo());
}

void TestPageUndo::aDayCopyIsOneStep()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ToggleDay(1));
    QTRY_COMPARE(page.byName.UndoText(), QStringLiteral("Erase Monday"));
    QVERIFY(page.hands.OpenDay(1, [](QAlarmDayDetailEditor& dialog) {
        for (const char* const szDay : {"chkMonday", "chkTuesday", "chkFriday"})
            QVERIFY(PageHands::Click(dialog.findChild<QWidget*>(QLatin1String(szDay))));
        QVERIFY(PageHands::Click(dialog.GetButton(QDialogButtonBox::Ok)));
    }));
    QTRY_COMPARE(page.byName.UndoText(), QStringLiteral("Copy Monday to 2 Day(s)"));
    QVERIFY(page.Scheme(Key("100$1$0$101"), Alarm(0)).defenceTime[5].isEmpty());
    QVERIFY(page.byName.Undo());
    QCOMPARE(page.Scheme(Key("100$1$0$101"), Alarm(0)).defenceTime[2], AlarmWeek()[2]);
    QCOMPARE(page.Scheme(Key("100$1$0$101"), Alarm(0)).defenceTime[5], AlarmWeek()[5]);
    QVERIFY(page.Scheme(Key("100$1$0$101"), Alarm(0)).defenceTime[1].isEmpty());
}

void TestPageUndo::aCancelledDayDialogIsNoStep()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.OpenDay(1, [](QAlarmDayDetailEditor& dialog) {
        QVERIFY(PageHands::Click(dialog.findChild<QWidget*>(QStringLiteral("chkAll"))));
        QVERIFY(PageHands::Click(dialog.GetButton(QDialogButtonBox::Cancel)));
    }));
    QCoreApplication::sendPostedEvents();
    QVERIFY(!page.byName.CanUndo());
}

void TestPageUndo::outputsAreLinkedInSteps()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ToggleOutput(Siren));
    QTRY_COMPARE(page.byName.UndoText(), QStringLiteral("Link 1 Output(s)"));
    QVERIFY(page.hands.ToggleOutput(Siren));
    QTRY_COMPARE(page.byName.UndoText(), QStringLiteral("Unlink 1 Output(s)"));
    QVERIFY(page.byName.Undo());
    QCOMPARE(page.Scheme(Key("100$1$0$101"), Alarm(0)).listAlarmOut.size(), 1);
    QVERIFY(page.byName.Undo());
    QVERIFY(page.Scheme(Key("100$1$0$101"), Alarm(0)).listAlarmOut.isEmpty());
}

void TestPageUndo::typingATimeIsOneStep()
{
    PageHost host;
    OpenPage page(&host.managers);
    page.Page().activateWindow();
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.LinkAndGoToTime(Siren));
    QLineEdit* const pTime = page.hands.TimeField();
    pTime->selectAll();
    for (const char digit : {'1', '2', '5'}) {
        QTest::keyClick(pTime, digit);
        QCoreApplication::sendPostedEvents();
    }
    QTRY_COMPARE(page.byName.UndoText(), QStringLiteral("Change Output Settings"));
    QCOMPARE(page.Scheme(Key("100$1$0$101"), Alarm(0)).listAlarmOut.constFirst().Time, 125);
    QVERIFY(page.byName.Undo());
    QCOMPARE(page.Scheme(Key("100$1$0$101"), Alarm(0)).listAlarmOut.constFirst().Time, 20);
    QCOMPARE(page.byName.UndoText(), QStringLiteral("Link 1 Output(s)"));
}

void TestPageUndo::typingBackIsNoStep()
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
    QTRY_COMPARE(page.byName.UndoText(), QStringLiteral("Change Output Settings"));
    QTest::keyClick(pTime, Qt::Key_Backspace);
    QTRY_COMPARE(page.byName.UndoText(), QStringLiteral("Link 1 Output(s)"));
    QVERIFY(!page.byName.CanRedo());
}

void TestPageUndo::aCopyIsOneStepThatRestoresTheTargets()
{
    AlarmInfo old;
    old.bSendEmail = true;
    PageHost host({{{Key("200$1$0$201"), Alarm(0)}, old}, {{Key("200$1$0$201"), 9999}, On()}});
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ToggleOpen());
    const QStringList before = SchemeText::Edited(page.Schemes());
    QVERIFY(page.CopyTo({Key("200$1$0$201"), Key("300$1$0$301"), Key("100$1$0$101"), Key("300$1$0$301")}));
    QCOMPARE(page.byName.UndoText(), QStringLiteral("Copy to 2 Source(s)"));
    const QStringList after = SchemeText::Edited(page.Schemes());
    QVERIFY(page.byName.Undo());
    QCOMPARE(SchemeText::Edited(page.Schemes()), before);
    QVERIFY(!page.Holds(Key("300$1$0$301"), Alarm(0)));
    QVERIFY(page.byName.Redo());
    QCOMPARE(SchemeText::Edited(page.Schemes()), after);
}

void TestPageUndo::aCopyThatChangesNothingIsNoStep()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.CopyTo({Key("200$1$0$201")}));
    QVERIFY(!page.byName.CanUndo());
}

void TestPageUndo::aRefusedMailSwitchIsNoStep()
{
    PageHost host;
    PageHost::MakeMailUnusable();
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QTimer::singleShot(0, qApp, [] {
        QWidget* const pBox = QApplication::activeModalWidget();
        QVERIFY(pBox != nullptr);
        QCoreApplication::sendPostedEvents(); // the page hears of nothing before the answer
        QTest::keyClick(pBox, Qt::Key_Escape);
    });
    QVERIFY(page.hands.ToggleMail());
    QCoreApplication::sendPostedEvents();
    QVERIFY(!page.hands.IsMailShown());
    QVERIFY(!page.byName.CanUndo());
    QVERIFY(!page.Page().isWindowModified());
}

void TestPageUndo::savingKeepsTheSteps()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ToggleOpen());
    QVERIFY(page.hands.Save());
    QVERIFY(!page.Page().isWindowModified());
    QVERIFY(page.byName.Undo());
    QVERIFY(!page.hands.IsOpenShown());
    QVERIFY2(page.Page().isWindowModified(), "the state before the save is not the saved one");
    QVERIFY(page.byName.Redo());
    QVERIFY(!page.Page().isWindowModified());
}

void TestPageUndo::theHostIsToldOfEveryChange()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QSignalSpy changed(&page.Page(), SIGNAL(SignalUndoChanged()));
    QVERIFY(changed.isValid());
    QVERIFY(page.hands.ToggleOpen());
    QCOMPARE(changed.size(), 1);
    QVERIFY(page.byName.Undo());
    QCOMPARE(changed.size(), 2);
    QVERIFY(page.byName.Redo());
    QCOMPARE(changed.size(), 3);
    QVERIFY(host.devices.RemoveDevice(Lobby));
    QTRY_COMPARE(changed.size(), 4);
    QVERIFY(!page.byName.CanUndo());
}

void TestPageUndo::theStepsAreLimited()
{
    constexpr int iLimit = 200;
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    for (int i = 0; i < iLimit + 10; ++i)
        QVERIFY(page.hands.ToggleOpen());
    int iSteps = 0;
    while (page.byName.CanUndo() && iSteps <= iLimit) {
        QVERIFY(page.byName.Undo());
        ++iSteps;
    }
    QCOMPARE(iSteps, iLimit);
}

void TestPageUndo::undoOnAPageWithoutServicesDoesNothing()
{
    ACSEventSchemeEditor raw;
    raw.Undo();
    raw.Redo();
    QCOMPARE(raw.RestoreDraft(QByteArray()), -1);
    raw.Init(nullptr);
    raw.Undo();
    raw.Redo();
    raw.MarkUnsaved();
    QVERIFY(!raw.CanUndo());
    QVERIFY(raw.Draft().isEmpty());
}

QTEST_MAIN(TestPageUndo)
#include "tst_page_undo.moc"
