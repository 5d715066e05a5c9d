#include "AlarmCtrl/QAlarmListItemView.h"
#include "platform/LXGUI/LXMessageNotify.h"
#include "platform/LXGUI/LXSwitchButton.h"
#include "platform/SystemLibrary/AlarmSchemeCommon.h"
#include "platform/VantaComponent/GroupTreeCtrl.h"
#include "scheme_editor/ACSEventSchemeEditor.h"
#include "tests/scheme_editor/OpenPage.h"
#include "tests/scheme_editor/PageHost.h"
#include "tests/scheme_editor/PageSchemes.h"
#include "tests/scheme_editor/SchemeText.h"

#include <QApplication>
#include <QLabel>
#include <QSignalSpy>
#include <QTest>

using namespace PageSchemes;
using namespace PageSite;

namespace {

constexpr int PerDevice = 22;

} // namespace

/// Loading, storing, marks and Save: no edit lost, none under a wrong key.
class TestPageSchemes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aStoredSchemeIsShown();
    void editsSurviveTheWayFromDoorToDoor();
    void editsSurviveTheWayFromDoorToDeviceToDoor();
    void editsSurviveADeviceWithoutInputs();
    void editsSurviveASearchThatHidesTheDoor();
    void editsSurviveAWayThroughANodeThatIsNoSource();
    void editsSurviveEveryEventAndCategory();
    void editsOfEverySubEditorAreKept();
    void changingATabStoresFirst();
    void changingAnEventStoresFirst();
    void changingACategoryStoresFirst();
    void changingTheSourceStoresFirst();
    void whatPageDoesNotShowStaysAsItWas();
    void browsingDoesNotChangeAScheme();
    void theEnableSwitchStoresAtOnce();
    void theEnableSwitchIgnoresItsArgument();
    void theEnableSwitchOfAnAlarmInputStoresUnderItsKey();
    void theEnableSwitchWithoutASchemeStoresNothing();
    void theSpaceKeyOnTheEnableSwitchStoresAtOnce();
    void twoDoorsOfADeviceShareTypeTwentyTwo();
    void doorsOfTwoDevicesDoNotShareTypeTwentyTwo();
    void typeTwentyTwoIsEditedInTheMiddleOfOtherEdits();
    void theEnableSwitchHonoursTypeTwentyTwo();
    void marksFollowTheMap();
    void marksFollowTheSource();
    void marksLookWithoutInserting();
    void marksOfTypeTwentyTwoFollowTheDevice();
    void marksOfInputsFollowTheMap();
    void marksOfAnotherCategoryAreRefreshedWhenItIsShown();
    void saveHandsOverTheWholeMap();
    void saveStoresTheEditorsFirst();
    void saveShowsNoMessage();
    void aRefusedSaveKeepsTheEdits();
    void saveWithNothingSelectedHandsOverTheMap();
    void savingTwiceHandsOverTheSame();
    void destroyingThePageWithoutSaveLosesTheEdits();
    void theNextPageShowsWhatWasSaved();
};

void TestPageSchemes::aStoredSchemeIsShown()
{
    AlarmInfo info = On();
    info.bOpenSound = true;
    info.bSendEmail = true;
    PageHost host({{{Key("100$1$0$101"), Alarm(0)}, info}});
    OpenPage page(&host.managers);
    QVERIFY(!page.hands.IsOpenShown());
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.IsOpenShown());
    QVERIFY(page.hands.IsSoundShown());
    QVERIFY(page.hands.IsMailShown());
    QVERIFY(page.hands.ClickDoor(Back));
    QVERIFY(!page.hands.IsOpenShown());
    QVERIFY(!page.hands.IsSoundShown());
    QVERIFY(!page.hands.IsMailShown());
}

void TestPageSchemes::editsSurviveTheWayFromDoorToDoor()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ToggleOpen());
    QVERIFY(page.hands.ToggleSound());
    QVERIFY(page.hands.ClickDoor(Safe));
    QVERIFY(!page.hands.IsOpenShown() && !page.hands.IsSoundShown());
    QVERIFY(page.hands.ToggleMail());
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.IsOpenShown() && page.hands.IsSoundShown() && !page.hands.IsMailShown());
    QVERIFY(page.hands.Save());
    QCOMPARE(SchemeText::Edited(host.Kept().schemes),
             (QStringList{Line("100$1$0$101", Alarm(0), "on sound"), Line("200$1$0$201", Alarm(0), "mail")}));
}

