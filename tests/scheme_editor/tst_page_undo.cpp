#include "AlarmCtrl/QAlarmDayDetailEditor.h"
#include "AlarmCtrl/QAlarmDayEditor.h"
#include "AlarmCtrl/QAlarmDefenceTimeEditor.h"
#include "AlarmCtrl/QAlarmOutEditor.h"
#include "platform/LXGUI/LXSwitchButton.h"
#include "platform/SystemLibrary/AlarmSchemeCommon.h"
#include "platform/VantaModel/NodeRoles.h"
#include "scheme_editor/ACSEventCopyToPopup.h"
#include "scheme_editor/ACSEventSchemeEditor.h"
#include "tests/scheme_editor/PageHands.h"
#include "tests/scheme_editor/PageHost.h"
#include "tests/scheme_editor/SchemeText.h"

#include <QAbstractButton>
#include <QAction>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMainWindow>
#include <QMouseEvent>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QTreeView>

#include <functional>

using namespace PageSite;

namespace {

QString Key(const char* szKey)
{
    return QLatin1String(szKey);
}

int Alarm(int iPlace)
{
    return AlarmSchemeCommon::ACSAlarmEvent().at(iPlace);
}

AlarmInfo On()
{
    AlarmInfo info;
    info.bOpen = true;
    return info;
}

QString UndoText(const OpenPage& page)
{
    return page.Page().property("undoText").toString();
}

QString RedoText(const OpenPage& page)
{
    return page.Page().property("redoText").toString();
}

bool Invoke(const OpenPage& page, const char* szMethod)
{
    return QMetaObject::invokeMethod(&page.Page(), szMethod, Qt::DirectConnection);
}

/// Copies to the keys as a confirmed popup does, and closes it.
bool CopyTo(const OpenPage& page, const QList<QString>& keys)
{
    if (!PageHands::Click(page.hands.Widget("btnCopyTo")))
        return false;
    const QPointer<ACSEventCopyToPopup> pPopup = page.Page().findChild<ACSEventCopyToPopup*>();
    if (pPopup.isNull())
        return false;
    Q_EMIT pPopup->SignalCopyTo(keys);
    pPopup->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return pPopup.isNull();
}

QWidget* DayBar(const OpenPage& page, int iDay)
{
    const auto* const pBar = page.Page().findChild<QAlarmDayEditor*>(QStringLiteral("editor%1").arg(iDay));
    return pBar == nullptr ? nullptr : pBar->findChild<QWidget*>(QStringLiteral("wndDisplay"));
}

QLineEdit* TimeField(const OpenPage& page)
{
    return page.Page().findChild<QLineEdit*>(QStringLiteral("edtTime"));
}

/// Runs inside the dialog that an action opens.
void InDialog(const std::function<void(QAlarmDayDetailEditor&)>& act)
{
    QTimer::singleShot(0, qApp, [act] {
        auto* const pDialog = qobject_cast<QAlarmDayDetailEditor*>(QApplication::activeModalWidget());
        QVERIFY(pDialog != nullptr);
        act(*pDialog);
    });
}

} // namespace

/// Undo and redo as a person and a host meet them on the page.
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
    void aFieldWithTheKeyboardKeepsItsOwnUndo();
    void aCopyIsOneStepThatRestoresTheTargets();
    void aCopyThatChangesNothingIsNoStep();
    void thePageGoesBackToTheSourceTheEventAndTheTab();
    void thePageGoesBackToAnAlarmInput();
    void aSearchThatHidesTheSourceIsCleared();
    void theMarksFollow();
    void stepsOfARemovedDeviceAreDropped();
    void aCopyKeepsWhatItDidToOtherDevices();
    void undoWaitsForTheEndOfADrag();
    void undoWaitsForTheEndOfADialog();
    void aRefusedMailSwitchIsNoStep();
    void savingKeepsTheSteps();
    void theKeysWorkInThePage_data();
    void theKeysWorkInThePage();
    void aHostsMenuAndThePageDoNotMeet();
    void thePageLeavesKeysToTheWindowThatItDoesNotKnow();
    void theHostIsToldOfEveryChange();
    void theStepsAreLimited();
    void undoOnAPageWithoutServicesDoesNothing();
};

