#include "platform/SystemLibrary/QCommon.h"
#include "platform/VantaComponent/GroupTreeCtrl.h"
#include "scheme_editor/ACSEventSchemeEditor.h"
#include "tests/scheme_editor/OpenPage.h"
#include "tests/scheme_editor/PageHands.h"
#include "tests/scheme_editor/PageHost.h"
#include "tests/scheme_editor/PageSchemes.h"
#include "tests/scheme_editor/SchemeText.h"

#include <QAbstractButton>
#include <QLabel>
#include <QLayout>
#include <QTest>
#include <QTreeWidget>

using namespace PageSchemes;
using namespace PageSite;

/// The alarm inputs of a device.
class TestPageInputs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aDeviceOffersItsAlarmInputsOnly();
    void theFirstAlarmInputIsCurrent();
    void alarmInputsAreKeptUnderDeviceThreeOneChannelAndTypeTwo();
    void anInputsItemShowsNameKeyIconAndMarkCell();
    void clickingAnotherAlarmInputEditsThatOne();
    void theDeviceItemOfTheInputsHasNoScheme();
    void externalEventsBecomeCheckableWithTheFirstDevice();
    void aDeviceWithoutInputsHasNothingToEdit();
    void aDeviceWithoutInputsClickedAgainStillHasNothingToEdit();
    void clickingTheDeviceAgainOnItsDeviceItemLeavesNothingToEdit();
    void rebuildingTheInputsVisitsOnlyTheFirst();
    void aDisabledInputIsStillListed();
    void aDeviceThatCannotBeReadHasNoInputs();
    void anInputThatCannotBeReadIsLeftOut();
    void theLabelNamesTheAlarmInputsEvent();
    void anInputThatIsCurrentAlreadyChangesNothing();
    void hiddenInputsAreNotHeard();
};

void TestPageInputs::aDeviceOffersItsAlarmInputsOnly()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDevice(Lobby));
    QCOMPARE(page.hands.VisibleCategories(), PageHands::DeviceCategories());
    QVERIFY(page.hands.Button("btnExternalAlarm")->isChecked());
    QCOMPARE(page.hands.InputKeys(), (QStringList{Key("100$3$1$103"), Key("100$3$1$104")}));
    QCOMPARE(page.hands.InputTree()->topLevelItemCount(), 1);
    QVERIFY(page.hands.ClickDoor(Front));
    QCOMPARE(page.hands.VisibleCategories(), PageHands::DoorCategories());
}

void TestPageInputs::theFirstAlarmInputIsCurrent()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDevice(Lobby));
    QCOMPARE(page.hands.CurrentInputKey(), Key("100$3$1$103"));
    QVERIFY(page.hands.AreSettingsEnabled());
}

void TestPageInputs::alarmInputsAreKeptUnderDeviceThreeOneChannelAndTypeTwo()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDevice(Lobby));
    QVERIFY(page.hands.ToggleOpen());
    QCOMPARE(SchemeText::Edited(page.Schemes()), QStringList{Key("100$3$1$103#2 on")});
}

void TestPageInputs::anInputsItemShowsNameKeyIconAndMarkCell()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDevice(Lobby));
    const QTreeWidget* const pTree = page.hands.InputTree();
    QTreeWidgetItem* const pDevice = pTree->topLevelItem(0);
    QCOMPARE(pDevice->text(0), QStringLiteral("Lobby"));
    QVERIFY(!pDevice->data(0, Qt::UserRole).isValid());
    QVERIFY(!pDevice->icon(0).isNull());
    QVERIFY(pDevice->isExpanded());
    QCOMPARE(pDevice->childCount(), 2);
    QCOMPARE(pDevice->child(0)->text(0), QStringLiteral("Window Contact"));
    QCOMPARE(pDevice->child(1)->text(0), QStringLiteral("Smoke Detector"));
    for (int i = 0; i < 2; ++i) {
        QTreeWidgetItem* const pInput = pDevice->child(i);
        QCOMPARE(pInput->data(0, Qt::UserRole).type(), QVariant::String);
        QVERIFY(!pInput->icon(0).isNull());
        const QWidget* const pCell = pTree->itemWidget(pInput, 1);
        QVERIFY(pCell != nullptr);
        QCOMPARE(pCell->minimumHeight(), 24);
        QCOMPARE(pCell->maximumHeight(), 24);
        QCOMPARE(pCell->layout()->contentsMargins(), QMargins(0, 0, 0, 0));
        const QLabel* const pMark = pCell->findChild<QLabel*>();
        QVERIFY(pMark != nullptr);
        QCOMPARE(pMark->minimumSize(), QSize(16, 16));
        QCOMPARE(pMark->maximumSize(), QSize(16, 16));
    }
}

void TestPageInputs::clickingAnotherAlarmInputEditsThatOne()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDevice(Lobby));
    QVERIFY(page.hands.ToggleSound());
    QVERIFY(page.hands.ClickInput(Key("100$3$1$104")));
    QVERIFY(!page.hands.IsSoundShown());
    QVERIFY(page.hands.ToggleOpen());
    QVERIFY(page.hands.ClickInput(Key("100$3$1$103")));
    QVERIFY(page.hands.IsSoundShown());
    QVERIFY(!page.hands.IsOpenShown());
    QCOMPARE(SchemeText::Edited(page.Schemes()),
             (QStringList{Key("100$3$1$103#2 sound"), Key("100$3$1$104#2 on")}));
}

