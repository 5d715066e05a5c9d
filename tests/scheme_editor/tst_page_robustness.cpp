#include "AlarmCtrl/QAlarmDefenceTimeEditor.h"
#include "AlarmCtrl/QAlarmOutEditor.h"
#include "platform/LXGUI/LXSwitchButton.h"
#include "platform/SystemLibrary/AlarmSchemeCommon.h"
#include "platform/SystemLibrary/AlarmSchemeManager.h"
#include "platform/VantaComponent/GroupTreeCtrl.h"
#include "platform/VantaModel/GroupTreeModel.h"
#include "plugin/host_services/HostServices.h"
#include "scheme_editor/ACSEventSchemeEditor.h"
#include "tests/scheme_editor/OpenPage.h"
#include "tests/scheme_editor/PageHands.h"
#include "tests/scheme_editor/PageHost.h"
#include "tests/scheme_editor/PageSchemes.h"
#include "tests/scheme_editor/SchemeText.h"

#include <QTest>
#include <QTreeView>
#include <QTreeWidget>

#include <functional>
#include <limits>

using namespace PageSchemes;
using namespace PageSite;

namespace {

/// Answers the hub's name and is none.
class WrongHub : public LXPluginAPI::IManager
{
public:
    std::string GetServiceName() const override { return "HubPluginManager"; }
};

/// Every way in, whatever the page's state.
void TryEverything(const OpenPage& page)
{
    ACSEventSchemeEditor& editor = page.Page();
    editor.OnGroupTreeFocusChanged();
    editor.OnOptionBtnClicked();
    editor.OnTabBtnClicked();
    editor.OnTypeSelectionChanged(QString(), 22);
    editor.OnTypeSelectionChanged(QStringLiteral("x"), -1);
    editor.OnTypeSelectionChanged(QString(), std::numeric_limits<int>::max());
    editor.OnTypeSelectionChanged(QString(), std::numeric_limits<int>::min());
    QTreeWidgetItem item;
    item.setData(0, Qt::UserRole, QStringLiteral("no key"));
    editor.OnAlarmInChanged(nullptr, nullptr);
    editor.OnAlarmInChanged(nullptr, &item);
    editor.OnOpenStatusChanged(true);
    editor.OnCopyTo();
    editor.OnCopyToImp({});
    editor.OnCopyToImp({QString(), QStringLiteral("$$$"), QStringLiteral("1$1$0$1")});
    editor.OnRemoveDevice(5);
    editor.OnSave();
}

bool IsDisabledButThere(const OpenPage& page)
{
    return page.Page().isVisible() && !page.hands.IsColumnEnabled() && !page.hands.AreSettingsEnabled() &&
           page.Page().findChild<QAlarmOutEditor*>() != nullptr;
}

AlarmInfo Hostile()
{
    constexpr int max = std::numeric_limits<int>::max();
    constexpr int min = std::numeric_limits<int>::min();
    AlarmInfo info;
    info.bOpen = true;
    info.videoSplit.SplitRow = max;
    info.videoSplit.SplitCloum = max;
    info.videoSplit.SplitCount = min;
    for (const int window : {min, -1, 64, max})
        info.videoSplit.videoLinks.insert(window, AlarmLinkVideo{});
    for (int i = 0; i < 5000; ++i)
        info.listAlarmOut.append({QStringLiteral("%1$3$0$0").arg(i), i % 2 == 0, i % 3 == 0 ? min : max});
    info.listAlarmOut.append({QString(), true, 0});
    info.listAlarmOut.append({QString(100000, QLatin1Char('$')), true, -1});
    info.listAlarmOut.append({QStringLiteral("99999999999999999999$3$0$0"), true, -1});
    info.listDoor.append({QString(100000, QLatin1Char('9')), true});
    for (int i = 0; i < 3000; ++i)
        info.defenceTime[0].append({i * 1000, min + i});
    info.defenceTime[1] = {{min, max}, {max, min}, {-1, 90000}, {86399, 86400}};
    info.defenceTime[2] = {};
    return info;
}

QStringList HostileKeys()
{
    return {QString(),
            Key("$"),
            Key("$$$"),
            Key("$$$$"),
            Key("100"),
            Key("100$1$0"),
            Key("100$1$0$"),
            Key("100$1$0$101$"),
            Key("100$x$y$z"),
            Key(" 100$1$0$101"),
            Key("+100$1$0$101"),
            Key("0100$1$0$101"),
            Key("99999999999999999999$1$0$1"),
            Key("-9223372036854775808$1$0$-1"),
            QString(1000, QLatin1Char('$')),
            QString(100000, QLatin1Char('1')),
            QStringLiteral("\u4e00$\u4e8c$\u4e09$\u56db"),
            QString(QChar(0)) + Key("$1$0$1")};
}

} // namespace

