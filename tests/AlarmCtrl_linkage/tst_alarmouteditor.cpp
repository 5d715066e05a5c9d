#include "tests/AlarmCtrl_linkage/OutEditorDesk.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QIntValidator>
#include <QTest>
#include <QTreeView>

using namespace OutEditor;

/// The editor of linked outputs: its form, and what ticks and clicks do.
class TestAlarmOutEditor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // The form
    void theFormHasItsStatedNamesTextsAndSizes();
    void theLayoutsHaveTheirStatedSpacingsAndMargins();
    void theToolTipTellsTheBounds();
    void theControlsAreNamedByTheirLabels();
    void aFreshEditorHasADisabledEmptyPanel();
    void theTreeOffersOnlyOutputsOfDevicesThatAreNotVirtual();
    void theSlotsAreKnownByTheirSignatures();

    // Ticking
    void tickingAnOutputPicksItWithDefaults();
    void untickingAndTickingAgainResetsToDefaults();
    void tickingAParentKeepsTheSettingsOfPickedOutputs();
    void untickingAParentDropsEveryOutputUnderIt();
    void outputsOfADisabledDeviceAreNotPicked();
    void anOutputOfADeviceDisabledLaterIsDroppedWhenItsBoxChanges();
    void anOutputOfAnOfflineDeviceIsPickedAndStays();
    void theSelectedItemTakesTheNewStateNotTheItemAtTheIndex();
    void aChangeWithoutASelectedItemTouchesNoBox();
    void tickingLeavesThePanelAlone();
    void anInvalidIndexPicksNothing();

    // Clicking
    void clickingAPickedOutputShowsItsSettings();
    void clickingAnOutputThatIsNotPickedEmptiesThePanel();
    void clickingADeviceEmptiesThePanel();
    void clickingAPickedOutputOfADisabledDeviceEmptiesThePanel();
    void theSwitchWritesIntoTheShownOutputOnly();
    void theSwitchWritesNothingWithoutAShownOutput();

    // Host
    void withoutADeviceManagerNothingIsOfferedAndNothingReturned();
    void settingEnabledFalseEmptiesThePanel();
    void removingTheShownOutputsDeviceLeavesNothingDangling();
    void aRealClickOnACheckBoxPicksAndShowsTheOutput();
};

void TestAlarmOutEditor::theFormHasItsStatedNamesTextsAndSizes()
{
    Desk desk;
    QCOMPARE(desk.editor.objectName(), QStringLiteral("QAlarmOutEditor"));
    QCOMPARE(desk.editor.size(), QSize(1075, 623));
    QCOMPARE(desk.editor.windowTitle(), QStringLiteral("Form"));
    const auto* const wndTree = desk.editor.findChild<QWidget*>(QStringLiteral("wndTree"));
    QVERIFY(wndTree != nullptr);
    QCOMPARE(wndTree->minimumSize(), QSize(200, 0));
    QCOMPARE(wndTree->maximumSize(), QSize(200, 16777215));
    QCOMPARE(desk.toggle->minimumSize(), QSize(36, 0));
    QCOMPARE(desk.toggle->maximumSize(), QSize(36, 16777215));
    QCOMPARE(desk.time->maximumWidth(), 120);
    const auto text = [&desk](const char* szName) {
        return desk.panel->findChild<QLabel*>(QLatin1String(szName))->text();
    };
    QCOMPARE(text("label"), QStringLiteral("Auto Open:"));
    QCOMPARE(text("label_2"), QStringLiteral("Last Time:"));
    QCOMPARE(text("label_3"), QStringLiteral("Seconds"));
    QCOMPARE(desk.hand.Tree()->parentWidget(), wndTree);
}

