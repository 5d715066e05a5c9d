#include "AlarmCtrl/QAlarmListItemView.h"
#include "platform/SystemLibrary/AlarmSchemeCommon.h"
#include "platform/SystemLibrary/QCommon.h"
#include "platform/VantaComponent/GroupTreeCtrl.h"
#include "scheme_editor/ACSEventSchemeEditor.h"
#include "tests/scheme_editor/OpenPage.h"
#include "tests/scheme_editor/PageHands.h"
#include "tests/scheme_editor/PageHost.h"
#include "tests/scheme_editor/PageSchemes.h"
#include "tests/scheme_editor/SchemeText.h"

#include <QAbstractButton>
#include <QLayout>
#include <QSignalSpy>
#include <QTest>
#include <QTreeWidget>

using namespace PageSchemes;
using namespace PageSite;

/// From a selection to the scheme that is edited.
class TestPageSelection : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aDoorIsKeptUnderDeviceOneZeroChannel();
    void aDoorOffersThreeCategoriesAndShowsTheFirst();
    void eachCategoryButtonShowsItsContentOnly();
    void aCategoryTakesTheCurrentEventOfItsList();
    void clickingTheSameDoorAgainKeepsCategoryAndEvent();
    void clickingTheSameDoorAgainDoesNotStore();
    void browsingAddsDefaultEntries();
    void theLabelNamesTheEvent();
    void anEventThatIsCurrentAlreadyChangesNothing();
    void hiddenListsAreNotHeard();
    void aListIsHeardOnceHoweverOftenItWasShown();
    void arrowKeysInTheListChangeTheEvent();
    void everySelectionGivesBackItsDeviceAndChannelObjects();
    void theEditedSchemeNamesDoorDeviceAndEvent();
    void theEditedSchemeTellsOfEveryChange();
    void withoutAnEventTheEditedSchemeNamesThePlace();
    void separatorsDoNotPileUp();
    void theCheckedCategoryIsFollowedByItsContent();
};

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
    QCOMPARE(page.hands.VisibleCategories(), PageHands::DoorCategories());
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
    const QString door = page.byName.EditedScheme();
    QVERIFY2(door.contains(QLatin1String("Back Door")), qPrintable(door));
    QVERIFY2(door.contains(QLatin1String("Lobby")), qPrintable(door));
    QVERIFY2(door.contains(QCommon::GetAlarmNameByType(FirstAlarm())), qPrintable(door));
    QVERIFY(page.hands.ClickDevice(Lobby));
    const QString input = page.byName.EditedScheme();
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
    const QStringList categories = PageHands::DoorCategories();
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

QTEST_MAIN(TestPageSelection)
#include "tst_page_selection.moc"
