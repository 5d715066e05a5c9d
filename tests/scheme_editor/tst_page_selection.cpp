#include "AlarmCtrl/QAlarmListItemView.h"
#include "platform/LXGUI/LXSwitchButton.h"
#include "platform/SystemLibrary/AlarmSchemeCommon.h"
#include "platform/SystemLibrary/QCommon.h"
#include "platform/VantaComponent/GroupTreeCtrl.h"
#include "platform/VantaModel/NodeRoles.h"
#include "scheme_editor/ACSEventSchemeEditor.h"
#include "tests/scheme_editor/PageHands.h"
#include "tests/scheme_editor/PageHost.h"
#include "tests/scheme_editor/SchemeText.h"

#include <QLabel>
#include <QLayout>
#include <QSignalSpy>
#include <QTest>
#include <QTreeWidget>

using namespace PageSite;

namespace {

QString Key(const char* szKey)
{
    return QLatin1String(szKey);
}

int FirstAlarm()
{
    return AlarmSchemeCommon::ACSAlarmEvent().constFirst();
}
int FirstAbnormal()
{
    return AlarmSchemeCommon::ACSAbnormalEvent().constFirst();
}
int FirstNormal()
{
    return AlarmSchemeCommon::ACSNormalEvent().constFirst();
}

QStringList DoorCategories()
{
    return {QStringLiteral("btnAlarm"), QStringLiteral("btnAbnormal"), QStringLiteral("btnNormal")};
}

QStringList DeviceCategories()
{
    return {QStringLiteral("btnExternalAlarm")};
}

} // namespace

/// From a selection to the scheme that is edited.
class TestPageSelection : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nothingIsSelectedAtTheStart();
    void thePageSaysWhatToDoWhenThereIsNothingToEdit();
    void aDoorIsKeptUnderDeviceOneZeroChannel();
    void aDoorOffersThreeCategoriesAndShowsTheFirst();
    void eachCategoryButtonShowsItsContentOnly();
    void aCategoryTakesTheCurrentEventOfItsList();
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
    void anOfflineControllerCanBeConfigured();
    void aDisabledDeviceCannotBeConfigured();
    void aDoorOfADisabledDeviceCannotBeConfigured();
    void aDisabledDoorCannotBeConfigured();
    void aDeviceOfAnotherTypeDisablesThePage();
    void aDeviceThatTheHostRefusesDisablesThePage();
    void aDoorWhoseRecordCannotBeReadDisablesThePage();
    void aDoorWithoutDeviceObjectDisablesThePage();
    void aDeviceThatCannotBeReadHasNoInputs();
    void anInputThatCannotBeReadIsLeftOut();
    void theCategoryButtonsStayVisibleWhileNothingIsSelected();
    void losingTheSelectionShowsADefaultScheme();
    void clickingTheSameDoorAgainKeepsCategoryAndEvent();
    void clickingTheSameDoorAgainDoesNotStore();
    void aSearchThatHidesTheDoorSelectsNothing();
    void theDoorComesBackWithTheEndOfTheSearch();
    void aSearchThatKeepsTheDoorKeepsCategoryAndEvent();
    void browsingAddsDefaultEntries();
    void theLabelNamesTheEvent();
    void theLabelNamesTheAlarmInputsEvent();
    void anEventThatIsCurrentAlreadyChangesNothing();
    void anInputThatIsCurrentAlreadyChangesNothing();
    void hiddenListsAreNotHeard();
    void hiddenInputsAreNotHeard();
    void aListIsHeardOnceHoweverOftenItWasShown();
    void arrowKeysInTheListChangeTheEvent();
    void everySelectionGivesBackItsDeviceAndChannelObjects();
    void theEditedSchemeNamesDoorDeviceAndEvent();
    void theEditedSchemeTellsOfEveryChange();
    void withoutAnEventTheEditedSchemeNamesThePlace();
    void separatorsDoNotPileUp();
    void theCheckedCategoryIsFollowedByItsContent();
};

