#include "AlarmCtrl/QAlarmListItemView.h"
#include "platform/SystemLibrary/QCommon.h"
#include "platform/VantaModel/NodeRoles.h"
#include "scheme_editor/ACSEventSchemeEditor.h"
#include "tests/scheme_editor/OpenPage.h"
#include "tests/scheme_editor/PageHands.h"
#include "tests/scheme_editor/PageHost.h"
#include "tests/scheme_editor/PageSchemes.h"
#include "tests/scheme_editor/SchemeText.h"

#include <QAbstractButton>
#include <QLabel>
#include <QTest>

using namespace PageSchemes;
using namespace PageSite;

/// Where nothing is selected, or nothing that can be configured.
class TestPageNothingToEdit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nothingIsSelectedAtTheStart();
    void thePageSaysWhatToDoWhenThereIsNothingToEdit();
    void thePageSaysWhyWhatIsSelectedCannotBeEdited();
    void anOfflineControllerCanBeConfigured();
    void aDisabledDeviceCannotBeConfigured();
    void aDoorOfADisabledDeviceCannotBeConfigured();
    void aDisabledDoorCannotBeConfigured();
    void aDeviceOfAnotherTypeDisablesThePage();
    void aDeviceThatTheHostRefusesDisablesThePage();
    void aDoorWhoseRecordCannotBeReadDisablesThePage();
    void aDoorWithoutDeviceObjectDisablesThePage();
    void theCategoryButtonsStayVisibleWhileNothingIsSelected();
    void losingTheSelectionShowsADefaultScheme();
    void aSearchThatHidesTheDoorSelectsNothing();
    void theDoorComesBackWithTheEndOfTheSearch();
    void aSearchThatKeepsTheDoorKeepsCategoryAndEvent();
};

void TestPageNothingToEdit::nothingIsSelectedAtTheStart()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(!page.hands.IsColumnEnabled());
    QVERIFY(!page.hands.AreSettingsEnabled());
    QVERIFY(page.Schemes().isEmpty());
    QVERIFY(!page.hands.ClickEvent(FirstAlarm()));
    QVERIFY(!page.hands.ToggleOpen());
}

void TestPageNothingToEdit::thePageSaysWhatToDoWhenThereIsNothingToEdit()
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

void TestPageNothingToEdit::thePageSaysWhyWhatIsSelectedCannotBeEdited()
{
    PageHost host;
    OpenPage page(&host.managers);
    const auto* const pHint = page.hands.Widget("wndSettings")
                                  ->findChild<QLabel*>(QStringLiteral("lblHint"), Qt::FindDirectChildrenOnly);
    QVERIFY(pHint != nullptr);
    QVERIFY(page.hands.ClickDoor(Sealed));
    QVERIFY(pHint->isVisible());
    QVERIFY(pHint->text().startsWith(QLatin1String("This cannot have alarm schemes")));
    QVERIFY(page.hands.ClickDevice(Cellar));
    QVERIFY(pHint->text().startsWith(QLatin1String("This cannot have alarm schemes")));
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(!pHint->isVisible());
    QVERIFY(page.hands.Search(QStringLiteral("Safe Door")));
    QVERIFY(pHint->text().startsWith(QLatin1String("Select a door or a device")));
}

void TestPageNothingToEdit::anOfflineControllerCanBeConfigured()
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

void TestPageNothingToEdit::aDisabledDeviceCannotBeConfigured()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDevice(Lobby));
    QVERIFY(page.hands.ClickDevice(Cellar));
    QVERIFY(!page.hands.IsColumnEnabled());
    QVERIFY(!page.hands.AreSettingsEnabled());
    QCOMPARE(SchemeText::KeysOfDevice(page.Schemes(), Cellar), QStringList());
}

void TestPageNothingToEdit::aDoorOfADisabledDeviceCannotBeConfigured()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ClickDoor(Hatch));
    QVERIFY(!page.hands.IsColumnEnabled());
    QVERIFY(!page.hands.AreSettingsEnabled());
    QCOMPARE(SchemeText::KeysOfDevice(page.Schemes(), Cellar), QStringList());
}

void TestPageNothingToEdit::aDisabledDoorCannotBeConfigured()
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

void TestPageNothingToEdit::aDeviceOfAnotherTypeDisablesThePage()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDevice(Lobby));
    host.devices.types.insert(Vault, VantaLogic::DeviceTypeAlarmHost);
    QVERIFY(page.hands.ClickDevice(Vault));
    QVERIFY(!page.hands.IsColumnEnabled());
    QVERIFY(!page.hands.AreSettingsEnabled());
}

void TestPageNothingToEdit::aDeviceThatTheHostRefusesDisablesThePage()
{
    PageHost host;
    OpenPage page(&host.managers);
    host.devices.refusedDevices.insert(Lobby);
    QVERIFY(page.hands.ClickDevice(Lobby));
    QVERIFY(!page.hands.IsColumnEnabled());
    QVERIFY(!page.hands.AreSettingsEnabled());
    QVERIFY(page.Schemes().isEmpty());
}

void TestPageNothingToEdit::aDoorWhoseRecordCannotBeReadDisablesThePage()
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

void TestPageNothingToEdit::aDoorWithoutDeviceObjectDisablesThePage()
{
    PageHost host;
    OpenPage page(&host.managers);
    host.devices.goneObjects.insert(Lobby);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(!page.hands.IsColumnEnabled());
    QVERIFY(page.Schemes().isEmpty());
}

void TestPageNothingToEdit::theCategoryButtonsStayVisibleWhileNothingIsSelected()
{
    const QStringList categories = PageHands::DoorCategories();
    PageHost host;
    OpenPage page(&host.managers);
    for (const QString& name : categories)
        QVERIFY(page.hands.VisibleCategories().contains(name));
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ClickDoor(Sealed));
    QCOMPARE(page.hands.VisibleCategories(), PageHands::DoorCategories());
    QVERIFY(page.hands.ClickDevice(Lobby));
    QVERIFY(page.hands.ClickDoor(Sealed));
    QCOMPARE(page.hands.VisibleCategories(), PageHands::DeviceCategories());
}

void TestPageNothingToEdit::losingTheSelectionShowsADefaultScheme()
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

void TestPageNothingToEdit::aSearchThatHidesTheDoorSelectsNothing()
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

void TestPageNothingToEdit::theDoorComesBackWithTheEndOfTheSearch()
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
    QCOMPARE(page.hands.VisibleCategories(), PageHands::DoorCategories());
    QVERIFY(page.hands.ClickCategory("btnNormal"));
    QVERIFY(page.hands.IsOpenShown());
}

void TestPageNothingToEdit::aSearchThatKeepsTheDoorKeepsCategoryAndEvent()
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

QTEST_MAIN(TestPageNothingToEdit)
#include "tst_page_nothing_to_edit.moc"