void TestPageSchemes::editsSurviveTheWayFromDoorToDeviceToDoor()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ToggleSound());
    QVERIFY(page.hands.ClickDevice(Lobby));
    QVERIFY(!page.hands.IsSoundShown());
    QVERIFY(page.hands.ToggleMail());
    QVERIFY(page.hands.ClickInput(Key("100$3$1$104")));
    QVERIFY(page.hands.ToggleSound());
    QVERIFY(page.hands.ClickDoor(Back));
    QVERIFY(!page.hands.IsSoundShown());
    QVERIFY(page.hands.ToggleOpen());
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.IsSoundShown());
    QVERIFY(page.hands.Save());
    QCOMPARE(SchemeText::Edited(host.Kept().schemes),
             (QStringList{Line("100$1$0$101", Alarm(0), "sound"), Line("100$1$0$102", Alarm(0), "on"),
                          Line("100$3$1$103", 2, "mail"), Line("100$3$1$104", 2, "sound")}));
}

void TestPageSchemes::editsSurviveADeviceWithoutInputs()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDevice(Lobby));
    QVERIFY(page.hands.ToggleSound());
    QVERIFY(page.hands.ClickDevice(Vault));
    QVERIFY(!page.hands.ToggleSound());
    QVERIFY(!page.hands.ToggleOpen());
    QVERIFY(page.hands.ClickDoor(Safe));
    QVERIFY(!page.hands.IsSoundShown());
    QVERIFY(page.hands.ToggleMail());
    QVERIFY(page.hands.ClickDevice(Vault));
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.Save());
    QCOMPARE(SchemeText::Edited(host.Kept().schemes),
             (QStringList{Line("100$3$1$103", 2, "sound"), Line("200$1$0$201", Alarm(0), "mail")}));
    QCOMPARE(SchemeText::KeysOfDevice(host.Kept().schemes, Vault),
             QStringList{QStringLiteral("200$1$0$201#%1").arg(Alarm(0))});
}

void TestPageSchemes::editsSurviveASearchThatHidesTheDoor()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ClickEvent(Alarm(3)));
    QVERIFY(page.hands.ToggleSound());
    QVERIFY(page.hands.Search(QStringLiteral("Safe")));
    QVERIFY(page.hands.ClickDoor(Safe));
    QVERIFY(page.hands.ToggleMail());
    QVERIFY(page.hands.Search(QString()));
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.IsSoundShown());
    QVERIFY(page.hands.Save());
    // The list keeps its current event while doors change.
    QCOMPARE(SchemeText::Edited(host.Kept().schemes),
             (QStringList{Line("100$1$0$101", Alarm(3), "sound"), Line("200$1$0$201", Alarm(3), "mail")}));
}

void TestPageSchemes::editsSurviveAWayThroughANodeThatIsNoSource()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ToggleSound());
    QVERIFY(page.hands.ClickDoor(Sealed));
    QVERIFY(page.hands.ClickDevice(Cellar));
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.IsSoundShown());
    QVERIFY(page.hands.Save());
    QCOMPARE(SchemeText::Edited(host.Kept().schemes), QStringList{Line("100$1$0$101", Alarm(0), "sound")});
}

void TestPageSchemes::editsSurviveEveryEventAndCategory()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QStringList expected;
    const auto editAll = [&](const char* szButton, const QList<int>& types) {
        if (!page.hands.ClickCategory(szButton))
            return false;
        for (const int type : types) {
            if (!page.hands.ClickEvent(type) || page.hands.IsSoundShown() || !page.hands.ToggleSound())
                return false;
            expected.append(Line(type == PerDevice ? "100$1$0$-1" : "100$1$0$101", type, "sound"));
        }
        return true;
    };
    QVERIFY(editAll("btnAlarm", AlarmSchemeCommon::ACSAlarmEvent()));
    QVERIFY(editAll("btnAbnormal", AlarmSchemeCommon::ACSAbnormalEvent()));
    QVERIFY(editAll("btnNormal", AlarmSchemeCommon::ACSNormalEvent()));
    QVERIFY(page.hands.Save());
    QStringList kept = SchemeText::Edited(host.Kept().schemes);
    kept.sort();
    expected.sort();
    QCOMPARE(kept, expected);
}