void TestPageSelection::nothingIsSelectedAtTheStart()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(!page.hands.IsColumnEnabled());
    QVERIFY(!page.hands.AreSettingsEnabled());
    QVERIFY(page.Schemes().isEmpty());
    QVERIFY(!page.hands.ClickEvent(FirstAlarm()));
    QVERIFY(!page.hands.ToggleOpen());
}

void TestPageSelection::aDoorIsKeptUnderDeviceOneZeroChannel()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Back));
    QVERIFY(page.hands.IsColumnEnabled());
    QVERIFY(page.hands.AreSettingsEnabled());
    QCOMPARE(SchemeText::Keys(page.Schemes()),
             QStringList{QStringLiteral("100$1$0$102#%1").arg(FirstAlarm())});
}

void TestPageSelection::aDoorOffersThreeCategoriesAndShowsTheFirst()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QCOMPARE(page.hands.VisibleCategories(), DoorCategories());
    QVERIFY(page.hands.Button("btnAlarm")->isChecked());
    QCOMPARE(page.hands.VisibleList(), page.hands.List("listAlarm"));
}

void TestPageSelection::eachCategoryButtonShowsItsContentOnly()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    const QStringList buttons{QStringLiteral("btnNormal"), QStringLiteral("btnAbnormal"),
                              QStringLiteral("btnAlarm")};
    const QStringList lists{QStringLiteral("listNormal"), QStringLiteral("listAbnormal"),
                            QStringLiteral("listAlarm")};
    for (int i = 0; i < buttons.size(); ++i) {
        QVERIFY(page.hands.ClickCategory(buttons.at(i).toLatin1().constData()));
        for (int j = 0; j < lists.size(); ++j)
            QCOMPARE(page.hands.Widget(lists.at(j).toLatin1().constData())->isVisible(), i == j);
        QVERIFY(!page.hands.InputTree()->isVisible());
    }
    QVERIFY(page.hands.ClickDevice(Lobby));
    QVERIFY(page.hands.InputTree()->isVisible());
    QVERIFY(page.hands.VisibleList() == nullptr);
}

void TestPageSelection::aCategoryTakesTheCurrentEventOfItsList()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ClickCategory("btnNormal"));
    QVERIFY(page.hands.ClickEvent(AlarmSchemeCommon::ACSNormalEvent().constLast()));
    QVERIFY(page.hands.ClickCategory("btnAbnormal"));
    QVERIFY(page.Holds(Key("100$1$0$101"), FirstAbnormal()));
    QVERIFY(page.hands.ToggleOpen());
    QVERIFY(page.hands.ClickCategory("btnNormal"));
    QCOMPARE(page.hands.List("listNormal")->GetCurrentType(),
             AlarmSchemeCommon::ACSNormalEvent().constLast());
    QVERIFY(page.hands.ToggleOpen());
    const AlarmInfoMap& schemes = page.Schemes();
    QCOMPARE(SchemeText::Edited(schemes),
             (QStringList{
                 QStringLiteral("100$1$0$101#%1 on").arg(FirstAbnormal()),
                 QStringLiteral("100$1$0$101#%1 on").arg(AlarmSchemeCommon::ACSNormalEvent().constLast())}));
}

void TestPageSelection::aDeviceOffersItsAlarmInputsOnly()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDevice(Lobby));
    QCOMPARE(page.hands.VisibleCategories(), DeviceCategories());
    QVERIFY(page.hands.Button("btnExternalAlarm")->isChecked());
    QCOMPARE(page.hands.InputKeys(), (QStringList{Key("100$3$1$103"), Key("100$3$1$104")}));
    QCOMPARE(page.hands.InputTree()->topLevelItemCount(), 1);
    QVERIFY(page.hands.ClickDoor(Front));
    QCOMPARE(page.hands.VisibleCategories(), DoorCategories());
}

void TestPageSelection::theFirstAlarmInputIsCurrent()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDevice(Lobby));
    QCOMPARE(page.hands.CurrentInputKey(), Key("100$3$1$103"));
    QVERIFY(page.hands.AreSettingsEnabled());
}

