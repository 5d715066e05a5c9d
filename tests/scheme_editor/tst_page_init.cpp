#include "AlarmCtrl/QAlarmDefenceTimeEditor.h"
#include "AlarmCtrl/QAlarmListItem.h"
#include "AlarmCtrl/QAlarmListItemView.h"
#include "AlarmCtrl/QAlarmOutEditor.h"
#include "platform/SystemLibrary/AlarmSchemeCommon.h"
#include "platform/SystemLibrary/QCommon.h"
#include "platform/SystemLibrary/QRecoverSubWndBase.h"
#include "platform/SystemLibrary/QSystem.h"
#include "platform/VantaComponent/GroupTreeCtrl.h"
#include "platform/VantaModel/ACSGroupTreeModel.h"
#include "scheme_editor/ACSEventNotifyEditor.h"
#include "scheme_editor/ACSEventSchemeEditor.h"
#include "scheme_editor/QNoFocusItemDelegate.h"
#include "tests/scheme_editor/OpenPage.h"
#include "tests/scheme_editor/PageHost.h"
#include "tests/scheme_editor/SchemeText.h"

#include <QBoxLayout>
#include <QButtonGroup>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTreeView>
#include <QTreeWidget>

#include <array>

using namespace PageSite;

namespace {

constexpr std::array<const char*, 3> s_tabs{"btnNotify", "btnAlarmOut", "btnDefTime"};

QList<int> TypesOf(const QAlarmListItemView* pList, QStringList* pTexts = nullptr)
{
    QList<int> types;
    const QList<QAlarmListItem*> items = pList->findChildren<QAlarmListItem*>();
    for (const QAlarmListItem* const pItem : items) {
        if (pItem->GetType() < 0)
            continue; // the header of the section that folds
        types.append(pItem->GetType());
        if (pTexts != nullptr)
            pTexts->append(pItem->text());
    }
    return types;
}

/// The object names of a widget's child widgets, the lowest in the stack first.
QStringList Stack(const QWidget* pParent)
{
    QStringList names;
    for (const QObject* const pChild : pParent->children()) {
        if (pChild->isWidgetType())
            names.append(pChild->objectName());
    }
    return names;
}

QStringList Names(std::initializer_list<const char*> names)
{
    QStringList list;
    for (const char* const name : names)
        list.append(QLatin1String(name));
    return list;
}

} // namespace

/// Initialisation, tabs, geometry and what the host may send.
class TestPageInit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initRemembersTheManagers();
    void aSecondInitChangesNothing();
    void initFillsTheMapOnce();
    void theDeviceTreeStandsInItsBox();
    void onlyAccessControlDevicesAndDoorsAreListed();
    void theListsHoldTheHostsEventTypesInOrder();
    void theSubSectionsOfTheListsAreHidden();
    void theSubEditorsLieSideBySide();
    void theInputTreeDrawsNoFocus();
    void columnZeroIsNarrowAfterInit_data();
    void columnZeroIsNarrowAfterInit();
    void aResizeOfTheViewportFitsTheColumns();
    void theEventFilterTakesNothing();
    void neighbouringTabsOverlapByFourteenPixels();
    void theCheckedTabLiesOnTop();
    void aTabShowsOnlyItsEditor();
    void theTabStaysWhileTheSelectionChanges();
    void theManagersCanBeTakenAway();
    void theRecoveryRecordSaysWhatIsStated();
    void theRecoveryRecordOfAHiddenPageSaysSo();
    void onlyMessage106InStateFourIsAnswered_data();
    void onlyMessage106InStateFourIsAnswered();
    void aRecoveryEventWithoutASlotIsIgnored();
    void strangeCustomEventsAreIgnored();
    void showingThePageAgainChangesNothing();
};

void TestPageInit::initRemembersTheManagers()
{
    const PageHost host;
    ACSEventSchemeEditor page(nullptr);
    page.Init(&host.managers);
    QCOMPARE(page.GetManagerList(), &host.managers);
}

