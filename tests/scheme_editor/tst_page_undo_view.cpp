#include "AlarmCtrl/QAlarmDayDetailEditor.h"
#include "AlarmCtrl/QAlarmListItemView.h"
#include "platform/SystemLibrary/AlarmSchemeCommon.h"
#include "platform/VantaModel/NodeRoles.h"
#include "scheme_editor/ACSEventSchemeEditor.h"
#include "tests/scheme_editor/OpenPage.h"
#include "tests/scheme_editor/PageHands.h"
#include "tests/scheme_editor/PageHost.h"
#include "tests/scheme_editor/PageSchemes.h"
#include "tests/scheme_editor/SchemeText.h"

#include <QAbstractButton>
#include <QPushButton>
#include <QTest>
#include <QTreeView>

using namespace PageSchemes;
using namespace PageSite;

/// Where undo and redo lead the page, what goes with a device, and what they wait for.
class TestPageUndoView : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void thePageGoesBackToTheSourceTheEventAndTheTab();
    void thePageGoesBackToAnAlarmInput();
    void aSearchThatHidesTheSourceIsCleared();
    void theMarksFollow();
    void stepsOfARemovedDeviceAreDropped();
    void aCopyKeepsWhatItDidToOtherDevices();
    void undoWaitsForTheEndOfADrag();
    void undoWaitsForTheEndOfADialog();
};

void TestPageUndoView::thePageGoesBackToTheSourceTheEventAndTheTab()
{
    const int iNormal = AlarmSchemeCommon::ACSNormalEvent().constLast();
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ClickCategory("btnNormal"));
    QVERIFY(page.hands.ClickEvent(iNormal));
    QVERIFY(page.hands.ToggleDay(4));
    QTRY_COMPARE(page.byName.UndoText(), QStringLiteral("Erase Thursday"));
    QVERIFY(page.hands.ClickTab("btnNotify"));
    QVERIFY(page.hands.ClickDoor(Safe));
    const QString strElsewhere = page.byName.EditedScheme();

    QVERIFY(page.byName.Undo());
    QVERIFY(page.byName.EditedScheme() != strElsewhere);
    QVERIFY(page.byName.EditedScheme().startsWith(QLatin1String("Front")));
    QVERIFY(page.hands.Button("btnNormal")->isChecked());
    QCOMPARE(page.hands.VisibleList(), page.hands.List("listNormal"));
    QVERIFY(page.hands.Button("btnDefTime")->isChecked());
    QCOMPARE(page.hands.TreeView()->currentIndex().data(VantaModel::NodeIdRole).toLongLong(), Front);
    QVERIFY(page.hands.DayBar(4)->isVisible());
    QCOMPARE(page.Scheme(Key("100$1$0$101"), iNormal).defenceTime, AlarmWeek());

    QVERIFY(page.hands.ClickDevice(Lobby));
    QVERIFY(page.byName.Redo());
    QVERIFY(page.hands.Button("btnNormal")->isChecked());
    QVERIFY(page.Scheme(Key("100$1$0$101"), iNormal).defenceTime[4].isEmpty());
}

void TestPageUndoView::thePageGoesBackToAnAlarmInput()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDevice(Lobby));
    QVERIFY(page.hands.ClickInput(Key("100$3$1$104")));
    QVERIFY(page.hands.ToggleOpen());
    QVERIFY(page.hands.HasInputMark(Key("100$3$1$104")));
    QVERIFY(page.hands.ClickDoor(Safe));
    QVERIFY(page.byName.Undo());
    QCOMPARE(page.hands.CurrentInputKey(), Key("100$3$1$104"));
    QVERIFY(!page.hands.IsOpenShown());
    QVERIFY(!page.hands.HasInputMark(Key("100$3$1$104")));
    QVERIFY(page.hands.AreSettingsEnabled());
}

void TestPageUndoView::aSearchThatHidesTheSourceIsCleared()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ToggleOpen());
    QVERIFY(page.hands.Search(QStringLiteral("Safe")));
    QVERIFY(!page.hands.SeesNode(Front, VantaModel::NodeKindChannel));
    QVERIFY(page.byName.Undo());
    QVERIFY(page.hands.SeesNode(Front, VantaModel::NodeKindChannel));
    QVERIFY(page.byName.EditedScheme().startsWith(QLatin1String("Front")));
    QVERIFY(!page.hands.IsOpenShown());
}