void TestPageSelection::alarmInputsAreKeptUnderDeviceThreeOneChannelAndTypeTwo()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDevice(Lobby));
    QVERIFY(page.hands.ToggleOpen());
    QCOMPARE(SchemeText::Edited(page.Schemes()), QStringList{Key("100$3$1$103#2 on")});
}

void TestPageSelection::anInputsItemShowsNameKeyIconAndMarkCell()
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

void TestPageSelection::clickingAnotherAlarmInputEditsThatOne()
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

void TestPageSelection::theDeviceItemOfTheInputsHasNoScheme()
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

void TestPageSelection::externalEventsBecomeCheckableWithTheFirstDevice()
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

void TestPageSelection::aDeviceWithoutInputsHasNothingToEdit()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ToggleOpen());
    QVERIFY(page.hands.ToggleSound());
    QVERIFY(page.hands.ClickDevice(Vault));
    QCOMPARE(page.hands.VisibleCategories(), DeviceCategories());
    QCOMPARE(page.hands.InputTree()->topLevelItemCount(), 0);
    QVERIFY(!page.hands.AreSettingsEnabled());
    QVERIFY(!page.hands.IsOpenShown());
    QVERIFY(!page.hands.IsSoundShown());
    QCOMPARE(SchemeText::Keys(page.Schemes()),
             QStringList{QStringLiteral("100$1$0$101#%1").arg(FirstAlarm())});
}

void TestPageSelection::aDeviceWithoutInputsClickedAgainStillHasNothingToEdit()
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

void TestPageSelection::clickingTheDeviceAgainOnItsDeviceItemLeavesNothingToEdit()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDevice(Lobby));
    QVERIFY(page.hands.ClickInputDevice());
    QVERIFY(page.hands.ClickDevice(Lobby));
    QVERIFY(!page.hands.AreSettingsEnabled());
    QCOMPARE(SchemeText::Keys(page.Schemes()), QStringList{Key("100$3$1$103#2")});
}

void TestPageSelection::rebuildingTheInputsVisitsOnlyTheFirst()
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

void TestPageSelection::aDisabledInputIsStillListed()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDevice(Attic));
    QCOMPARE(page.hands.InputKeys(), (QStringList{Key("600$3$1$603"), Key("600$3$1$604")}));
}

void TestPageSelection::anOfflineControllerCanBeConfigured()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Gate));
    QVERIFY(page.hands.IsColumnEnabled());
    QVERIFY(page.hands.ToggleOpen());
    QVERIFY(page.hands.ClickDevice(Garage));
    QVERIFY(page.hands.ToggleSound());
    QVERIFY(page.hands.Save());
    QCOMPARE(
        SchemeText::Edited(host.Kept().schemes),
        (QStringList{QStringLiteral("300$1$0$301#%1 on").arg(FirstAlarm()), Key("300$3$1$302#2 sound")}));
}

void TestPageSelection::aDisabledDeviceCannotBeConfigured()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDevice(Lobby));
    QVERIFY(page.hands.ClickDevice(Cellar));
    QVERIFY(!page.hands.IsColumnEnabled());
    QVERIFY(!page.hands.AreSettingsEnabled());
    QCOMPARE(SchemeText::KeysOfDevice(page.Schemes(), Cellar), QStringList());
}

void TestPageSelection::aDoorOfADisabledDeviceCannotBeConfigured()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ClickDoor(Hatch));
    QVERIFY(!page.hands.IsColumnEnabled());
    QVERIFY(!page.hands.AreSettingsEnabled());
    QCOMPARE(SchemeText::KeysOfDevice(page.Schemes(), Cellar), QStringList());
}

void TestPageSelection::aDisabledDoorCannotBeConfigured()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Loft));
    QVERIFY(page.hands.IsColumnEnabled());
    QVERIFY(page.hands.ClickDoor(Sealed));
    QVERIFY(!page.hands.IsColumnEnabled());
    QVERIFY(!page.hands.AreSettingsEnabled());
    QVERIFY(!page.Holds(Key("600$1$0$601"), FirstAlarm()));
}

