#include "platform/LXGUI/LXSwitchButton.h"
#include "platform/SystemLibrary/AlarmSchemeCommon.h"
#include "platform/VantaComponent/GroupTreeCtrl.h"
#include "platform/VantaModel/NodeRoles.h"
#include "scheme_editor/ACSEventSchemeEditor.h"
#include "tests/AlarmCtrl_linkage/TestLines.h"
#include "tests/scheme_editor/OpenPage.h"
#include "tests/scheme_editor/PageHost.h"
#include "tests/scheme_editor/PageSchemes.h"
#include "tests/scheme_editor/SchemeText.h"

#include <QTest>
#include <QTreeWidget>

using namespace PageSchemes;
using namespace PageSite;

/// Devices that leave the site while the page is open.
class TestPageRemoval : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void entriesOfTheDeviceLeaveTheMap();
    void onlyKeysOfFourFieldsBelongToADevice();
    void aRemovalSendsNothingToTheHost();
    void theHostsRemovalReachesThePage();
    void noEntryOfARemovedDeviceReachesTheNextSave();
    void editsInTheEditorsOfARemovedDoorAreDropped();
    void editsInTheEditorsOfARemovedInputAreDropped();
    void nothingThatAPersonDoesBringsTheDoorBack();
    void nothingThatAPersonDoesBringsTheInputBack();
    void theTypeTwentyTwoSchemeOfTheDeviceLeavesToo();
    void editsOfOtherDevicesAreKept();
    void theRemovalOfAnotherDeviceKeepsWhatIsShown();
    void theRemovalOfAnUnselectedDeviceByIdAlone();
    void anUnknownDeviceIsIgnored();
    void removingTwiceIsHarmless();
    void removingWhileASearchHidesTheDevice();
    void aDeviceThatComesBackStartsAfresh();
    void aSelectionAfterTheRemovalWorks();
    void removingEveryDeviceEmptiesThePage();
};

void TestPageRemoval::entriesOfTheDeviceLeaveTheMap()
{
    PageHost host({{{Key("100$1$0$101"), 101}, On()},
                   {{Key("100$1$0$-1"), 22}, On()},
                   {{Key("100$1$1$0"), 5}, On()},
                   {{Key("100$3$1$103"), 2}, On()},
                   {{Key("100$3$0$103"), 2}, On()},
                   {{Key("1000$1$0$1"), 101}, On()},
                   {{Key("10$1$0$1"), 101}, On()},
                   {{Key("200$1$0$100"), 101}, On()},
                   {{Key("-100$1$0$1"), 101}, On()}});
    OpenPage page(&host.managers);
    page.Page().OnRemoveDevice(Lobby);
    QCOMPARE(SchemeText::Keys(page.Schemes()),
             Lines({"-100$1$0$1#101", "10$1$0$1#101", "1000$1$0$1#101", "200$1$0$100#101"}));
}

void TestPageRemoval::onlyKeysOfFourFieldsBelongToADevice()
{
    PageHost host({{{Key("100"), 1}, On()},
                   {{Key("100$1$0"), 1}, On()},
                   {{Key("100$1$0$101$7"), 1}, On()},
                   {{Key("100$$$"), 1}, On()},
                   {{QString(), 1}, On()}});
    OpenPage page(&host.managers);
    page.Page().OnRemoveDevice(Lobby);
    QCOMPARE(SchemeText::Keys(page.Schemes()), Lines({"#1", "100#1", "100$1$0#1", "100$1$0$101$7#1"}));
}

void TestPageRemoval::aRemovalSendsNothingToTheHost()
{
    PageHost host({{{Key("100$1$0$101"), 101}, On()}});
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(host.devices.RemoveDevice(Lobby));
    QTRY_VERIFY(page.Schemes().isEmpty());
    QCOMPARE(host.Kept().iSaves, 0);
    QCOMPARE(host.Kept().schemes.size(), 1);
}