void TestPageUndo::nothingIsThereToUndoAtTheStart()
{
    PageHost host({{{Key("100$1$0$101"), Alarm(0)}, On()}});
    OpenPage page(&host.managers);
    QVERIFY(!page.Page().property("canUndo").toBool());
    QVERIFY(!page.Page().property("canRedo").toBool());
    QCOMPARE(UndoText(page), QString());
    QCOMPARE(RedoText(page), QString());
    QVERIFY(Invoke(page, "Undo"));
    QVERIFY(Invoke(page, "Redo"));
    QCOMPARE(SchemeText::Edited(page.Schemes()).size(), 1);
}

void TestPageUndo::browsingIsNoStep()
{
    AlarmInfo dangling = On();
    AlarmLinkAlarmOut link;
    link.strLinkAlarmID = Key("999$3$0$0");
    dangling.listAlarmOut = {link};
    PageHost host({{{Key("100$1$0$101"), Alarm(0)}, dangling}});
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ClickTab("btnDefTime"));
    QVERIFY(page.hands.ClickTab("btnAlarmOut"));
    QVERIFY(page.hands.ClickEvent(Alarm(1)));
    QVERIFY(page.hands.ClickDevice(Lobby));
    QVERIFY(page.hands.ClickDoor(Back));
    QCoreApplication::sendPostedEvents();
    QVERIFY(!page.Page().property("canUndo").toBool());
}

void TestPageUndo::eachSwitchIsAStepWithItsName()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ToggleOpen());
    QTRY_COMPARE(UndoText(page), QStringLiteral("Switch Scheme On"));
    QVERIFY(page.hands.ToggleOpen());
    QTRY_COMPARE(UndoText(page), QStringLiteral("Switch Scheme Off"));
    QVERIFY(page.hands.ToggleSound());
    QTRY_COMPARE(UndoText(page), QStringLiteral("Switch Alarm Sound On"));
    QVERIFY(page.hands.ToggleMail());
    QTRY_COMPARE(UndoText(page), QStringLiteral("Switch Mail On"));
}

void TestPageUndo::undoGoesBackStepByStepAndRedoForth()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ToggleOpen());
    QVERIFY(page.hands.ToggleSound());
    QTRY_COMPARE(UndoText(page), QStringLiteral("Switch Alarm Sound On"));

    QVERIFY(Invoke(page, "Undo"));
    QVERIFY(page.hands.IsOpenShown());
    QVERIFY(!page.hands.IsSoundShown());
    QCOMPARE(RedoText(page), QStringLiteral("Switch Alarm Sound On"));
    QCOMPARE(UndoText(page), QStringLiteral("Switch Scheme On"));
    QVERIFY(Invoke(page, "Undo"));
    QVERIFY(!page.hands.IsOpenShown());
    QVERIFY(SchemeText::Edited(page.Schemes()).isEmpty());
    QVERIFY(!page.Page().property("canUndo").toBool());

    QVERIFY(Invoke(page, "Redo"));
    QVERIFY(Invoke(page, "Redo"));
    QVERIFY(Invoke(page, "Redo"));
    QVERIFY(page.hands.IsOpenShown() && page.hands.IsSoundShown());
    QVERIFY(!page.Page().property("canRedo").toBool());
    QVERIFY(page.hands.Save());
    QVERIFY(host.Kept().schemes.value({Key("100$1$0$101"), Alarm(0)}).bOpenSound);
}

void TestPageUndo::aNewEditForgetsWhatCouldBeRedone()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ToggleOpen());
    QVERIFY(Invoke(page, "Undo"));
    QVERIFY(page.Page().property("canRedo").toBool());
    QVERIFY(page.hands.ToggleSound());
    QTRY_VERIFY(!page.Page().property("canRedo").toBool());
    QCOMPARE(UndoText(page), QStringLiteral("Switch Alarm Sound On"));
}