void TestPageSelection::aDeviceOfAnotherTypeDisablesThePage()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDevice(Lobby));
    host.devices.types.insert(Vault, VantaLogic::DeviceTypeAlarmHost);
    QVERIFY(page.hands.ClickDevice(Vault));
    QVERIFY(!page.hands.IsColumnEnabled());
    QVERIFY(!page.hands.AreSettingsEnabled());
}

void TestPageSelection::aDeviceThatTheHostRefusesDisablesThePage()
{
    PageHost host;
    OpenPage page(&host.managers);
    host.devices.refusedDevices.insert(Lobby);
    QVERIFY(page.hands.ClickDevice(Lobby));
    QVERIFY(!page.hands.IsColumnEnabled());
    QVERIFY(!page.hands.AreSettingsEnabled());
    QVERIFY(page.Schemes().isEmpty());
}

void TestPageSelection::aDoorWhoseRecordCannotBeReadDisablesThePage()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    host.devices.unreadableChannels.insert(Back);
    QVERIFY(page.hands.ClickDoor(Back));
    QVERIFY(!page.hands.IsColumnEnabled());
    QVERIFY(!page.hands.AreSettingsEnabled());
    QVERIFY(!page.Holds(Key("100$1$0$102"), FirstAlarm()));
}

void TestPageSelection::aDoorWithoutDeviceObjectDisablesThePage()
{
    PageHost host;
    OpenPage page(&host.managers);
    host.devices.goneObjects.insert(Lobby);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(!page.hands.IsColumnEnabled());
    QVERIFY(page.Schemes().isEmpty());
}

void TestPageSelection::aDeviceThatCannotBeReadHasNoInputs()
{
    PageHost host;
    OpenPage page(&host.managers);
    host.devices.unreadableDevices.insert(Lobby);
    QVERIFY(page.hands.ClickDevice(Lobby));
    QCOMPARE(page.hands.InputTree()->topLevelItemCount(), 0);
    QVERIFY(!page.hands.AreSettingsEnabled());
}

void TestPageSelection::anInputThatCannotBeReadIsLeftOut()
{
    PageHost host;
    OpenPage page(&host.managers);
    host.devices.unreadableChannels.insert(Window);
    QVERIFY(page.hands.ClickDevice(Lobby));
    QCOMPARE(page.hands.InputKeys(), QStringList{Key("100$3$1$104")});
    QCOMPARE(page.hands.CurrentInputKey(), Key("100$3$1$104"));
}

void TestPageSelection::theCategoryButtonsStayVisibleWhileNothingIsSelected()
{
    const QStringList categories = DoorCategories();
    PageHost host;
    OpenPage page(&host.managers);
    for (const QString& name : categories)
        QVERIFY(page.hands.VisibleCategories().contains(name));
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ClickDoor(Sealed));
    QCOMPARE(page.hands.VisibleCategories(), DoorCategories());
    QVERIFY(page.hands.ClickDevice(Lobby));
    QVERIFY(page.hands.ClickDoor(Sealed));
    QCOMPARE(page.hands.VisibleCategories(), DeviceCategories());
}

void TestPageSelection::losingTheSelectionShowsADefaultScheme()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ToggleOpen());
    QVERIFY(page.hands.ToggleSound());
    QVERIFY(page.hands.ToggleMail());
    QVERIFY(page.hands.ClickDoor(Sealed));
    QVERIFY(!page.hands.IsOpenShown());
    QVERIFY(!page.hands.IsSoundShown());
    QVERIFY(!page.hands.IsMailShown());
    QVERIFY(!page.hands.HasMark("listAlarm", FirstAlarm()));
    QCOMPARE(SchemeText::Edited(page.Schemes()),
             QStringList{QStringLiteral("100$1$0$101#%1 on sound mail").arg(FirstAlarm())});
}

void TestPageSelection::clickingTheSameDoorAgainKeepsCategoryAndEvent()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ClickCategory("btnNormal"));
    const int type = AlarmSchemeCommon::ACSNormalEvent().at(3);
    QVERIFY(page.hands.ClickEvent(type));
    QVERIFY(page.hands.ToggleOpen());
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.Button("btnNormal")->isChecked());
    QCOMPARE(page.hands.VisibleList(), page.hands.List("listNormal"));
    QCOMPARE(page.hands.SettingType(), QCommon::GetAlarmNameByType(type));
    QVERIFY(page.hands.IsOpenShown());
}