void TestAlarmOutEditor::theLayoutsHaveTheirStatedSpacingsAndMargins()
{
    Desk desk;
    const auto layout = [&desk](const char* szName) {
        return desk.editor.findChild<QBoxLayout*>(QLatin1String(szName));
    };
    QCOMPARE(layout("horizontalLayout_4")->spacing(), 10);
    QCOMPARE(layout("horizontalLayout_4")->contentsMargins(), QMargins(10, 10, 10, 10));
    QCOMPARE(layout("verticalLayout")->spacing(), 10);
    QCOMPARE(layout("verticalLayout")->contentsMargins(), QMargins());
    QCOMPARE(layout("horizontalLayout_2")->spacing(), 10);
    QVERIFY(layout("horizontalLayout_3") != nullptr);
    QVERIFY(layout("horizontalLayout") != nullptr);
    const QLayout* const pTreeLayout = desk.hand.Tree()->parentWidget()->layout();
    QVERIFY(qobject_cast<const QHBoxLayout*>(pTreeLayout) != nullptr);
    QCOMPARE(pTreeLayout->contentsMargins(), QMargins(1, 1, 1, 1));
    QCOMPARE(pTreeLayout->spacing(), 0);
    // Three rows and the spacer.
    QCOMPARE(layout("verticalLayout")->count(), 4);
    QCOMPARE(layout("verticalLayout")->itemAt(3)->spacerItem()->sizeHint(), QSize(20, 502));
    QCOMPARE(layout("horizontalLayout_4")->count(), 2);
}

void TestAlarmOutEditor::theToolTipTellsTheBounds()
{
    Desk desk;
    QCOMPARE(desk.time->toolTip(), QStringLiteral("5s - 43200s"));
    const auto* const validator = qobject_cast<const QIntValidator*>(desk.time->validator());
    QVERIFY(validator != nullptr);
    QCOMPARE(validator->bottom(), 5);
    QCOMPARE(validator->top(), 43200);
}

void TestAlarmOutEditor::theControlsAreNamedByTheirLabels()
{
    Desk desk;
    const auto name = [](QWidget* pWidget) {
        return QAccessible::queryAccessibleInterface(pWidget)->text(QAccessible::Name);
    };
    QCOMPARE(name(desk.toggle), QStringLiteral("Auto Open:"));
    QCOMPARE(name(desk.time), QStringLiteral("Last Time:"));
}

void TestAlarmOutEditor::aFreshEditorHasADisabledEmptyPanel()
{
    Desk desk;
    QVERIFY(!desk.panel->isEnabled());
    QVERIFY(desk.IsPanelEmpty());
    QVERIFY(!desk.hint->isHidden());
    QVERIFY(!desk.hint->text().isEmpty());
    QVERIFY(desk.hint->isEnabled());
    QVERIFY(desk.Links().isEmpty());
}

void TestAlarmOutEditor::theTreeOffersOnlyOutputsOfDevicesThatAreNotVirtual()
{
    Desk desk(TestSite::EveryTypeAndKind());
    for (int type = 0; type <= 18; ++type) {
        QCOMPARE(desk.hand.Device(TestSite::DeviceOfType(type)) != nullptr, type != 16);
        for (int kind = 0; kind <= 6; ++kind)
            QCOMPARE(desk.hand.Channel(TestSite::ChannelOf(type, kind)) != nullptr, type != 16 && kind == 4);
    }
}

void TestAlarmOutEditor::theSlotsAreKnownByTheirSignatures()
{
    const QMetaObject& meta = QAlarmOutEditor::staticMetaObject;
    for (const char* const signature :
         {"OnGroupTreeChkChanged(QModelIndex,bool)", "OnGroupTreeClicked(QModelIndex,int)",
          "OnSearchChanged()", "OnToolBtnClicked()", "OnTimeEdited()"}) {
        const int index = meta.indexOfSlot(signature);
        QVERIFY2(index >= meta.methodOffset(), signature);
    }
    const int checked = meta.indexOfSlot("OnGroupTreeChkChanged(QModelIndex,bool)");
    QCOMPARE(meta.method(checked).parameterNames(), QList<QByteArray>({"iIndex", "bCheck"}));
}