void TestPageInit::aSecondInitChangesNothing()
{
    const PageHost host;
    const OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ToggleSound());
    const LXPluginAPI::ManagerList others;
    const int children = page.Page().findChildren<QObject*>().size();
    page.Page().Init(&others);
    page.Page().Init(nullptr);
    QCOMPARE(page.Page().findChildren<QObject*>().size(), children);
    QCOMPARE(page.Page().GetManagerList(), &host.managers);
    QCOMPARE(host.Kept().iLoads, 1);
    QVERIFY(page.hands.AreSettingsEnabled());
    QVERIFY(page.hands.IsSoundShown());
    QCOMPARE(page.hands.Widget("wndDevTree")->findChildren<VantaComponent::GroupTreeCtrl*>().size(), 1);
    QCOMPARE(TypesOf(page.hands.List("listAlarm")).size(), AlarmSchemeCommon::ACSAlarmEvent().size());
    QVERIFY(page.hands.Save());
    QCOMPARE(host.Kept().iSaves, 1);
}

void TestPageInit::initFillsTheMapOnce()
{
    AlarmInfo info;
    info.bOpen = true;
    const AlarmInfoMap schemes{{{QStringLiteral("100$1$0$101"), 101}, info},
                               {{QStringLiteral("anything"), -7}, info}};
    const PageHost host(schemes);
    ACSEventSchemeEditor page(nullptr);
    QCOMPARE(host.Kept().iLoads, 0);
    page.Init(&host.managers);
    QCOMPARE(host.Kept().iLoads, 1);
    QCOMPARE(SchemeText::Edited(page.GetAlarmInfoMap()), SchemeText::Edited(schemes));
}

void TestPageInit::theDeviceTreeStandsInItsBox()
{
    const PageHost host;
    const OpenPage page(&host.managers);
    auto* const pLayout = qobject_cast<QHBoxLayout*>(page.hands.Widget("wndDevTree")->layout());
    QVERIFY(pLayout != nullptr);
    QCOMPARE(pLayout->contentsMargins(), QMargins(1, 1, 1, 1));
    QCOMPARE(pLayout->spacing(), 0);
    QCOMPARE(pLayout->count(), 1);
    QCOMPARE(pLayout->itemAt(0)->widget(), static_cast<QWidget*>(page.hands.Tree()));
    const auto* const pModel =
        page.Page().findChild<VantaModel::ACSGroupTreeModel*>(QString(), Qt::FindDirectChildrenOnly);
    QVERIFY(pModel != nullptr);
    QCOMPARE(pModel->GetMode(), 1);
    QVERIFY(pModel->GetNodeFilter().bHideEmaps);
    QCOMPARE(pModel->GetNodeFilter().deviceWhiteList, QSet<int32_t>{12});
    QCOMPARE(pModel->GetNodeFilter().channelWhiteList, QSet<int32_t>{6});
    QVERIFY(!pModel->IsCheckBoxEnabled());
    QCOMPARE(page.hands.TreeView()->dragDropMode(), QAbstractItemView::NoDragDrop);
}

void TestPageInit::onlyAccessControlDevicesAndDoorsAreListed()
{
    const PageHost host;
    const OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    for (const int64_t device : {Lobby, Vault, Garage, Cellar, Attic})
        QVERIFY(page.hands.SeesNode(device, VantaModel::NodeKindDevice));
    for (const int64_t door : {Front, Back, Safe, Gate, Hatch, Sealed, Loft})
        QVERIFY(page.hands.SeesNode(door, VantaModel::NodeKindChannel));
    QVERIFY(!page.hands.SeesNode(AlarmHost, VantaModel::NodeKindDevice));
    for (const int64_t other : {Window, Smoke, Siren, Motion, HostInput, Horn})
        QVERIFY(!page.hands.SeesNode(other, VantaModel::NodeKindChannel));
}