void TestPageSchemes::editsOfEverySubEditorAreKept()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ToggleSound());
    QVERIFY(page.hands.ToggleOutput(Horn));
    QVERIFY(page.hands.ToggleDay(1));
    QVERIFY(page.hands.ToggleOpen());
    QVERIFY(page.hands.ClickDoor(Back));
    QVERIFY(page.hands.ToggleDay(6));
    QVERIFY(page.hands.ClickDevice(Lobby));
    QVERIFY(page.hands.ToggleOutput(Siren));
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.Save());
    QCOMPARE(SchemeText::Edited(host.Kept().schemes),
             (QStringList{Line("100$1$0$101", Alarm(0), "on sound out 503$3$0$0 auto 20 day1 []"),
                          Line("100$1$0$102", Alarm(0), "day6 []"),
                          Line("100$3$1$103", 2, "out 105$3$0$0 auto 20")}));
}

void TestPageSchemes::changingATabStoresFirst()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ToggleSound());
    QVERIFY(!page.Scheme(Key("100$1$0$101"), Alarm(0)).bOpenSound);
    QVERIFY(page.hands.ClickTab("btnAlarmOut"));
    QVERIFY(page.Scheme(Key("100$1$0$101"), Alarm(0)).bOpenSound);
    QVERIFY(page.hands.ToggleOutput(Horn));
    QVERIFY(page.hands.ClickTab("btnDefTime"));
    QCOMPARE(page.Scheme(Key("100$1$0$101"), Alarm(0)).listAlarmOut.size(), 1);
    QVERIFY(page.hands.ToggleDay(0));
    QVERIFY(page.hands.ClickTab("btnNotify"));
    QVERIFY(page.Scheme(Key("100$1$0$101"), Alarm(0)).defenceTime[0].isEmpty());
}

void TestPageSchemes::changingAnEventStoresFirst()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ToggleSound());
    QVERIFY(page.hands.ClickEvent(Alarm(1)));
    QVERIFY(page.Scheme(Key("100$1$0$101"), Alarm(0)).bOpenSound);
    QVERIFY(!page.Scheme(Key("100$1$0$101"), Alarm(1)).bOpenSound);
}

void TestPageSchemes::changingACategoryStoresFirst()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ToggleSound());
    QVERIFY(page.hands.ClickCategory("btnNormal"));
    QCOMPARE(SchemeText::Edited(page.Schemes()), QStringList{Line("100$1$0$101", Alarm(0), "sound")});
    QVERIFY(!page.hands.IsSoundShown());
}

void TestPageSchemes::changingTheSourceStoresFirst()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDevice(Lobby));
    QVERIFY(page.hands.ToggleSound());
    QVERIFY(page.hands.ClickDevice(Garage));
    QCOMPARE(SchemeText::Edited(page.Schemes()), QStringList{Line("100$3$1$103", 2, "sound")});
}

void TestPageSchemes::whatPageDoesNotShowStaysAsItWas()
{
    AlarmInfo info;
    info.bEmapTwinkle = true;
    info.videoSplit.SplitRow = 2;
    info.videoSplit.SplitCloum = 3;
    info.videoSplit.SplitCount = 6;
    info.videoSplit.cells[5].iCombine = 7;
    info.videoSplit.videoLinks.insert(4, AlarmLinkVideo{});
    info.listDoor.append({QStringLiteral("201"), true});
    const AlarmSourceKey key{Key("100$1$0$101"), Alarm(0)};
    PageHost host({{key, info}});
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ToggleSound());
    QVERIFY(page.hands.ToggleMail());
    QVERIFY(page.hands.ToggleOpen());
    QVERIFY(page.hands.ClickDoor(Back));
    QVERIFY(page.hands.Save());
    info.bOpen = info.bOpenSound = info.bSendEmail = true;
    QVERIFY(host.Kept().schemes.value(key) == info);
}

void TestPageSchemes::browsingDoesNotChangeAScheme()
{
    AlarmInfo info = On();
    info.bSendEmail = true;
    info.listAlarmOut.append({Key("503$3$0$0"), false, 600});
    info.listAlarmOut.append({Key("504$3$0$0"), true, 5});
    info.defenceTime[2] = {};
    info.defenceTime[3] = {{0, 1}, {3601, 86398}};
    const AlarmInfoMap schemes{{{Key("100$1$0$101"), Alarm(0)}, info},
                               {{Key("100$1$0$102"), Alarm(0)}, info},
                               {{Key("100$3$1$103"), 2}, info}};
    PageHost host(schemes);
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ClickTab("btnAlarmOut"));
    QVERIFY(page.hands.ClickDevice(Lobby));
    QVERIFY(page.hands.ClickTab("btnDefTime"));
    QVERIFY(page.hands.ClickDoor(Back));
    QVERIFY(page.hands.ClickTab("btnNotify"));
    QVERIFY(page.hands.Save());
    QCOMPARE(SchemeText::Edited(host.Kept().schemes), SchemeText::Edited(schemes));
}