void TestPageRemoval::theHostsRemovalReachesThePage()
{
    PageHost host({{{Key("200$1$0$201"), 101}, On()}, {{Key("300$1$0$301"), 101}, On()}});
    OpenPage page(&host.managers);
    QVERIFY(host.devices.RemoveDevice(Vault));
    QTRY_COMPARE(SchemeText::Keys(page.Schemes()), Lines({"300$1$0$301#101"}));
}

void TestPageRemoval::noEntryOfARemovedDeviceReachesTheNextSave()
{
    PageHost host({{{Key("100$1$0$102"), 303}, On()}, {{Key("200$1$0$201"), 101}, On()}});
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ToggleOpen());
    QVERIFY(page.hands.ClickDevice(Lobby));
    QVERIFY(page.hands.ToggleSound());
    QVERIFY(host.devices.RemoveDevice(Lobby));
    QTRY_VERIFY(SchemeText::KeysOfDevice(page.Schemes(), Lobby).isEmpty());
    page.Page().OnSave();
    QCOMPARE(SchemeText::Keys(host.Kept().schemes), Lines({"200$1$0$201#101"}));
}

void TestPageRemoval::editsInTheEditorsOfARemovedDoorAreDropped()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ToggleSound());
    QVERIFY(page.hands.ToggleOpen());
    QVERIFY(host.devices.RemoveDevice(Lobby));
    QTRY_VERIFY(!page.hands.AreSettingsEnabled());
    QVERIFY(!page.hands.IsSoundShown());
    QVERIFY(!page.hands.IsOpenShown());
    QVERIFY(page.hands.ClickDoor(Safe));
    QVERIFY(!page.hands.IsSoundShown());
    QVERIFY(page.hands.Save());
    QCOMPARE(SchemeText::Edited(host.Kept().schemes), QStringList());
    QCOMPARE(SchemeText::KeysOfDevice(host.Kept().schemes, Lobby), QStringList());
}

void TestPageRemoval::editsInTheEditorsOfARemovedInputAreDropped()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDevice(Lobby));
    QVERIFY(page.hands.ClickInput(Key("100$3$1$104")));
    QVERIFY(page.hands.ToggleSound());
    QVERIFY(host.devices.RemoveDevice(Lobby));
    QTRY_VERIFY(!page.hands.AreSettingsEnabled());
    QVERIFY(!page.hands.IsSoundShown());
    QCOMPARE(page.hands.InputTree()->topLevelItemCount(), 0);
    QVERIFY(page.hands.ClickDevice(Garage));
    QVERIFY(!page.hands.IsSoundShown());
    QVERIFY(page.hands.Save());
    QCOMPARE(SchemeText::Keys(host.Kept().schemes), Lines({"300$3$1$302#2"}));
}

void TestPageRemoval::nothingThatAPersonDoesBringsTheDoorBack()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ToggleSound());
    QVERIFY(host.devices.RemoveDevice(Lobby));
    QTRY_VERIFY(page.Schemes().isEmpty());
    const PageHands& hands = page.hands;
    for (const char* const button : {"btnNormal", "btnAbnormal", "btnAlarm"}) {
        hands.ClickCategory(button);
        hands.ToggleOpen();
        hands.ToggleSound();
        for (const int type : {101, 22, 201, 301})
            hands.ClickEvent(type);
    }
    for (const char* const button : {"btnDefTime", "btnAlarmOut", "btnNotify"})
        hands.ClickTab(button);
    QVERIFY(hands.Search(QStringLiteral("Front")));
    QVERIFY(hands.Search(QString()));
    page.Page().OnGroupTreeFocusChanged();
    page.Page().OnOptionBtnClicked();
    page.Page().OnTabBtnClicked();
    page.Page().OnOpenStatusChanged(true);
    page.Page().OnSave();
    QVERIFY(!hands.AreSettingsEnabled());
    QCOMPARE(SchemeText::Keys(host.Kept().schemes), QStringList());
}