void TestPageUndo::paintingIsOneStepNamedByTheDay()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ToggleDay(1));
    QTRY_COMPARE(UndoText(page), QStringLiteral("Erase Monday"));
    QVERIFY(page.hands.ToggleDay(1));
    QTRY_COMPARE(UndoText(page), QStringLiteral("Paint Monday"));
    QVERIFY(Invoke(page, "Undo"));
    QVERIFY(page.Scheme(Key("100$1$0$101"), Alarm(0)).defenceTime[1].isEmpty());
    QVERIFY(Invoke(page, "Undo"));
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
    QTRY_COMPARE(UndoText(page), QStringLiteral("Erase 2 Day(s)"));
    QVERIFY(Invoke(page, "Undo"));
    QCOMPARE(page.Scheme(Key("100$1$0$101"), Alarm(0)).defenceTime, AlarmWeek());
    QVERIFY(!page.Page().property("canUndo").toBool());
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
    QWidget* const pBar = DayBar(page, 2);
    const QPoint free(pBar->width() * 9 / 10, pBar->height() / 2);
    QTest::mouseMove(pBar, free);
    QTest::mousePress(pBar, Qt::LeftButton, Qt::NoModifier, free);
    QTest::mouseRelease(pBar, Qt::LeftButton, Qt::NoModifier, free + QPoint(pBar->width() / 20, 0));
    QCoreApplication::sendPostedEvents();
    QVERIFY(!page.Page().property("canUndo").toBool());
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
    QVERIFY(!page.Page().property("canUndo").toBool());
}

void TestPageUndo::aDayCopyIsOneStep()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ToggleDay(1));
    QTRY_COMPARE(UndoText(page), QStringLiteral("Erase Monday"));
    InDialog([](QAlarmDayDetailEditor& dialog) {
        for (const char* const szDay : {"chkMonday", "chkTuesday", "chkFriday"})
            QVERIFY(PageHands::Click(dialog.findChild<QWidget*>(QLatin1String(szDay))));
        QVERIFY(PageHands::Click(dialog.GetButton(QDialogButtonBox::Ok)));
    });
    auto* const pMonday = page.Page().findChild<QAlarmDayEditor*>(QStringLiteral("editor1"));
    QVERIFY(PageHands::Click(pMonday->findChild<QWidget*>(QStringLiteral("btnDetail"))));
    QTRY_COMPARE(UndoText(page), QStringLiteral("Copy Monday to 2 Day(s)"));
    QVERIFY(page.Scheme(Key("100$1$0$101"), Alarm(0)).defenceTime[5].isEmpty());
    QVERIFY(Invoke(page, "Undo"));
    QCOMPARE(page.Scheme(Key("100$1$0$101"), Alarm(0)).defenceTime[2], AlarmWeek()[2]);
    QCOMPARE(page.Scheme(Key("100$1$0$101"), Alarm(0)).defenceTime[5], AlarmWeek()[5]);
    QVERIFY(page.Scheme(Key("100$1$0$101"), Alarm(0)).defenceTime[1].isEmpty());
}

void TestPageUndo::aCancelledDayDialogIsNoStep()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ClickTab("btnDefTime"));
    InDialog([](QAlarmDayDetailEditor& dialog) {
        QVERIFY(PageHands::Click(dialog.findChild<QWidget*>(QStringLiteral("chkAll"))));
        QVERIFY(PageHands::Click(dialog.GetButton(QDialogButtonBox::Cancel)));
    });
    auto* const pMonday = page.Page().findChild<QAlarmDayEditor*>(QStringLiteral("editor1"));
    QVERIFY(PageHands::Click(pMonday->findChild<QWidget*>(QStringLiteral("btnDetail"))));
    QCoreApplication::sendPostedEvents();
    QVERIFY(!page.Page().property("canUndo").toBool());
}

void TestPageUndo::outputsAreLinkedInSteps()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ToggleOutput(Siren));
    QTRY_COMPARE(UndoText(page), QStringLiteral("Link 1 Output(s)"));
    QVERIFY(page.hands.ToggleOutput(Siren));
    QTRY_COMPARE(UndoText(page), QStringLiteral("Unlink 1 Output(s)"));
    QVERIFY(Invoke(page, "Undo"));
    QCOMPARE(page.Scheme(Key("100$1$0$101"), Alarm(0)).listAlarmOut.size(), 1);
    QVERIFY(Invoke(page, "Undo"));
    QVERIFY(page.Scheme(Key("100$1$0$101"), Alarm(0)).listAlarmOut.isEmpty());
}