/// No host, half a host, strange data, odd ends.
class TestPageRobustness : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void withoutUsableManagersThePageBuildsAndIsDisabled_data();
    void withoutUsableManagersThePageBuildsAndIsDisabled();
    void withoutSchemeManagerBackendThePageWorks();
    void aFailedLoadLeavesWhatWasLoaded();
    void hostileRecordsAreShownAndHandedThrough();
    void hostileKeysAreHandedThrough();
    void hostileKeysSurviveARemoval();
    void aHugeMapStaysUsable();
    void aPageThatIsNeverInitialisedCanGo();
    void thePageGoesBeforeItsTree();
    void theTreeGoesBeforeThePage();
    void theParentTakesThePageAlong();
    void aSelectedPageGoesWithoutTouchingTheStore();
    void deviceNewsAfterThePageIsGoneReachNobody();
    void aDeviceManagerThatDisappearsLeavesAPageThatDoesNothing();
    void callsInAnyOrderBeforeASelection();
    void callsInAnyOrderOnADoor();
    void twoPagesDoNotShareEdits();
};

void TestPageRobustness::withoutUsableManagersThePageBuildsAndIsDisabled_data()
{
    QTest::addColumn<int>("which");
    QTest::newRow("no list") << 0;
    QTest::newRow("an empty list") << 1;
    QTest::newRow("null entries") << 2;
    QTest::newRow("a manager of the wrong type") << 3;
    QTest::newRow("a hub that offers nothing") << 4;
}

void TestPageRobustness::withoutUsableManagersThePageBuildsAndIsDisabled()
{
    QFETCH(int, which);
    PageHost host;
    WrongHub wrong;
    HubDouble empty;
    const LXPluginAPI::ManagerList lists[] = {{}, {}, {nullptr, nullptr}, {nullptr, &wrong}, {&empty}};
    HostServices::FillTable(lists[which]);
    OpenPage page(which == 0 ? nullptr : &lists[which]);
    QVERIFY(IsDisabledButThere(page));
    TryEverything(page);
    QVERIFY(IsDisabledButThere(page));
    QVERIFY(page.Schemes().isEmpty());
    QCOMPARE(host.Kept().iLoads, 1);
    QCOMPARE(host.Kept().iSaves, 1);
    QVERIFY(!page.hands.ClickDoor(Front));
}

void TestPageRobustness::withoutSchemeManagerBackendThePageWorks()
{
    PageHost host;
    AlarmSchemeManager::Instance()->SetBackend(nullptr);
    OpenPage page(&host.managers);
    QVERIFY(page.Schemes().isEmpty());
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ToggleOpen());
    QVERIFY(page.hands.Save());
    QVERIFY(page.hands.ClickDoor(Back));
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.IsOpenShown());
}

void TestPageRobustness::aFailedLoadLeavesWhatWasLoaded()
{
    AlarmInfo info;
    info.bOpen = true;
    PageHost host({{{Key("100$1$0$101"), FirstAlarm()}, info}});
    host.Kept().iLoadResult = -1;
    OpenPage page(&host.managers);
    QVERIFY(page.Page().isVisible());
    QVERIFY(page.hands.ClickDoor(Back));
    QVERIFY(!page.hands.IsOpenShown());
}