void TestPageSchemes::theEnableSwitchStoresAtOnce()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ToggleSound());
    QVERIFY(page.hands.ToggleOpen());
    QVERIFY(page.Scheme(Key("100$1$0$101"), Alarm(0)).bOpen);
    QVERIFY(page.hands.HasMark("listAlarm", Alarm(0)));
    QVERIFY(page.hands.ToggleOpen());
    QVERIFY(!page.Scheme(Key("100$1$0$101"), Alarm(0)).bOpen);
    QVERIFY(!page.hands.HasMark("listAlarm", Alarm(0)));
}

void TestPageSchemes::theEnableSwitchIgnoresItsArgument()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ToggleOpen());
    page.Page().OnOpenStatusChanged(false);
    QVERIFY(page.Scheme(Key("100$1$0$101"), Alarm(0)).bOpen);
    page.hands.Switch("btnOpenStatus")->setToggle(false);
    page.Page().OnOpenStatusChanged(true);
    QVERIFY(!page.Scheme(Key("100$1$0$101"), Alarm(0)).bOpen);
}

void TestPageSchemes::theEnableSwitchOfAnAlarmInputStoresUnderItsKey()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDevice(Lobby));
    QVERIFY(page.hands.ClickInput(Key("100$3$1$104")));
    QVERIFY(page.hands.ToggleOpen());
    QCOMPARE(SchemeText::Edited(page.Schemes()), QStringList{Line("100$3$1$104", 2, "on")});
    QVERIFY(page.hands.HasInputMark(Key("100$3$1$104")));
    QVERIFY(!page.hands.HasInputMark(Key("100$3$1$103")));
}

void TestPageSchemes::theEnableSwitchWithoutASchemeStoresNothing()
{
    PageHost host;
    OpenPage page(&host.managers);
    page.hands.Switch("btnOpenStatus")->setToggle(true);
    page.Page().OnOpenStatusChanged(true);
    QVERIFY(page.Schemes().isEmpty());
    QVERIFY(page.hands.ClickDevice(Vault));
    page.hands.Switch("btnOpenStatus")->setToggle(true);
    page.Page().OnOpenStatusChanged(true);
    QVERIFY(page.Schemes().isEmpty());
}

void TestPageSchemes::theSpaceKeyOnTheEnableSwitchStoresAtOnce()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QTest::keyClick(page.hands.Switch("btnOpenStatus"), Qt::Key_Space);
    QVERIFY(page.Scheme(Key("100$1$0$101"), Alarm(0)).bOpen);
}

void TestPageSchemes::twoDoorsOfADeviceShareTypeTwentyTwo()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ClickEvent(PerDevice));
    QVERIFY(page.hands.ToggleOpen());
    QVERIFY(page.hands.ToggleSound());
    QVERIFY(page.hands.ClickDoor(Back));
    QVERIFY(page.hands.IsOpenShown());
    QVERIFY(page.hands.IsSoundShown());
    QVERIFY(page.hands.ToggleMail());
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.IsMailShown());
    QVERIFY(page.hands.Save());
    QCOMPARE(SchemeText::Edited(host.Kept().schemes),
             QStringList{Line("100$1$0$-1", PerDevice, "on sound mail")});
    QCOMPARE(SchemeText::Keys(host.Kept().schemes).filter(QStringLiteral("#22")),
             QStringList{Key("100$1$0$-1#22")});
}

void TestPageSchemes::doorsOfTwoDevicesDoNotShareTypeTwentyTwo()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ClickEvent(PerDevice));
    QVERIFY(page.hands.ToggleSound());
    QVERIFY(page.hands.ClickDoor(Safe));
    QVERIFY(!page.hands.IsSoundShown());
    QVERIFY(page.hands.ToggleMail());
    QVERIFY(page.hands.ClickDoor(Back));
    QVERIFY(page.hands.IsSoundShown());
    QVERIFY(!page.hands.IsMailShown());
}