void TestPageRemoval::nothingThatAPersonDoesBringsTheInputBack()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDevice(Lobby));
    QVERIFY(page.hands.ToggleSound());
    QVERIFY(host.devices.RemoveDevice(Lobby));
    QTRY_VERIFY(page.Schemes().isEmpty());
    page.hands.ClickCategory("btnExternalAlarm");
    page.hands.ClickInput(Key("100$3$1$103"));
    page.hands.ClickInputDevice();
    page.hands.ToggleOpen();
    page.Page().OnAlarmInChanged(nullptr, nullptr);
    page.Page().OnGroupTreeFocusChanged();
    page.Page().OnOptionBtnClicked();
    page.Page().OnOpenStatusChanged(true);
    page.Page().OnTabBtnClicked();
    page.Page().OnSave();
    QVERIFY(!page.hands.AreSettingsEnabled());
    QCOMPARE(SchemeText::Keys(host.Kept().schemes), QStringList());
}

void TestPageRemoval::theTypeTwentyTwoSchemeOfTheDeviceLeavesToo()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ClickEvent(22));
    QVERIFY(page.hands.ToggleOpen());
    QVERIFY(page.hands.ToggleSound());
    QVERIFY(host.devices.RemoveDevice(Lobby));
    QTRY_VERIFY(page.Schemes().isEmpty());
    page.Page().OnSave();
    QCOMPARE(SchemeText::Keys(host.Kept().schemes), QStringList());
}

void TestPageRemoval::editsOfOtherDevicesAreKept()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Safe));
    QVERIFY(page.hands.ToggleSound());
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ToggleMail());
    QVERIFY(host.devices.RemoveDevice(Lobby));
    QTRY_VERIFY(SchemeText::KeysOfDevice(page.Schemes(), Lobby).isEmpty());
    QVERIFY(page.hands.ClickDoor(Safe));
    QVERIFY(page.hands.IsSoundShown());
    QVERIFY(page.hands.Save());
    QCOMPARE(SchemeText::Edited(host.Kept().schemes),
             QStringList{QStringLiteral("200$1$0$201#%1 sound").arg(FirstAlarm())});
}

void TestPageRemoval::theRemovalOfAnotherDeviceKeepsWhatIsShown()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ClickCategory("btnNormal"));
    QVERIFY(page.hands.ToggleSound());
    QVERIFY(page.hands.ToggleOpen());
    QVERIFY(host.devices.RemoveDevice(Vault));
    QTRY_VERIFY(!page.hands.SeesNode(Vault, VantaModel::NodeKindDevice));
    QVERIFY(page.hands.AreSettingsEnabled());
    QVERIFY(page.hands.IsSoundShown());
    QVERIFY(page.hands.IsOpenShown());
    QVERIFY(page.hands.Button("btnNormal")->isChecked());
    QVERIFY(page.hands.Save());
    QCOMPARE(
        SchemeText::Edited(host.Kept().schemes),
        QStringList{
            QStringLiteral("100$1$0$101#%1 on sound").arg(AlarmSchemeCommon::ACSNormalEvent().constFirst())});
}

void TestPageRemoval::theRemovalOfAnUnselectedDeviceByIdAlone()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDevice(Lobby));
    QVERIFY(page.hands.ToggleSound());
    page.Page().OnRemoveDevice(Garage);
    page.Page().OnRemoveDevice(10);
    QVERIFY(page.hands.AreSettingsEnabled());
    QVERIFY(page.hands.IsSoundShown());
    QCOMPARE(page.hands.InputKeys().size(), 2);
    QVERIFY(page.hands.Save());
    QCOMPARE(SchemeText::Edited(host.Kept().schemes), Lines({"100$3$1$103#2 sound"}));
}

void TestPageRemoval::anUnknownDeviceIsIgnored()
{
    PageHost host(
        {{{Key("100$1$0$101"), 101}, On()}, {{Key("$1$0$1"), 1}, On()}, {{Key("x$1$0$1"), 1}, On()}});
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    const int entries = page.Schemes().size();
    for (const int64_t id : {std::numeric_limits<int64_t>::min(), std::numeric_limits<int64_t>::max(),
                             int64_t{-1}, int64_t{99999}})
        page.Page().OnRemoveDevice(id);
    QCOMPARE(page.Schemes().size(), entries);
    QVERIFY(page.hands.AreSettingsEnabled());
}