void TestPageInputs::theDeviceItemOfTheInputsHasNoScheme()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDevice(Lobby));
    QVERIFY(page.hands.ToggleSound());
    QVERIFY(page.hands.ClickInputDevice());
    QVERIFY(!page.hands.AreSettingsEnabled());
    QVERIFY(!page.hands.IsSoundShown());
    QVERIFY(!page.hands.ToggleOpen());
    QCOMPARE(SchemeText::Keys(page.Schemes()), QStringList{Key("100$3$1$103#2")});
    QVERIFY(page.hands.ClickInput(Key("100$3$1$103")));
    QVERIFY(page.hands.AreSettingsEnabled());
    QVERIFY(page.hands.IsSoundShown());
}

void TestPageInputs::externalEventsBecomeCheckableWithTheFirstDevice()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(!page.hands.Button("btnExternalAlarm")->isCheckable());
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ClickCategory("btnAbnormal"));
    QVERIFY(!page.hands.Button("btnExternalAlarm")->isCheckable());
    QVERIFY(page.hands.ClickDevice(Vault));
    QVERIFY(page.hands.Button("btnExternalAlarm")->isCheckable());
}

void TestPageInputs::aDeviceWithoutInputsHasNothingToEdit()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ToggleOpen());
    QVERIFY(page.hands.ToggleSound());
    QVERIFY(page.hands.ClickDevice(Vault));
    QCOMPARE(page.hands.VisibleCategories(), PageHands::DeviceCategories());
    QCOMPARE(page.hands.InputTree()->topLevelItemCount(), 0);
    QVERIFY(!page.hands.AreSettingsEnabled());
    QVERIFY(!page.hands.IsOpenShown());
    QVERIFY(!page.hands.IsSoundShown());
    QCOMPARE(SchemeText::Keys(page.Schemes()),
             QStringList{QStringLiteral("100$1$0$101#%1").arg(FirstAlarm())});
}

void TestPageInputs::aDeviceWithoutInputsClickedAgainStillHasNothingToEdit()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDevice(Vault));
    QVERIFY(page.hands.ClickDevice(Vault));
    QVERIFY(!page.hands.AreSettingsEnabled());
    page.Page().OnGroupTreeFocusChanged();
    QVERIFY(!page.hands.AreSettingsEnabled());
    QVERIFY(page.hands.ClickCategory("btnExternalAlarm"));
    QVERIFY(!page.hands.AreSettingsEnabled());
    QVERIFY(page.Schemes().isEmpty());
}

void TestPageInputs::clickingTheDeviceAgainOnItsDeviceItemLeavesNothingToEdit()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDevice(Lobby));
    QVERIFY(page.hands.ClickInputDevice());
    QVERIFY(page.hands.ClickDevice(Lobby));
    QVERIFY(!page.hands.AreSettingsEnabled());
    QCOMPARE(SchemeText::Keys(page.Schemes()), QStringList{Key("100$3$1$103#2")});
}

void TestPageInputs::rebuildingTheInputsVisitsOnlyTheFirst()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDevice(Lobby));
    QVERIFY(page.hands.ClickInput(Key("100$3$1$104")));
    QVERIFY(page.hands.ClickDevice(Garage));
    QVERIFY(page.hands.ClickDoor(Gate));
    QVERIFY(page.hands.ClickDevice(Attic));
    QCOMPARE(SchemeText::Keys(page.Schemes()),
             (QStringList{Key("100$3$1$103#2"), Key("100$3$1$104#2"),
                          QStringLiteral("300$1$0$301#%1").arg(FirstAlarm()), Key("300$3$1$302#2"),
                          Key("600$3$1$603#2")}));
}

void TestPageInputs::aDisabledInputIsStillListed()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDevice(Attic));
    QCOMPARE(page.hands.InputKeys(), (QStringList{Key("600$3$1$603"), Key("600$3$1$604")}));
}

void TestPageInputs::aDeviceThatCannotBeReadHasNoInputs()
{
    PageHost host;
    OpenPage page(&host.managers);
    host.devices.unreadableDevices.insert(Lobby);
    QVERIFY(page.hands.ClickDevice(Lobby));
    QCOMPARE(page.hands.InputTree()->topLevelItemCount(), 0);
    QVERIFY(!page.hands.AreSettingsEnabled());
}

void TestPageInputs::anInputThatCannotBeReadIsLeftOut()
{
    PageHost host;
    OpenPage page(&host.managers);
    host.devices.unreadableChannels.insert(Window);
    QVERIFY(page.hands.ClickDevice(Lobby));
    QCOMPARE(page.hands.InputKeys(), QStringList{Key("100$3$1$104")});
    QCOMPARE(page.hands.CurrentInputKey(), Key("100$3$1$104"));
}

void TestPageInputs::theLabelNamesTheAlarmInputsEvent()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDevice(Lobby));
    QCOMPARE(page.hands.SettingType(), QCommon::GetAlarmNameByType(2));
}

void TestPageInputs::anInputThatIsCurrentAlreadyChangesNothing()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDevice(Lobby));
    QVERIFY(page.hands.ToggleSound());
    QTreeWidgetItem* const pItem = page.hands.InputTree()->currentItem();
    page.Page().OnAlarmInChanged(pItem, pItem);
    QVERIFY(page.hands.IsSoundShown());
    QVERIFY(!page.Scheme(Key("100$3$1$103"), 2).bOpenSound);
}

void TestPageInputs::hiddenInputsAreNotHeard()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDevice(Lobby));
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ToggleSound());
    QTreeWidget* const pTree = page.hands.InputTree();
    QCOMPARE(pTree->topLevelItemCount(), 1);
    pTree->setCurrentItem(pTree->topLevelItem(0));
    QVERIFY(page.hands.AreSettingsEnabled());
    QVERIFY(page.hands.IsSoundShown());
    QVERIFY(!page.Scheme(Key("100$1$0$101"), FirstAlarm()).bOpenSound);
}

QTEST_MAIN(TestPageInputs)
#include "tst_page_inputs.moc"