void TestPageRobustness::hostileRecordsAreShownAndHandedThrough()
{
    const AlarmInfo hostile = Hostile();
    PageHost host({{{Key("100$1$0$101"), FirstAlarm()}, hostile},
                   {{Key("100$3$1$103"), 2}, hostile},
                   {{Key("200$1$0$201"), FirstAlarm()}, hostile}});
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.IsOpenShown());
    for (const char* const tab : {"btnAlarmOut", "btnDefTime", "btnNotify"}) {
        QVERIFY(page.hands.ClickTab(tab));
        QVERIFY(!page.Page().grab().isNull());
    }
    QVERIFY(page.hands.ClickDevice(Lobby));
    QVERIFY(page.hands.ToggleDay(0));
    QVERIFY(page.hands.ToggleDay(1));
    QVERIFY(page.hands.ClickDoor(Back));
    QVERIFY(page.hands.Save());
    // Never shown, so never touched.
    QVERIFY(host.Kept().schemes.value({Key("200$1$0$201"), FirstAlarm()}) == hostile);
    const AlarmInfo shown = host.Kept().schemes.value({Key("100$1$0$101"), FirstAlarm()});
    QVERIFY(shown.bOpen);
    QVERIFY(shown.videoSplit == hostile.videoSplit);
    QVERIFY(shown.listDoor == hostile.listDoor);
}

void TestPageRobustness::hostileKeysAreHandedThrough()
{
    AlarmInfo info;
    info.bOpen = true;
    AlarmInfoMap schemes;
    const QStringList keys = HostileKeys();
    for (const QString& key : keys) {
        for (const int type : {-2147483647 - 1, -1, 0, 2, 22, 2147483647})
            schemes.insert({key, type}, info);
    }
    PageHost host(schemes);
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ClickDevice(Lobby));
    QVERIFY(page.hands.Save());
    QCOMPARE(SchemeText::Edited(host.Kept().schemes), SchemeText::Edited(schemes));
}

void TestPageRobustness::hostileKeysSurviveARemoval()
{
    AlarmInfo info;
    info.bOpen = true;
    AlarmInfoMap schemes;
    const QStringList keys = HostileKeys();
    for (const QString& key : keys)
        schemes.insert({key, 1}, info);
    PageHost host(schemes);
    OpenPage page(&host.managers);
    page.Page().OnRemoveDevice(Lobby);
    // Four fields, the first one the device: the other fields do not matter.
    QVERIFY(!page.Holds(Key("100$x$y$z"), 1));
    QVERIFY(!page.Holds(Key("100$1$0$"), 1));
    for (const char* const kept : {"", "$$$", "100", "100$1$0", "100$1$0$101$", "99999999999999999999$1$0$1"})
        QVERIFY2(page.Holds(Key(kept), 1), kept);
}

void TestPageRobustness::aHugeMapStaysUsable()
{
    AlarmInfoMap schemes;
    for (int i = 0; i < 200000; ++i)
        schemes.insert({QStringLiteral("%1$1$0$%2").arg(1000 + i / 100).arg(i), 101}, AlarmInfo());
    PageHost host(schemes);
    OpenPage page(&host.managers);
    for (int i = 0; i < 20; ++i) {
        QVERIFY(page.hands.ClickDoor(Front));
        QVERIFY(page.hands.ToggleOpen());
        QVERIFY(page.hands.ClickDoor(Back));
    }
    page.Page().OnRemoveDevice(1500);
    QVERIFY(SchemeText::KeysOfDevice(page.Schemes(), 1500).isEmpty());
    QVERIFY(page.hands.Save());
    QCOMPARE(host.Kept().schemes.size(), 200000 - 100 + 2);
}

void TestPageRobustness::aPageThatIsNeverInitialisedCanGo()
{
    PageHost host;
    auto page = std::make_unique<ACSEventSchemeEditor>(nullptr);
    page->show();
    page->OnSave();
    page.reset();
    QCOMPARE(host.Kept().iLoads, 0);
}

void TestPageRobustness::thePageGoesBeforeItsTree()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    VantaComponent::GroupTreeCtrl* const pTree = page.hands.Tree();
    pTree->setParent(nullptr);
    page.Close();
    QVERIFY(host.devices.RemoveDevice(Lobby));
    delete pTree;
}