void TestPageUndo::typingATimeIsOneStep()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ToggleOutput(Siren));
    QLineEdit* const pTime = TimeField(page);
    QTRY_VERIFY(pTime->isEnabled());
    page.Page().activateWindow();
    pTime->setFocus();
    QTRY_VERIFY(pTime->hasFocus());
    pTime->selectAll();
    for (const char digit : {'1', '2', '5'}) {
        QTest::keyClick(pTime, digit);
        QCoreApplication::sendPostedEvents();
    }
    QTRY_COMPARE(UndoText(page), QStringLiteral("Change Output Settings"));
    QCOMPARE(page.Scheme(Key("100$1$0$101"), Alarm(0)).listAlarmOut.constFirst().Time, 125);
    QVERIFY(Invoke(page, "Undo"));
    QCOMPARE(page.Scheme(Key("100$1$0$101"), Alarm(0)).listAlarmOut.constFirst().Time, 20);
    QCOMPARE(UndoText(page), QStringLiteral("Link 1 Output(s)"));
}

void TestPageUndo::typingBackIsNoStep()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ToggleOutput(Siren));
    QLineEdit* const pTime = TimeField(page);
    QTRY_COMPARE(UndoText(page), QStringLiteral("Link 1 Output(s)"));
    page.Page().activateWindow();
    pTime->setFocus();
    QTRY_VERIFY(pTime->hasFocus());
    QTest::keyClick(pTime, Qt::Key_End);
    QTest::keyClick(pTime, '0');
    QTRY_COMPARE(UndoText(page), QStringLiteral("Change Output Settings"));
    QTest::keyClick(pTime, Qt::Key_Backspace);
    QTRY_COMPARE(UndoText(page), QStringLiteral("Link 1 Output(s)"));
    QVERIFY(!page.Page().property("canRedo").toBool());
}

void TestPageUndo::aFieldWithTheKeyboardKeepsItsOwnUndo()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ToggleOutput(Siren));
    QLineEdit* const pTime = TimeField(page);
    QTRY_COMPARE(UndoText(page), QStringLiteral("Link 1 Output(s)"));
    page.Page().activateWindow();
    pTime->setFocus();
    QTRY_VERIFY(pTime->hasFocus());
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

void TestPageUndo::aCopyIsOneStepThatRestoresTheTargets()
{
    AlarmInfo old;
    old.bSendEmail = true;
    PageHost host({{{Key("200$1$0$201"), Alarm(0)}, old}, {{Key("200$1$0$201"), 9999}, On()}});
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ToggleOpen());
    const QStringList before = SchemeText::Edited(page.Schemes());
    QVERIFY(CopyTo(page, {Key("200$1$0$201"), Key("300$1$0$301"), Key("100$1$0$101"), Key("300$1$0$301")}));
    QCOMPARE(UndoText(page), QStringLiteral("Copy to 2 Source(s)"));
    const QStringList after = SchemeText::Edited(page.Schemes());
    QVERIFY(Invoke(page, "Undo"));
    QCOMPARE(SchemeText::Edited(page.Schemes()), before);
    QVERIFY(!page.Holds(Key("300$1$0$301"), Alarm(0)));
    QVERIFY(Invoke(page, "Redo"));
    QCOMPARE(SchemeText::Edited(page.Schemes()), after);
}

void TestPageUndo::aCopyThatChangesNothingIsNoStep()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(CopyTo(page, {Key("200$1$0$201")}));
    QVERIFY(!page.Page().property("canUndo").toBool());
}

void TestPageUndo::thePageGoesBackToTheSourceTheEventAndTheTab()
{
    const int iNormal = AlarmSchemeCommon::ACSNormalEvent().constLast();
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ClickCategory("btnNormal"));
    QVERIFY(page.hands.ClickEvent(iNormal));
    QVERIFY(page.hands.ToggleDay(4));
    QTRY_COMPARE(UndoText(page), QStringLiteral("Erase Thursday"));
    QVERIFY(page.hands.ClickTab("btnNotify"));
    QVERIFY(page.hands.ClickDoor(Safe));
    const QString strElsewhere = page.Page().property("editedScheme").toString();

    QVERIFY(Invoke(page, "Undo"));
    QVERIFY(page.Page().property("editedScheme").toString() != strElsewhere);
    QVERIFY(page.Page().property("editedScheme").toString().startsWith(QLatin1String("Front")));
    QVERIFY(page.hands.Button("btnNormal")->isChecked());
    QCOMPARE(page.hands.VisibleList(), page.hands.List("listNormal"));
    QVERIFY(page.hands.Button("btnDefTime")->isChecked());
    QCOMPARE(page.hands.TreeView()->currentIndex().data(VantaModel::NodeIdRole).toLongLong(), Front);
    QVERIFY(DayBar(page, 4)->isVisible());
    QCOMPARE(page.Scheme(Key("100$1$0$101"), iNormal).defenceTime, AlarmWeek());

    QVERIFY(page.hands.ClickDevice(Lobby));
    QVERIFY(Invoke(page, "Redo"));
    QVERIFY(page.hands.Button("btnNormal")->isChecked());
    QVERIFY(page.Scheme(Key("100$1$0$101"), iNormal).defenceTime[4].isEmpty());
}