void TestAlarmOutEditor::tickingAnOutputPicksItWithDefaults()
{
    Desk desk;
    QVERIFY(desk.hand.TickChannel(11));
    QCOMPARE(desk.Links(), Lines({"11$3$0$0 auto 20"}));
}

void TestAlarmOutEditor::untickingAndTickingAgainResetsToDefaults()
{
    Desk desk;
    desk.editor.SetAlarmOutInfo({Link("11$3$0$0", false, 45)});
    QVERIFY(desk.hand.TickChannel(11, false));
    QVERIFY(desk.Links().isEmpty());
    QVERIFY(desk.hand.TickChannel(11, true));
    QCOMPARE(desk.Links(), Lines({"11$3$0$0 auto 20"}));
}

void TestAlarmOutEditor::tickingAParentKeepsTheSettingsOfPickedOutputs()
{
    Desk desk;
    desk.editor.SetAlarmOutInfo({Link("12$3$0$0", false, 45)});
    QVERIFY(desk.hand.TickDevice(1));
    QCOMPARE(desk.Links(), Lines({"11$3$0$0 auto 20", "12$3$0$0 manual 45"}));
}

void TestAlarmOutEditor::untickingAParentDropsEveryOutputUnderIt()
{
    Desk desk;
    desk.editor.SetAlarmOutInfo(
        {Link("11$3$0$0", true, 20), Link("12$3$0$0", true, 20), Link("21$3$0$0", true, 30)});
    QVERIFY(desk.hand.TickDevice(1, false));
    QCOMPARE(desk.Links(), Lines({"21$3$0$0 auto 30"}));
}

void TestAlarmOutEditor::outputsOfADisabledDeviceAreNotPicked()
{
    Desk desk;
    desk.host.manager.SetDeviceEnabled(1, false);
    QVERIFY(desk.hand.TickChannel(11));
    QVERIFY(desk.Links().isEmpty());
}

void TestAlarmOutEditor::anOutputOfADeviceDisabledLaterIsDroppedWhenItsBoxChanges()
{
    Desk desk;
    desk.editor.SetAlarmOutInfo({Link("11$3$0$0", false, 45), Link("21$3$0$0", true, 20)});
    desk.host.manager.SetDeviceEnabled(1, false);
    QCOMPARE(desk.Links().size(), 2); // looking drops nothing
    QVERIFY(desk.hand.TickDevice(1, true));
    QCOMPARE(desk.Links(), Lines({"21$3$0$0 auto 20"}));
}

void TestAlarmOutEditor::anOutputOfAnOfflineDeviceIsPickedAndStays()
{
    Desk desk;
    desk.host.manager.SetDeviceOnline(1, false);
    QVERIFY(desk.hand.TickChannel(11));
    QCOMPARE(desk.Links(), Lines({"11$3$0$0 auto 20"}));
    QVERIFY(desk.panel->isEnabled());
}

void TestAlarmOutEditor::theSelectedItemTakesTheNewStateNotTheItemAtTheIndex()
{
    Desk desk;
    QVERIFY(desk.hand.Tree()->SelectNode(21, VantaModel::NodeKindChannel));
    Q_EMIT desk.hand.Tree()->SignalChecked(desk.hand.Channel(11)->index(), true);
    QCOMPARE(desk.State(21), Qt::Checked);
    QCOMPARE(desk.State(11), Qt::Unchecked);
    // The outputs are read under the index, where nothing is ticked.
    QVERIFY(desk.Links().isEmpty());
}

void TestAlarmOutEditor::aChangeWithoutASelectedItemTouchesNoBox()
{
    Desk desk;
    QVERIFY(desk.hand.Tree()->GetSelectedItem() == nullptr);
    Q_EMIT desk.hand.Tree()->SignalChecked(desk.hand.Channel(11)->index(), true);
    QCOMPARE(desk.State(11), Qt::Unchecked);
    QVERIFY(desk.Links().isEmpty());
}