void TestPageSchemes::typeTwentyTwoIsEditedInTheMiddleOfOtherEdits()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ToggleSound());
    QVERIFY(page.hands.ClickEvent(PerDevice));
    QVERIFY(page.hands.ToggleMail());
    QVERIFY(page.hands.ClickDoor(Back));
    QVERIFY(page.hands.IsMailShown());
    QVERIFY(page.hands.ToggleMail());
    QVERIFY(page.hands.ToggleSound());
    QVERIFY(page.hands.ClickEvent(Alarm(1)));
    QVERIFY(page.hands.ToggleOpen());
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.Save());
    QCOMPARE(SchemeText::Edited(host.Kept().schemes),
             (QStringList{Line("100$1$0$-1", PerDevice, "sound"), Line("100$1$0$101", Alarm(0), "sound"),
                          Line("100$1$0$102", Alarm(1), "on")}));
}

void TestPageSchemes::theEnableSwitchHonoursTypeTwentyTwo()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ClickEvent(PerDevice));
    QVERIFY(page.hands.ToggleOpen());
    QVERIFY(page.Scheme(Key("100$1$0$-1"), PerDevice).bOpen);
    QVERIFY(!page.Holds(Key("100$1$0$101"), PerDevice));
}

void TestPageSchemes::marksFollowTheMap()
{
    AlarmInfo silent;
    silent.bOpenSound = true;
    PageHost host({{{Key("100$1$0$101"), Alarm(1)}, On()}, {{Key("100$1$0$101"), Alarm(2)}, silent}});
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    const QList<int> types = AlarmSchemeCommon::ACSAlarmEvent();
    for (const int type : types)
        QCOMPARE(page.hands.HasMark("listAlarm", type), type == Alarm(1));
}

void TestPageSchemes::marksFollowTheSource()
{
    PageHost host({{{Key("100$1$0$101"), Alarm(1)}, On()}, {{Key("100$1$0$102"), Alarm(2)}, On()}});
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Back));
    QVERIFY(!page.hands.HasMark("listAlarm", Alarm(1)));
    QVERIFY(page.hands.HasMark("listAlarm", Alarm(2)));
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.HasMark("listAlarm", Alarm(1)));
    QVERIFY(!page.hands.HasMark("listAlarm", Alarm(2)));
    QVERIFY(page.hands.ClickDoor(Sealed));
    QVERIFY(!page.hands.HasMark("listAlarm", Alarm(1)));
}

void TestPageSchemes::marksLookWithoutInserting()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QCOMPARE(page.Schemes().size(), 1);
    QVERIFY(page.hands.ClickDevice(Lobby));
    QCOMPARE(page.Schemes().size(), 2);
}

void TestPageSchemes::marksOfTypeTwentyTwoFollowTheDevice()
{
    PageHost host({{{Key("100$1$0$-1"), PerDevice}, On()}, {{Key("200$1$0$201"), PerDevice}, On()}});
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.HasMark("listAlarm", PerDevice));
    QVERIFY(page.hands.ClickDoor(Back));
    QVERIFY(page.hands.HasMark("listAlarm", PerDevice));
    QVERIFY(page.hands.ClickDoor(Safe));
    QVERIFY(!page.hands.HasMark("listAlarm", PerDevice));
}

void TestPageSchemes::marksOfInputsFollowTheMap()
{
    PageHost host({{{Key("100$3$1$104"), 2}, On()}, {{Key("100$3$1$103"), 3}, On()}});
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDevice(Lobby));
    QVERIFY(page.hands.InputMark(Key("100$3$1$103")) != nullptr);
    QVERIFY(!page.hands.HasInputMark(Key("100$3$1$103")));
    QVERIFY(page.hands.HasInputMark(Key("100$3$1$104")));
    QVERIFY(page.hands.ToggleOpen());
    QVERIFY(page.hands.HasInputMark(Key("100$3$1$103")));
    QVERIFY(page.hands.InputMark(Key("100$3$1$103"))->isVisible());
}

void TestPageSchemes::marksOfAnotherCategoryAreRefreshedWhenItIsShown()
{
    const int normal = AlarmSchemeCommon::ACSNormalEvent().at(1);
    PageHost host({{{Key("100$1$0$101"), normal}, On()}});
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ClickCategory("btnNormal"));
    QVERIFY(page.hands.HasMark("listNormal", normal));
    QVERIFY(page.hands.ClickDoor(Back));
    QVERIFY(page.hands.ClickCategory("btnNormal"));
    QVERIFY(!page.hands.HasMark("listNormal", normal));
}