void TestPageInit::theListsHoldTheHostsEventTypesInOrder()
{
    const PageHost host;
    const OpenPage page(&host.managers);
    const auto check = [&page](const char* szList, const QList<int>& expected) {
        QStringList texts;
        if (TypesOf(page.hands.List(szList), &texts) != expected)
            return false;
        for (int i = 0; i < expected.size(); ++i) {
            if (texts.at(i) != QCommon::GetAlarmNameByType(expected.at(i)))
                return false;
        }
        return page.hands.List(szList)->GetCurrentType() == expected.constFirst();
    };
    QVERIFY(check("listAlarm", AlarmSchemeCommon::ACSAlarmEvent()));
    QVERIFY(check("listAbnormal", AlarmSchemeCommon::ACSAbnormalEvent()));
    QVERIFY(check("listNormal", AlarmSchemeCommon::ACSNormalEvent()));
}

void TestPageInit::theSubSectionsOfTheListsAreHidden()
{
    const PageHost host;
    const OpenPage page(&host.managers);
    for (const char* const name : {"listAlarm", "listAbnormal", "listNormal"}) {
        const QAlarmListItemView* const pList = page.hands.List(name);
        QVERIFY(pList->findChild<QWidget*>(QStringLiteral("wndSubContainer"))->isHidden());
        QVERIFY(!pList->findChild<QWidget*>(QStringLiteral("wndSpace"))->isHidden());
    }
}

void TestPageInit::theSubEditorsLieSideBySide()
{
    const PageHost host;
    const OpenPage page(&host.managers);
    auto* const pLayout = qobject_cast<QHBoxLayout*>(page.hands.Widget("wndSubSetting")->layout());
    QVERIFY(pLayout != nullptr);
    QCOMPARE(pLayout->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(pLayout->count(), 3);
    QVERIFY(qobject_cast<ACSEventNotifyEditor*>(pLayout->itemAt(0)->widget()) != nullptr);
    QVERIFY(qobject_cast<QAlarmOutEditor*>(pLayout->itemAt(1)->widget()) != nullptr);
    QVERIFY(qobject_cast<QAlarmDefenceTimeEditor*>(pLayout->itemAt(2)->widget()) != nullptr);
}

void TestPageInit::theInputTreeDrawsNoFocus()
{
    const PageHost host;
    const OpenPage page(&host.managers);
    auto* const pDelegate = qobject_cast<QNoFocusItemDelegate*>(page.hands.InputTree()->itemDelegate());
    QVERIFY(pDelegate != nullptr);
    QCOMPARE(pDelegate->parent(), static_cast<QObject*>(&page.Page()));
}

void TestPageInit::columnZeroIsNarrowAfterInit_data()
{
    QTest::addColumn<int>("width");
    QTest::newRow("the form's size") << 1061;
    QTest::newRow("narrow") << 500;
    QTest::newRow("wide") << 3000;
}

void TestPageInit::columnZeroIsNarrowAfterInit()
{
    QFETCH(int, width);
    const PageHost host;
    ACSEventSchemeEditor page(nullptr);
    page.resize(width, 820);
    page.Init(&host.managers);
    QCOMPARE(page.findChild<QTreeWidget*>(QStringLiteral("treeAlarmIn"))->columnWidth(0), 28);
}

void TestPageInit::aResizeOfTheViewportFitsTheColumns()
{
    const PageHost host;
    const OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDevice(Lobby));
    QTreeWidget* const pTree = page.hands.InputTree();
    const auto fits = [pTree] {
        return pTree->columnWidth(0) == pTree->viewport()->width() - 28 && pTree->columnWidth(1) == 28;
    };
    QTRY_VERIFY(pTree->viewport()->width() > 100);
    QTRY_VERIFY(fits());
    pTree->setMaximumWidth(150);
    QTRY_VERIFY(pTree->width() <= 150 && fits());
    pTree->setColumnWidth(0, 60);
    QResizeEvent resize(pTree->viewport()->size(), QSize(1, 1));
    QCoreApplication::sendEvent(pTree->viewport(), &resize);
    QVERIFY(fits());
}