void TestPageRemoval::removingTwiceIsHarmless()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(host.devices.RemoveDevice(Lobby));
    QTRY_VERIFY(page.Schemes().isEmpty());
    page.Page().OnRemoveDevice(Lobby);
    QVERIFY(page.hands.ClickDoor(Safe));
    page.Page().OnRemoveDevice(Lobby);
    QVERIFY(page.hands.AreSettingsEnabled());
}

void TestPageRemoval::removingWhileASearchHidesTheDevice()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ToggleOpen());
    QVERIFY(page.hands.Search(QStringLiteral("Safe")));
    QVERIFY(host.devices.RemoveDevice(Lobby));
    QTRY_VERIFY(page.Schemes().isEmpty());
    QVERIFY(page.hands.Search(QString()));
    QVERIFY(!page.hands.SeesNode(Lobby, VantaModel::NodeKindDevice));
    QVERIFY(!page.hands.AreSettingsEnabled());
    page.Page().OnSave();
    QCOMPARE(SchemeText::Keys(host.Kept().schemes), QStringList());
}

void TestPageRemoval::aDeviceThatComesBackStartsAfresh()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ToggleOpen());
    QVERIFY(host.devices.RemoveDevice(Lobby));
    QTRY_VERIFY(page.Schemes().isEmpty());
    QVERIFY(host.devices.AddDevice(PageSite::Device(Lobby)));
    QTRY_VERIFY(page.hands.SeesNode(Front, VantaModel::NodeKindChannel));
    QVERIFY(!page.hands.AreSettingsEnabled());
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.AreSettingsEnabled());
    QVERIFY(!page.hands.IsOpenShown());
    QVERIFY(!page.hands.HasMark("listAlarm", FirstAlarm()));
    QVERIFY(page.hands.ToggleSound());
    QVERIFY(page.hands.Save());
    QCOMPARE(SchemeText::Edited(host.Kept().schemes),
             QStringList{QStringLiteral("100$1$0$101#%1 sound").arg(FirstAlarm())});
}

void TestPageRemoval::aSelectionAfterTheRemovalWorks()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDevice(Lobby));
    QVERIFY(host.devices.RemoveDevice(Lobby));
    QTRY_VERIFY(page.Schemes().isEmpty());
    QVERIFY(page.hands.ClickDevice(Garage));
    QVERIFY(page.hands.AreSettingsEnabled());
    QVERIFY(page.hands.IsColumnEnabled());
    QVERIFY(page.hands.ToggleOpen());
    QVERIFY(page.hands.ClickDoor(Gate));
    QVERIFY(page.hands.ToggleOpen());
    QCOMPARE(SchemeText::Edited(page.Schemes()),
             (QStringList{QStringLiteral("300$1$0$301#%1 on").arg(FirstAlarm()), Key("300$3$1$302#2 on")}));
}

void TestPageRemoval::removingEveryDeviceEmptiesThePage()
{
    PageHost host;
    OpenPage page(&host.managers);
    for (const int64_t door : {Front, Safe, Gate, Loft}) {
        QVERIFY(page.hands.ClickDoor(door));
        QVERIFY(page.hands.ToggleOpen());
    }
    for (const int64_t device : {Attic, Lobby, Vault, Garage, Cellar, AlarmHost})
        QVERIFY(host.devices.RemoveDevice(device));
    QTRY_VERIFY(page.Schemes().isEmpty());
    QVERIFY(!page.hands.AreSettingsEnabled());
    page.Page().OnSave();
    QVERIFY(host.Kept().schemes.isEmpty());
}

QTEST_MAIN(TestPageRemoval)
#include "tst_page_removal.moc"