void TestPageUndoView::theMarksFollow()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ToggleOpen());
    QVERIFY(page.hands.HasMark("listAlarm", Alarm(0)));
    QVERIFY(page.byName.Undo());
    QVERIFY(!page.hands.HasMark("listAlarm", Alarm(0)));
    QVERIFY(page.byName.Redo());
    QVERIFY(page.hands.HasMark("listAlarm", Alarm(0)));
}

void TestPageUndoView::stepsOfARemovedDeviceAreDropped()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Safe));
    QVERIFY(page.hands.ToggleOpen());
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ToggleSound());
    QVERIFY(page.hands.ToggleOpen());
    QVERIFY(page.byName.Undo());
    QVERIFY(host.devices.RemoveDevice(Lobby));
    QTRY_VERIFY(!page.byName.CanRedo());
    QCOMPARE(page.byName.UndoText(), QStringLiteral("Switch Scheme On"));
    QVERIFY(page.byName.Undo());
    QVERIFY(!page.byName.CanUndo());
    QVERIFY(SchemeText::KeysOfDevice(page.Schemes(), Lobby).isEmpty());
    QVERIFY(SchemeText::Edited(page.Schemes()).isEmpty());
    QVERIFY(page.byName.EditedScheme().startsWith(QLatin1String("Safe")));
}

void TestPageUndoView::aCopyKeepsWhatItDidToOtherDevices()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ToggleOpen());
    QVERIFY(page.CopyTo({Key("200$1$0$201"), Key("300$1$0$301"), Key("100$1$0$102")}));
    QVERIFY(host.devices.RemoveDevice(Vault));
    QTRY_VERIFY(SchemeText::KeysOfDevice(page.Schemes(), Vault).isEmpty());
    QVERIFY(page.byName.Undo());
    QVERIFY(!page.Scheme(Key("300$1$0$301"), Alarm(0)).bOpen);
    QVERIFY(page.byName.Redo());
    QVERIFY(page.Scheme(Key("300$1$0$301"), Alarm(0)).bOpen);
    QVERIFY(page.Scheme(Key("100$1$0$102"), Alarm(0)).bOpen);
    QVERIFY(SchemeText::KeysOfDevice(page.Schemes(), Vault).isEmpty());
    // The device of the copied door goes: what the copy did elsewhere can still be taken back.
    QVERIFY(host.devices.RemoveDevice(Lobby));
    QTRY_VERIFY(SchemeText::KeysOfDevice(page.Schemes(), Lobby).isEmpty());
    QVERIFY(page.byName.Undo());
    QVERIFY(SchemeText::Edited(page.Schemes()).isEmpty());
}

void TestPageUndoView::undoWaitsForTheEndOfADrag()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ToggleOpen());
    QVERIFY(page.hands.ClickTab("btnDefTime"));
    QWidget* const pBar = page.hands.DayBar(1);
    QTest::mouseMove(pBar, QPoint(10, 5));
    QTest::mousePress(pBar, Qt::LeftButton, Qt::NoModifier, QPoint(10, 5));
    QCoreApplication::sendPostedEvents();
    QVERIFY(page.byName.Undo());
    QVERIFY(page.hands.IsOpenShown());
    QCOMPARE(page.byName.UndoText(), QStringLiteral("Switch Scheme On"));
    QTest::mouseRelease(pBar, Qt::LeftButton, Qt::NoModifier, QPoint(pBar->width() / 2, 5));
    QTRY_COMPARE(page.byName.UndoText(), QStringLiteral("Erase Monday"));
    QVERIFY(page.byName.Undo());
    QVERIFY(page.byName.Undo());
    QVERIFY(!page.hands.IsOpenShown());
}

void TestPageUndoView::undoWaitsForTheEndOfADialog()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ToggleOpen());
    QVERIFY(page.hands.OpenDay(1, [&page](QAlarmDayDetailEditor& dialog) {
        QVERIFY(page.byName.Undo());
        QVERIFY(page.hands.IsOpenShown());
        QVERIFY(PageHands::Click(dialog.GetButton(QDialogButtonBox::Cancel)));
    }));
    QVERIFY(page.hands.IsOpenShown());
    QTRY_VERIFY((page.byName.Undo(), !page.hands.IsOpenShown()));
}

QTEST_MAIN(TestPageUndoView)
#include "tst_page_undo_view.moc"