void TestPageInit::theEventFilterTakesNothing()
{
    const PageHost host;
    const OpenPage page(&host.managers);
    QWidget* const pViewport = page.hands.InputTree()->viewport();
    QResizeEvent resize(QSize(10, 10), QSize(5, 5));
    QVERIFY(!page.Page().eventFilter(pViewport, &resize));
    QEvent other(QEvent::Enter);
    QVERIFY(!page.Page().eventFilter(pViewport, &other));
    QVERIFY(!page.Page().eventFilter(&page.Page(), &resize));
    QObject stranger;
    QVERIFY(!page.Page().eventFilter(&stranger, &resize));
}

void TestPageInit::neighbouringTabsOverlapByFourteenPixels()
{
    const PageHost host;
    const OpenPage page(&host.managers);
    const int height = page.hands.Widget("wndTabContainer")->height();
    QCOMPARE(height, 38);
    const auto check = [&] {
        int x = 0;
        for (const char* const name : s_tabs) {
            const QWidget* const pTab = page.hands.Widget(name);
            if (pTab->pos() != QPoint(x, height - pTab->height()) || pTab->width() != 120)
                return false;
            x += pTab->width() - 14;
        }
        return true;
    };
    QVERIFY(check());
    QVERIFY(page.hands.ClickDoor(Front));
    for (const char* const name : s_tabs) {
        QVERIFY(page.hands.ClickTab(name));
        QVERIFY(check());
    }
}

void TestPageInit::theCheckedTabLiesOnTop()
{
    const PageHost host;
    const OpenPage page(&host.managers);
    const QWidget* const pContainer = page.hands.Widget("wndTabContainer");
    QCOMPARE(Stack(pContainer), Names({"btnDefTime", "btnAlarmOut", "btnNotify"}));
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ClickTab("btnAlarmOut"));
    QCOMPARE(Stack(pContainer), Names({"btnDefTime", "btnNotify", "btnAlarmOut"}));
    QVERIFY(page.hands.ClickTab("btnDefTime"));
    QCOMPARE(Stack(pContainer), Names({"btnAlarmOut", "btnNotify", "btnDefTime"}));
    QVERIFY(page.hands.ClickTab("btnNotify"));
    QCOMPARE(Stack(pContainer), Names({"btnDefTime", "btnAlarmOut", "btnNotify"}));
}

void TestPageInit::aTabShowsOnlyItsEditor()
{
    const PageHost host;
    const OpenPage page(&host.managers);
    const std::array<const QWidget*, 3> editors{page.Page().findChild<ACSEventNotifyEditor*>(),
                                                page.Page().findChild<QAlarmOutEditor*>(),
                                                page.Page().findChild<QAlarmDefenceTimeEditor*>()};
    const auto shown = [&editors] {
        int which = -1;
        for (int i = 0; i < 3; ++i) {
            if (editors[static_cast<size_t>(i)]->isVisible())
                which = which == -1 ? i : 3;
        }
        return which;
    };
    QCOMPARE(shown(), 0);
    QVERIFY(page.hands.ClickDoor(Front));
    for (const int tab : {2, 1, 0, 1, 2}) {
        QVERIFY(page.hands.ClickTab(s_tabs[static_cast<size_t>(tab)]));
        QCOMPARE(shown(), tab);
    }
}

void TestPageInit::theTabStaysWhileTheSelectionChanges()
{
    const PageHost host;
    const OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ClickTab("btnDefTime"));
    QVERIFY(page.hands.ClickDevice(Lobby));
    QVERIFY(page.hands.ClickDoor(Back));
    QVERIFY(page.hands.Button("btnDefTime")->isChecked());
    QVERIFY(page.Page().findChild<QAlarmDefenceTimeEditor*>()->isVisible());
}