void TestPageSelection::clickingTheSameDoorAgainDoesNotStore()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ToggleSound());
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.IsSoundShown());
    QVERIFY(!page.Scheme(Key("100$1$0$101"), FirstAlarm()).bOpenSound);
}

void TestPageSelection::aSearchThatHidesTheDoorSelectsNothing()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ToggleSound());
    QVERIFY(page.hands.Search(QStringLiteral("Safe Door")));
    QVERIFY(!page.hands.SeesNode(Front, VantaModel::NodeKindChannel));
    QVERIFY(!page.hands.IsColumnEnabled());
    QVERIFY(!page.hands.AreSettingsEnabled());
    QVERIFY(!page.hands.IsSoundShown());
    QCOMPARE(SchemeText::Edited(page.Schemes()),
             QStringList{QStringLiteral("100$1$0$101#%1 sound").arg(FirstAlarm())});
}

void TestPageSelection::theDoorComesBackWithTheEndOfTheSearch()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ClickCategory("btnNormal"));
    QVERIFY(page.hands.ToggleOpen());
    QVERIFY(page.hands.Search(QStringLiteral("Safe Door")));
    QVERIFY(page.hands.Search(QString()));
    QVERIFY(page.hands.IsColumnEnabled());
    QVERIFY(page.hands.AreSettingsEnabled());
    QVERIFY(page.hands.Button("btnAlarm")->isChecked());
    QCOMPARE(page.hands.VisibleCategories(), DoorCategories());
    QVERIFY(page.hands.ClickCategory("btnNormal"));
    QVERIFY(page.hands.IsOpenShown());
}

void TestPageSelection::aSearchThatKeepsTheDoorKeepsCategoryAndEvent()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ClickCategory("btnNormal"));
    QVERIFY(page.hands.Search(QStringLiteral("Front")));
    QVERIFY(page.hands.Button("btnNormal")->isChecked());
    QVERIFY(page.hands.AreSettingsEnabled());
    QCOMPARE(page.hands.SettingType(), QCommon::GetAlarmNameByType(FirstNormal()));
}

void TestPageSelection::browsingAddsDefaultEntries()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ClickEvent(AlarmSchemeCommon::ACSAlarmEvent().at(1)));
    QVERIFY(page.hands.ClickCategory("btnAbnormal"));
    QVERIFY(page.hands.ClickDevice(Lobby));
    const AlarmInfoMap& schemes = page.Schemes();
    QCOMPARE(SchemeText::Keys(schemes),
             (QStringList{QStringLiteral("100$1$0$101#%1").arg(FirstAlarm()),
                          QStringLiteral("100$1$0$101#%1").arg(AlarmSchemeCommon::ACSAlarmEvent().at(1)),
                          QStringLiteral("100$1$0$101#%1").arg(FirstAbnormal()), Key("100$3$1$103#2")}));
    QCOMPARE(SchemeText::Edited(schemes), QStringList());
    QVERIFY(page.hands.Save());
    QCOMPARE(SchemeText::Keys(host.Kept().schemes), SchemeText::Keys(schemes));
}

void TestPageSelection::theLabelNamesTheEvent()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    const QList<int> types = AlarmSchemeCommon::ACSAlarmEvent();
    for (const int type : types) {
        QVERIFY(page.hands.ClickEvent(type));
        QCOMPARE(page.hands.SettingType(), QCommon::GetAlarmNameByType(type));
    }
}

void TestPageSelection::theLabelNamesTheAlarmInputsEvent()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDevice(Lobby));
    QCOMPARE(page.hands.SettingType(), QCommon::GetAlarmNameByType(2));
}