void TestAlarmOutEditor::tickingLeavesThePanelAlone()
{
    Desk desk;
    desk.editor.SetAlarmOutInfo({Link("11$3$0$0", true, 45)});
    QVERIFY(desk.hand.ClickChannel(11));
    QCOMPARE(desk.time->text(), QStringLiteral("45"));
    QStandardItem* const pOther = desk.hand.Channel(12);
    Q_EMIT desk.hand.Tree()->SignalChecked(pOther->index(), true);
    QVERIFY(desk.panel->isEnabled());
    QVERIFY(desk.toggle->isToggled());
    QCOMPARE(desk.time->text(), QStringLiteral("45"));
}

void TestAlarmOutEditor::anInvalidIndexPicksNothing()
{
    Desk desk;
    Q_EMIT desk.hand.Tree()->SignalChecked(QModelIndex(), true);
    QVERIFY(desk.Links().isEmpty());
}

void TestAlarmOutEditor::clickingAPickedOutputShowsItsSettings()
{
    Desk desk;
    desk.editor.SetAlarmOutInfo({Link("11$3$0$0", true, 45), Link("12$3$0$0", false, 90)});
    QVERIFY(desk.hand.ClickChannel(11));
    QVERIFY(desk.panel->isEnabled());
    QVERIFY(desk.toggle->isToggled());
    QCOMPARE(desk.time->text(), QStringLiteral("45"));
    QVERIFY(desk.hint->isHidden());
    QVERIFY(desk.hand.ClickChannel(12));
    QVERIFY(!desk.toggle->isToggled());
    QCOMPARE(desk.time->text(), QStringLiteral("90"));
}

void TestAlarmOutEditor::clickingAnOutputThatIsNotPickedEmptiesThePanel()
{
    Desk desk;
    desk.editor.SetAlarmOutInfo({Link("11$3$0$0", true, 45)});
    QVERIFY(desk.hand.ClickChannel(11));
    QVERIFY(desk.hand.ClickChannel(12));
    QVERIFY(!desk.panel->isEnabled());
    QVERIFY(desk.IsPanelEmpty());
    QVERIFY(!desk.hint->isHidden());
}

void TestAlarmOutEditor::clickingADeviceEmptiesThePanel()
{
    Desk desk;
    desk.editor.SetAlarmOutInfo({Link("1$3$0$0", true, 45), Link("11$3$0$0", true, 45)});
    QVERIFY(desk.hand.ClickChannel(11));
    QVERIFY(desk.hand.Click(1, VantaModel::NodeKindDevice));
    QVERIFY(!desk.panel->isEnabled());
    QVERIFY(desk.IsPanelEmpty());
}

void TestAlarmOutEditor::clickingAPickedOutputOfADisabledDeviceEmptiesThePanel()
{
    Desk desk;
    desk.editor.SetAlarmOutInfo({Link("11$3$0$0", true, 45)});
    desk.host.manager.SetDeviceEnabled(1, false);
    QVERIFY(desk.hand.ClickChannel(11));
    QVERIFY(!desk.panel->isEnabled());
    QVERIFY(desk.IsPanelEmpty());
}

void TestAlarmOutEditor::theSwitchWritesIntoTheShownOutputOnly()
{
    Desk desk;
    desk.editor.SetAlarmOutInfo({Link("11$3$0$0", true, 45), Link("12$3$0$0", true, 90)});
    QVERIFY(desk.hand.ClickChannel(11));
    desk.toggle->click();
    QCOMPARE(desk.Links(), Lines({"11$3$0$0 manual 45", "12$3$0$0 auto 90"}));
    QVERIFY(desk.hand.ClickChannel(12)); // showing another one writes nothing
    QCOMPARE(desk.Links(), Lines({"11$3$0$0 manual 45", "12$3$0$0 auto 90"}));
}

void TestAlarmOutEditor::theSwitchWritesNothingWithoutAShownOutput()
{
    Desk desk;
    desk.editor.SetAlarmOutInfo({Link("11$3$0$0", false, 45), Link("", false, 45)});
    desk.editor.SetSettingEnabled(true);
    desk.toggle->click();
    QCOMPARE(desk.Links(), Lines({"11$3$0$0 manual 45"}));
}