void TestPageRobustness::theTreeGoesBeforeThePage()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ToggleSound());
    delete page.hands.Tree();
    QVERIFY(page.hands.ClickCategory("btnNormal"));
    page.Page().OnGroupTreeFocusChanged();
    page.Page().OnSave();
    QCOMPARE(SchemeText::Edited(host.Kept().schemes),
             QStringList{QStringLiteral("100$1$0$101#%1 sound").arg(FirstAlarm())});
    page.Close();
}

void TestPageRobustness::theParentTakesThePageAlong()
{
    PageHost host;
    auto window = std::make_unique<QWidget>();
    auto* const pPage = new ACSEventSchemeEditor(window.get());
    pPage->Init(&host.managers);
    window->show();
    const PageHands hands(*pPage);
    QVERIFY(hands.ClickDoor(Front));
    QVERIFY(hands.ToggleOpen());
    window.reset();
    QVERIFY(host.devices.RemoveDevice(Lobby));
    QCOMPARE(host.Kept().iSaves, 0);
}

void TestPageRobustness::aSelectedPageGoesWithoutTouchingTheStore()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDevice(Lobby));
    QVERIFY(page.hands.ToggleOutput(Horn));
    page.Close();
    QCOMPARE(host.Kept().iSaves, 0);
    QVERIFY(host.Kept().schemes.isEmpty());
    QCOMPARE(host.devices.OutstandingReferences(), 0);
}

void TestPageRobustness::deviceNewsAfterThePageIsGoneReachNobody()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    page.Close();
    QVERIFY(host.devices.RenameDevice(Lobby, QStringLiteral("Hall")));
    QVERIFY(host.devices.SetDeviceOnline(Lobby, false));
    QVERIFY(host.devices.RemoveDevice(Lobby));
    QCOMPARE(host.devices.OutstandingReferences(), 0);
}

void TestPageRobustness::aDeviceManagerThatDisappearsLeavesAPageThatDoesNothing()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ToggleSound());
    HostServices::FillTable({});
    QVERIFY(page.hands.ClickDoor(Back)); // no device manager: nothing happens
    QVERIFY(page.hands.IsSoundShown());
    page.Page().OnSave();
    QCOMPARE(SchemeText::Edited(host.Kept().schemes),
             QStringList{QStringLiteral("100$1$0$101#%1 sound").arg(FirstAlarm())});
}

void TestPageRobustness::callsInAnyOrderBeforeASelection()
{
    PageHost host;
    OpenPage page(&host.managers);
    TryEverything(page);
    QVERIFY(IsDisabledButThere(page));
    QVERIFY(page.Schemes().isEmpty());
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.AreSettingsEnabled());
}

void TestPageRobustness::callsInAnyOrderOnADoor()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ToggleSound());
    TryEverything(page);
    QVERIFY(page.Scheme(Key("100$1$0$101"), FirstAlarm()).bOpenSound);
    const QStringList keys = SchemeText::Keys(host.Kept().schemes);
    for (const QString& key : keys)
        QVERIFY2(key.startsWith(QLatin1String("100$1$0$")), qPrintable(key));
}

void TestPageRobustness::twoPagesDoNotShareEdits()
{
    PageHost host;
    OpenPage first(&host.managers);
    OpenPage second(&host.managers);
    QVERIFY(first.hands.ClickDoor(Front));
    QVERIFY(first.hands.ToggleOpen());
    QVERIFY(second.hands.ClickDoor(Front));
    QVERIFY(!second.hands.IsOpenShown());
    QVERIFY(host.devices.RemoveDevice(Vault));
    first.Close();
    QVERIFY(second.hands.ToggleSound());
    QVERIFY(second.hands.Save());
    QCOMPARE(SchemeText::Edited(host.Kept().schemes),
             QStringList{QStringLiteral("100$1$0$101#%1 sound").arg(FirstAlarm())});
}

QTEST_MAIN(TestPageRobustness)
#include "tst_page_robustness.moc"