void TestPageSelection::anEventThatIsCurrentAlreadyChangesNothing()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ToggleSound());
    QVERIFY(page.hands.ClickEvent(FirstAlarm()));
    QVERIFY(page.hands.IsSoundShown());
    QVERIFY(!page.Scheme(Key("100$1$0$101"), FirstAlarm()).bOpenSound);
}

void TestPageSelection::anInputThatIsCurrentAlreadyChangesNothing()
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

void TestPageSelection::hiddenListsAreNotHeard()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ClickCategory("btnNormal"));
    QVERIFY(page.hands.ClickCategory("btnAlarm"));
    Q_EMIT page.hands.List("listNormal")->SignalCurrentItemChanged(QString(), FirstNormal() + 1);
    Q_EMIT page.hands.List("listAbnormal")->SignalCurrentItemChanged(QString(), FirstAbnormal());
    QCOMPARE(page.hands.SettingType(), QCommon::GetAlarmNameByType(FirstAlarm()));
    QVERIFY(page.hands.ClickDevice(Lobby));
    Q_EMIT page.hands.List("listAlarm")->SignalCurrentItemChanged(QString(), FirstAlarm());
    QCOMPARE(page.hands.SettingType(), QCommon::GetAlarmNameByType(2));
    QVERIFY(!page.Holds(Key("100$1$1$0"), FirstAlarm()));
}

void TestPageSelection::hiddenInputsAreNotHeard()
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

void TestPageSelection::aListIsHeardOnceHoweverOftenItWasShown()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    for (int i = 0; i < 5; ++i) {
        QVERIFY(page.hands.ClickCategory("btnNormal"));
        QVERIFY(page.hands.ClickCategory("btnAlarm"));
    }
    QSignalSpy edited(&page.Page(), &ACSEventSchemeEditor::SignalEditedSchemeChanged);
    QVERIFY(page.hands.ClickEvent(AlarmSchemeCommon::ACSAlarmEvent().at(1)));
    QCOMPARE(edited.count(), 1);
}

void TestPageSelection::arrowKeysInTheListChangeTheEvent()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ToggleSound());
    QTest::keyClick(page.hands.List("listAlarm"), Qt::Key_Down);
    QCOMPARE(page.hands.SettingType(), QCommon::GetAlarmNameByType(AlarmSchemeCommon::ACSAlarmEvent().at(1)));
    QVERIFY(!page.hands.IsSoundShown());
    QTest::keyClick(page.hands.List("listAlarm"), Qt::Key_Up);
    QVERIFY(page.hands.IsSoundShown());
}

void TestPageSelection::everySelectionGivesBackItsDeviceAndChannelObjects()
{
    PageHost host;
    OpenPage page(&host.managers);
    for (const int64_t door : {Front, Hatch, Sealed, Loft, Gate})
        QVERIFY(page.hands.ClickDoor(door));
    for (const int64_t device : {Lobby, Vault, Cellar, Attic})
        QVERIFY(page.hands.ClickDevice(device));
    QCOMPARE(host.devices.OutstandingReferences(), 0);
}

void TestPageSelection::theEditedSchemeNamesDoorDeviceAndEvent()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Back));
    const QString door = page.Page().property("editedScheme").toString();
    QVERIFY2(door.contains(QLatin1String("Back Door")), qPrintable(door));
    QVERIFY2(door.contains(QLatin1String("Lobby")), qPrintable(door));
    QVERIFY2(door.contains(QCommon::GetAlarmNameByType(FirstAlarm())), qPrintable(door));
    QVERIFY(page.hands.ClickDevice(Lobby));
    const QString input = page.Page().property("editedScheme").toString();
    QVERIFY2(input.contains(QLatin1String("Window Contact")), qPrintable(input));
    QVERIFY2(input.contains(QCommon::GetAlarmNameByType(2)), qPrintable(input));
}