void TestPageUndo::thePageGoesBackToAnAlarmInput()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDevice(Lobby));
    QVERIFY(page.hands.ClickInput(Key("100$3$1$104")));
    QVERIFY(page.hands.ToggleOpen());
    QVERIFY(page.hands.HasInputMark(Key("100$3$1$104")));
    QVERIFY(page.hands.ClickDoor(Safe));
    QVERIFY(Invoke(page, "Undo"));
    QCOMPARE(page.hands.CurrentInputKey(), Key("100$3$1$104"));
    QVERIFY(!page.hands.IsOpenShown());
    QVERIFY(!page.hands.HasInputMark(Key("100$3$1$104")));
    QVERIFY(page.hands.AreSettingsEnabled());
}

void TestPageUndo::aSearchThatHidesTheSourceIsCleared()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ToggleOpen());
    QVERIFY(page.hands.Search(QStringLiteral("Safe")));
    QVERIFY(!page.hands.SeesNode(Front, VantaModel::NodeKindChannel));
    QVERIFY(Invoke(page, "Undo"));
    QVERIFY(page.hands.SeesNode(Front, VantaModel::NodeKindChannel));
    QVERIFY(page.Page().property("editedScheme").toString().startsWith(QLatin1String("Front")));
    QVERIFY(!page.hands.IsOpenShown());
}

void TestPageUndo::theMarksFollow()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ToggleOpen());
    QVERIFY(page.hands.HasMark("listAlarm", Alarm(0)));
    QVERIFY(Invoke(page, "Undo"));
    QVERIFY(!page.hands.HasMark("listAlarm", Alarm(0)));
    QVERIFY(Invoke(page, "Redo"));
    QVERIFY(page.hands.HasMark("listAlarm", Alarm(0)));
}

void TestPageUndo::stepsOfARemovedDeviceAreDropped()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Safe));
    QVERIFY(page.hands.ToggleOpen());
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ToggleSound());
    QVERIFY(page.hands.ToggleOpen());
    QVERIFY(Invoke(page, "Undo"));
    QVERIFY(host.devices.RemoveDevice(Lobby));
    QTRY_VERIFY(!page.Page().property("canRedo").toBool());
    QCOMPARE(UndoText(page), QStringLiteral("Switch Scheme On"));
    QVERIFY(Invoke(page, "Undo"));
    QVERIFY(!page.Page().property("canUndo").toBool());
    QVERIFY(SchemeText::KeysOfDevice(page.Schemes(), Lobby).isEmpty());
    QVERIFY(SchemeText::Edited(page.Schemes()).isEmpty());
    QVERIFY(page.Page().property("editedScheme").toString().startsWith(QLatin1String("Safe")));
}

void TestPageUndo::aCopyKeepsWhatItDidToOtherDevices()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ToggleOpen());
    QVERIFY(CopyTo(page, {Key("200$1$0$201"), Key("300$1$0$301"), Key("100$1$0$102")}));
    QVERIFY(host.devices.RemoveDevice(Vault));
    QTRY_VERIFY(SchemeText::KeysOfDevice(page.Schemes(), Vault).isEmpty());
    QVERIFY(Invoke(page, "Undo"));
    QVERIFY(!page.Scheme(Key("300$1$0$301"), Alarm(0)).bOpen);
    QVERIFY(Invoke(page, "Redo"));
    QVERIFY(page.Scheme(Key("300$1$0$301"), Alarm(0)).bOpen);
    QVERIFY(page.Scheme(Key("100$1$0$102"), Alarm(0)).bOpen);
    QVERIFY(SchemeText::KeysOfDevice(page.Schemes(), Vault).isEmpty());
    // The device of the copied door goes: what the copy did elsewhere can still be taken back.
    QVERIFY(host.devices.RemoveDevice(Lobby));
    QTRY_VERIFY(SchemeText::KeysOfDevice(page.Schemes(), Lobby).isEmpty());
    QVERIFY(Invoke(page, "Undo"));
    QVERIFY(SchemeText::Edited(page.Schemes()).isEmpty());
}