void TestAlarmOutEditor::withoutADeviceManagerNothingIsOfferedAndNothingReturned()
{
    HostServices::FillTable({});
    QAlarmOutEditor editor;
    editor.SetAlarmOutInfo({Link("11$3$0$0", true, 45)});
    QList<AlarmLinkAlarmOut> links;
    QCOMPARE(editor.GetAlarmOutInfo(links), 0);
    QVERIFY(links.isEmpty());
    auto* const pTree = editor.findChild<VantaComponent::GroupTreeCtrl*>();
    Q_EMIT pTree->SignalClicked(QModelIndex(), 0);
    Q_EMIT pTree->SignalChecked(QModelIndex(), true);
    QVERIFY(!editor.findChild<QWidget*>(QStringLiteral("wndSetting"))->isEnabled());
}

void TestAlarmOutEditor::settingEnabledFalseEmptiesThePanel()
{
    Desk desk;
    desk.editor.SetAlarmOutInfo({Link("11$3$0$0", true, 45)});
    QVERIFY(desk.hand.ClickChannel(11));
    desk.editor.SetSettingEnabled(false);
    QVERIFY(!desk.panel->isEnabled());
    QVERIFY(desk.IsPanelEmpty());
    desk.editor.SetSettingEnabled(true);
    QVERIFY(desk.panel->isEnabled());
    QVERIFY(desk.IsPanelEmpty()); // enabling brings nothing back
    QCOMPARE(desk.Links(), Lines({"11$3$0$0 auto 45"}));
}

void TestAlarmOutEditor::removingTheShownOutputsDeviceLeavesNothingDangling()
{
    Desk desk;
    desk.editor.SetAlarmOutInfo({Link("11$3$0$0", true, 45), Link("21$3$0$0", true, 20)});
    QVERIFY(desk.hand.ClickChannel(11));
    QVERIFY(desk.host.manager.RemoveDevice(1));
    QVERIFY(desk.hand.Tree()->GetSelectedItem() == nullptr);
    Q_EMIT desk.hand.Tree()->SignalClicked(QModelIndex(), 0);
    QVERIFY(!desk.panel->isEnabled());
    desk.editor.SetAlarmOutInfo({Link("11$3$0$0", true, 45), Link("21$3$0$0", true, 20)});
    QCOMPARE(desk.Links(), Lines({"21$3$0$0 auto 20"}));
}

void TestAlarmOutEditor::aRealClickOnACheckBoxPicksAndShowsTheOutput()
{
    Desk desk;
    desk.editor.show();
    QVERIFY(QTest::qWaitForWindowExposed(&desk.editor));
    auto* const view = desk.hand.Tree()->findChild<QTreeView*>();
    QVERIFY(view != nullptr);
    view->expandAll();
    // The row of output 12, wherever the view has put it.
    QModelIndex row;
    for (QModelIndex index = view->model()->index(0, 0); index.isValid(); index = view->indexBelow(index)) {
        if (index.data(VantaModel::NodeIdRole).toLongLong() == 12)
            row = index;
    }
    QVERIFY(row.isValid());
    QStyleOptionViewItem option;
    option.initFrom(view);
    option.rect = view->visualRect(row);
    option.features = QStyleOptionViewItem::HasCheckIndicator | QStyleOptionViewItem::HasDisplay;
    const QRect box = view->style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, view);
    QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::NoModifier, box.center());
    QCOMPARE(desk.Links(), Lines({"12$3$0$0 auto 20"}));
    QVERIFY(desk.panel->isEnabled());
    QCOMPARE(desk.time->text(), QStringLiteral("20"));
    QVERIFY(desk.toggle->isToggled());
    QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::NoModifier, box.center());
    QVERIFY(desk.Links().isEmpty());
    QVERIFY(!desk.panel->isEnabled());
}

QTEST_MAIN(TestAlarmOutEditor)
#include "tst_alarmouteditor.moc"