void TestPageSelection::theEditedSchemeTellsOfEveryChange()
{
    PageHost host;
    OpenPage page(&host.managers);
    const QMetaObject* const pMeta = page.Page().metaObject();
    QVERIFY(pMeta->property(pMeta->indexOfProperty("editedScheme")).hasNotifySignal());
    QSignalSpy told(&page.Page(), &ACSEventSchemeEditor::SignalEditedSchemeChanged);
    QString previous = page.Page().GetEditedScheme();
    const auto tellsNew = [&] {
        const QString now = page.Page().GetEditedScheme();
        const bool bTold =
            now != previous && !told.isEmpty() && told.constLast().constFirst().toString() == now;
        told.clear();
        previous = now;
        return bTold;
    };
    QVERIFY(page.hands.ClickDoor(Front) && tellsNew());
    QVERIFY(page.hands.ClickEvent(AlarmSchemeCommon::ACSAlarmEvent().at(2)) && tellsNew());
    QVERIFY(page.hands.ClickCategory("btnNormal") && tellsNew());
    QVERIFY(page.hands.ClickDevice(Lobby) && tellsNew());
    QVERIFY(page.hands.ClickInput(Key("100$3$1$104")) && tellsNew());
    QVERIFY(page.hands.ClickDoor(Sealed) && tellsNew());
    QVERIFY(page.hands.ClickDoor(Hatch));
    QCOMPARE(told.count(), 0);
}

void TestPageSelection::withoutAnEventTheEditedSchemeNamesThePlace()
{
    PageHost host;
    OpenPage page(&host.managers);
    QCOMPARE(page.Page().GetEditedScheme(), QStringLiteral("No event selected"));
    QVERIFY(page.hands.ClickDevice(Vault)); // without alarm inputs
    QCOMPARE(page.Page().GetEditedScheme(), QStringLiteral("Vault"));
}

void TestPageSelection::separatorsDoNotPileUp()
{
    PageHost host;
    OpenPage page(&host.managers);
    const auto count = [&] {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return page.hands.Widget("wndOption")->findChildren<QWidget*>(QStringLiteral("separator")).size();
    };
    QVERIFY(page.hands.ClickDoor(Front));
    const int atDoor = count();
    for (int i = 0; i < 20; ++i) {
        QVERIFY(page.hands.ClickCategory("btnNormal"));
        QVERIFY(page.hands.ClickDevice(Lobby));
        QVERIFY(page.hands.ClickDoor(Front));
    }
    QCOMPARE(count(), atDoor);
}

void TestPageSelection::theCheckedCategoryIsFollowedByItsContent()
{
    const QStringList categories = DoorCategories();
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    for (const QString& checked : categories) {
        QVERIFY(page.hands.ClickCategory(checked.toLatin1().constData()));
        page.hands.Widget("wndOption")->layout()->activate();
        const QRect content = page.hands.Widget("wndContainer")->geometry();
        bool bAbove = true;
        for (const QString& name : categories) {
            const QRect button = page.hands.Widget(name.toLatin1().constData())->geometry();
            QCOMPARE(button.height(), 40);
            QCOMPARE(button.bottom() < content.top(), bAbove);
            QCOMPARE(button.top() > content.bottom(), !bAbove);
            bAbove = bAbove && name != checked;
        }
    }
}

void TestPageSelection::thePageSaysWhatToDoWhenThereIsNothingToEdit()
{
    PageHost host;
    OpenPage page(&host.managers);
    const auto* const pHint = page.hands.Widget("wndSettings")
                                  ->findChild<QLabel*>(QStringLiteral("lblHint"), Qt::FindDirectChildrenOnly);
    QVERIFY(pHint != nullptr);
    QVERIFY(pHint->isVisible());
    QVERIFY(pHint->text().startsWith(QLatin1String("Select a door or a device")));
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(!pHint->isVisible());
    QVERIFY(page.hands.ClickDevice(Vault));
    QVERIFY(pHint->isVisible());
    QCOMPARE(pHint->text(), QStringLiteral("This device has no alarm inputs."));
    QVERIFY(page.hands.ClickDevice(Lobby));
    QVERIFY(!pHint->isVisible());
    QVERIFY(page.hands.ClickInputDevice());
    QVERIFY(pHint->text().startsWith(QLatin1String("Select an alarm input")));
}

QTEST_MAIN(TestPageSelection)
#include "tst_page_selection.moc"