void TestPageInit::theManagersCanBeTakenAway()
{
    const PageHost host;
    const OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    page.Page().ClearManagerList();
    QVERIFY(page.Page().GetManagerList() == nullptr);
    page.Page().Init(&host.managers);
    QVERIFY(page.Page().GetManagerList() == nullptr);
    QVERIFY(page.hands.ToggleOpen());
    QVERIFY(page.hands.ClickDoor(Back));
}

void TestPageInit::theRecoveryRecordSaysWhatIsStated()
{
    const PageHost host;
    const OpenPage page(&host.managers);
    QSystem::GetInstance()->SetState(QSystem::StateClosing);
    std::unique_ptr<QRecoverSubWndBase> result;
    LXRecoverEvent event(106, 77, &result);
    QCoreApplication::sendEvent(&page.Page(), &event);
    QVERIFY(result != nullptr);
    QCOMPARE(result->GetWindowNumber(), 77);
    QCOMPARE(result->GetModuleIndex(), 12);
    QCOMPARE(result->GetName(), QByteArray("QRecoverSubWndBase"));
    QVERIFY(result->IsVisible());
}

void TestPageInit::theRecoveryRecordOfAHiddenPageSaysSo()
{
    const PageHost host;
    ACSEventSchemeEditor page(nullptr);
    page.Init(&host.managers);
    page.hide();
    QSystem::GetInstance()->SetState(4);
    std::unique_ptr<QRecoverSubWndBase> result;
    LXRecoverEvent event(106, -1, &result);
    QCoreApplication::sendEvent(&page, &event);
    QVERIFY(result != nullptr);
    QVERIFY(!result->IsVisible());
    QCOMPARE(result->GetWindowNumber(), -1);
}

void TestPageInit::onlyMessage106InStateFourIsAnswered_data()
{
    QTest::addColumn<int>("message");
    QTest::addColumn<int>("state");
    for (const int message : {0, 22, 105, 107, -106})
        QTest::addRow("message %d", message) << message << 4;
    for (const int state : {0, 1, 2, 3, 5, -1})
        QTest::addRow("state %d", state) << 106 << state;
}

void TestPageInit::onlyMessage106InStateFourIsAnswered()
{
    QFETCH(int, message);
    QFETCH(int, state);
    const PageHost host;
    const OpenPage page(&host.managers);
    QSystem::GetInstance()->SetState(state);
    std::unique_ptr<QRecoverSubWndBase> result;
    LXRecoverEvent event(message, 1, &result);
    QCoreApplication::sendEvent(&page.Page(), &event);
    QVERIFY(result == nullptr);
}

void TestPageInit::aRecoveryEventWithoutASlotIsIgnored()
{
    const PageHost host;
    const OpenPage page(&host.managers);
    QSystem::GetInstance()->SetState(4);
    LXRecoverEvent event(106, 1, nullptr);
    QCoreApplication::sendEvent(&page.Page(), &event);
    QVERIFY(page.Page().isVisible());
}

void TestPageInit::strangeCustomEventsAreIgnored()
{
    const PageHost host;
    const OpenPage page(&host.managers);
    QSystem::GetInstance()->SetState(4);
    for (const int type : {1000, 1001, 1002, 65535}) {
        // A bare event of the recovery event's number is no recovery event.
        QEvent event(static_cast<QEvent::Type>(type));
        QCoreApplication::sendEvent(&page.Page(), &event);
    }
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.AreSettingsEnabled());
}

void TestPageInit::showingThePageAgainChangesNothing()
{
    const PageHost host;
    const OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ClickCategory("btnNormal"));
    QVERIFY(page.hands.ToggleSound());
    page.Page().hide();
    page.Page().show();
    QVERIFY(page.hands.IsSoundShown());
    QVERIFY(page.hands.Button("btnNormal")->isChecked());
    QVERIFY(page.hands.AreSettingsEnabled());
    QCOMPARE(host.Kept().iLoads, 1);
}

QTEST_MAIN(TestPageInit)
#include "tst_page_init.moc"