void TestPageUndo::undoWaitsForTheEndOfADrag()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ToggleOpen());
    QVERIFY(page.hands.ClickTab("btnDefTime"));
    QWidget* const pBar = DayBar(page, 1);
    QTest::mouseMove(pBar, QPoint(10, 5));
    QTest::mousePress(pBar, Qt::LeftButton, Qt::NoModifier, QPoint(10, 5));
    QCoreApplication::sendPostedEvents();
    QVERIFY(Invoke(page, "Undo"));
    QVERIFY(page.hands.IsOpenShown());
    QCOMPARE(UndoText(page), QStringLiteral("Switch Scheme On"));
    QTest::mouseRelease(pBar, Qt::LeftButton, Qt::NoModifier, QPoint(pBar->width() / 2, 5));
    QTRY_COMPARE(UndoText(page), QStringLiteral("Erase Monday"));
    QVERIFY(Invoke(page, "Undo"));
    QVERIFY(Invoke(page, "Undo"));
    QVERIFY(!page.hands.IsOpenShown());
}

void TestPageUndo::undoWaitsForTheEndOfADialog()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ToggleOpen());
    QVERIFY(page.hands.ClickTab("btnDefTime"));
    InDialog([&page](QAlarmDayDetailEditor& dialog) {
        QVERIFY(Invoke(page, "Undo"));
        QVERIFY(page.hands.IsOpenShown());
        QVERIFY(PageHands::Click(dialog.GetButton(QDialogButtonBox::Cancel)));
    });
    auto* const pMonday = page.Page().findChild<QAlarmDayEditor*>(QStringLiteral("editor1"));
    QVERIFY(PageHands::Click(pMonday->findChild<QWidget*>(QStringLiteral("btnDetail"))));
    QVERIFY(page.hands.IsOpenShown());
    QTRY_VERIFY((Invoke(page, "Undo"), !page.hands.IsOpenShown()));
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
    QVERIFY(!page.Page().property("canUndo").toBool());
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
    QVERIFY(Invoke(page, "Undo"));
    QVERIFY(!page.hands.IsOpenShown());
    QVERIFY2(page.Page().isWindowModified(), "the state before the save is not the saved one");
    QVERIFY(Invoke(page, "Redo"));
    QVERIFY(!page.Page().isWindowModified());
}

void TestPageUndo::theKeysWorkInThePage_data()
{
    QTest::addColumn<QString>("strFocus");
    for (const char* const szName :
         {"btnOpenStatus", "treeDevices", "listAlarm", "btnAlarmSound", "btnCopyTo"})
        QTest::newRow(szName) << QString::fromLatin1(szName);
}

void TestPageUndo::theKeysWorkInThePage()
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

void TestPageUndo::aHostsMenuAndThePageDoNotMeet()
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
    QVERIFY(hands.ToggleOutput(Siren));
    QTRY_COMPARE(pPage->property("undoText").toString(), QStringLiteral("Link 1 Output(s)"));
    auto* const pTime = pPage->findChild<QLineEdit*>(QStringLiteral("edtTime"));
    pTime->setFocus();
    QTRY_VERIFY(pTime->hasFocus());
    QTest::keyClick(pTime, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(iAsked, 1);
    QCOMPARE(pPage->property("undoText").toString(), QStringLiteral("Link 1 Output(s)"));
}

void TestPageUndo::thePageLeavesKeysToTheWindowThatItDoesNotKnow()
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

void TestPageUndo::theHostIsToldOfEveryChange()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QSignalSpy changed(&page.Page(), SIGNAL(SignalUndoChanged()));
    QVERIFY(changed.isValid());
    QVERIFY(page.hands.ToggleOpen());
    QCOMPARE(changed.size(), 1);
    QVERIFY(Invoke(page, "Undo"));
    QCOMPARE(changed.size(), 2);
    QVERIFY(Invoke(page, "Redo"));
    QCOMPARE(changed.size(), 3);
    QVERIFY(host.devices.RemoveDevice(Lobby));
    QTRY_COMPARE(changed.size(), 4);
    QVERIFY(!page.Page().property("canUndo").toBool());
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
    while (page.Page().property("canUndo").toBool() && iSteps <= iLimit) {
        QVERIFY(Invoke(page, "Undo"));
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