void TestPageSchemes::saveHandsOverTheWholeMap()
{
    AlarmInfoMap schemes;
    for (int i = 0; i < 50; ++i)
        schemes.insert({QStringLiteral("%1$1$0$%2").arg(7000 + i).arg(8000 + i), i}, On());
    PageHost host(schemes);
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ToggleOpen());
    host.Kept().schemes.clear();
    QVERIFY(page.hands.Save());
    QCOMPARE(host.Kept().iSaves, 1);
    schemes.insert({Key("100$1$0$101"), Alarm(0)}, On());
    QCOMPARE(SchemeText::Edited(host.Kept().schemes), SchemeText::Edited(schemes));
}

void TestPageSchemes::saveStoresTheEditorsFirst()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDevice(Garage));
    QVERIFY(page.hands.ToggleDay(3));
    QVERIFY(page.hands.Save());
    QCOMPARE(SchemeText::Edited(host.Kept().schemes), QStringList{Line("300$3$1$302", 2, "day3 []")});
}

void TestPageSchemes::saveShowsNoMessage()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QSignalSpy notes(LXGUI::LXSingleton<LXGUI::LXMessageNotify>::Instance(),
                     &LXGUI::LXMessageNotify::SignalNotificationAdded);
    const int windows = QApplication::topLevelWidgets().size();
    QVERIFY(page.hands.Save());
    host.Kept().iSaveResult = -1;
    QVERIFY(page.hands.Save());
    QCOMPARE(host.Kept().iSaves, 2);
    QCOMPARE(notes.count(), 0);
    QCOMPARE(QApplication::topLevelWidgets().size(), windows);
    QVERIFY(QApplication::activeModalWidget() == nullptr);
}

void TestPageSchemes::aRefusedSaveKeepsTheEdits()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ToggleSound());
    host.Kept().iSaveResult = -1;
    QVERIFY(page.hands.Save());
    QVERIFY(host.Kept().schemes.isEmpty());
    QVERIFY(page.hands.IsSoundShown());
    host.Kept().iSaveResult = 0;
    QVERIFY(page.hands.ClickDoor(Back));
    QVERIFY(page.hands.Save());
    QCOMPARE(SchemeText::Edited(host.Kept().schemes), QStringList{Line("100$1$0$101", Alarm(0), "sound")});
}

void TestPageSchemes::saveWithNothingSelectedHandsOverTheMap()
{
    const AlarmInfoMap schemes{{{Key("200$1$0$201"), Alarm(0)}, On()}};
    PageHost host(schemes);
    OpenPage page(&host.managers);
    page.Page().OnSave();
    QCOMPARE(host.Kept().iSaves, 1);
    QCOMPARE(SchemeText::Keys(host.Kept().schemes), SchemeText::Keys(schemes));
}

void TestPageSchemes::savingTwiceHandsOverTheSame()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ToggleOutput(Lamp));
    QVERIFY(page.hands.Save());
    const QStringList first = SchemeText::Edited(host.Kept().schemes);
    QVERIFY(page.hands.Save());
    QCOMPARE(host.Kept().iSaves, 2);
    QCOMPARE(SchemeText::Edited(host.Kept().schemes), first);
    QCOMPARE(first, QStringList{Line("100$1$0$101", Alarm(0), "out 504$3$0$0 auto 20")});
}

void TestPageSchemes::destroyingThePageWithoutSaveLosesTheEdits()
{
    PageHost host({{{Key("100$1$0$101"), Alarm(0)}, On()}});
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ToggleOpen());
    QVERIFY(page.hands.ClickDoor(Back));
    QVERIFY(page.hands.ToggleSound());
    page.Close();
    QCOMPARE(host.Kept().iSaves, 0);
    QCOMPARE(SchemeText::Edited(host.Kept().schemes), QStringList{Line("100$1$0$101", Alarm(0), "on")});
}

void TestPageSchemes::theNextPageShowsWhatWasSaved()
{
    PageHost host;
    {
        OpenPage page(&host.managers);
        QVERIFY(page.hands.ClickDoor(Front));
        QVERIFY(page.hands.ToggleOpen());
        QVERIFY(page.hands.ToggleMail());
        QVERIFY(page.hands.Save());
    }
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.IsOpenShown());
    QVERIFY(page.hands.IsMailShown());
    QVERIFY(!page.hands.IsSoundShown());
}

QTEST_MAIN(TestPageSchemes)
#include "tst_page_schemes.moc"
