#include "AlarmCtrl/QAlarmOutEditor.h"
#include "platform/LXGUI/LXLineEdit.h"
#include "platform/LXGUI/LXSwitchButton.h"
#include "tests/AlarmCtrl_linkage/SiteHost.h"

#include <QAccessible>
#include <QFocusEvent>
#include <QHBoxLayout>
#include <QIntValidator>
#include <QLabel>
#include <QSignalSpy>
#include <QTest>
#include <QTreeView>

namespace {

// Device 1 (access control): outputs 11 and 12, door 13. Device 2 (alarm host): output 21. Device 3 (type
// 16): output 31.
Site TwoControllers()
{
    Site site;
    VantaLogic::DeviceInfo first = TestSite::Device(1, VantaLogic::DeviceTypeAccessControl);
    TestSite::AddChannel(first, 11, VantaLogic::ChannelTypeAlarmOutput, 1);
    TestSite::AddChannel(first, 12, VantaLogic::ChannelTypeAlarmOutput, 2);
    TestSite::AddChannel(first, 13, VantaLogic::ChannelTypeDoor, 1);
    VantaLogic::DeviceInfo second = TestSite::Device(2, VantaLogic::DeviceTypeAlarmHost);
    TestSite::AddChannel(second, 21, VantaLogic::ChannelTypeAlarmOutput, 1);
    VantaLogic::DeviceInfo third = TestSite::Device(3, VantaLogic::DeviceTypeVirtual);
    TestSite::AddChannel(third, 31, VantaLogic::ChannelTypeAlarmOutput, 1);
    site.devices = {first, second, third};
    return site;
}

AlarmLinkAlarmOut Link(const char* szKey, bool bAutoOpen, int iTime)
{
    return {QLatin1String(szKey), bAutoOpen, iTime};
}

// "key auto time" of each link, for comparing whole lists.
QStringList Text(const QList<AlarmLinkAlarmOut>& links)
{
    QStringList texts;
    for (const AlarmLinkAlarmOut& link : links) {
        texts.append(
            QStringLiteral("%1 %2 %3")
                .arg(link.strLinkAlarmID, link.bAutoOpen ? QStringLiteral("auto") : QStringLiteral("manual"))
                .arg(link.Time));
    }
    return texts;
}

QStringList Lines(std::initializer_list<const char*> lines)
{
    QStringList texts;
    for (const char* const line : lines)
        texts.append(QLatin1String(line));
    return texts;
}

/// An editor over a site, and what a person sees and does.
struct Desk
{
    explicit Desk(const Site& site = TwoControllers())
        : host(site)
        , hand(editor)
        , panel(editor.findChild<QWidget*>(QStringLiteral("wndSetting")))
        , toggle(editor.findChild<LXGUI::LXSwitchButton*>(QStringLiteral("btnAutoOpen")))
        , time(editor.findChild<LXGUI::LXLineEdit*>(QStringLiteral("edtTime")))
        , hint(editor.findChild<QLabel*>(QStringLiteral("lblHint")))
    {
    }

    QStringList Links()
    {
        QList<AlarmLinkAlarmOut> links;
        editor.GetAlarmOutInfo(links);
        return Text(links);
    }
    bool IsPanelEmpty() const { return !toggle->isToggled() && time->text().isEmpty(); }
    void Type(const char* szText) const
    {
        time->selectAll();
        QTest::keyClicks(time, QLatin1String(szText));
    }
    void ClearAndLeave() const
    {
        time->selectAll();
        QTest::keyClick(time, Qt::Key_Delete);
        Leave();
    }
    void Leave() const
    {
        QFocusEvent out(QEvent::FocusOut);
        QCoreApplication::sendEvent(time, &out);
    }
    void Search(const char* szText) const
    {
        hand.Tree()->findChild<QLineEdit*>(QStringLiteral("edtSearch"))->setText(QLatin1String(szText));
    }
    Qt::CheckState State(int64_t iChannelId) const { return hand.Channel(iChannelId)->checkState(); }

    SiteHost host;
    QAlarmOutEditor editor;
    TreeHand hand;
    QWidget* panel;
    LXGUI::LXSwitchButton* toggle;
    LXGUI::LXLineEdit* time;
    QLabel* hint;
};

} // namespace

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

    // Time
    void anOverlongTimeLosesItsLastDigit_data();
    void anOverlongTimeLosesItsLastDigit();
    void aTimeBelowFiveIsNotStoredAndUndoneOnLeaving();
    void anEmptyTimeIsNotStoredAndUndoneOnLeaving();
    void theBoundsThemselvesAreStored_data();
    void theBoundsThemselvesAreStored();
    void theFieldRefusesAnythingButPlainDigits_data();
    void theFieldRefusesAnythingButPlainDigits();
    void leavingWithoutAShownOutputChangesNothing();
    void aDesktopWithGroupSeparatorsChangesNothing();

    // Setting and reading
    void settingAListTicksItsOutputsAndNoOthers();
    void settingAnEmptyListUnticksEverythingAndDisablesThePanel();
    void theLastOfTwoLinksWithOneKeyWins();
    void theResultIsInTheOrderOfTheKeyTexts();
    void readingClearsTheListFirst();
    void theShownOutputSurvivesANewList();
    void theShownOutputDroppedByANewListShowsNothing();
    void anOutputDeletedFromTheSiteIsLeftOutButKept();
    void aChannelThatIsNoOutputIsLeftOut();
    void malformedKeysAreLeftOutAndTickNothing_data();
    void malformedKeysAreLeftOutAndTickNothing();
    void anotherSpellingOfAnOutputsNumberDoesNotTickIt();
    void anOfflineDeviceLosesNoLinkByBeingLookedAt();
    void partlyPickedDevicesShowAPartialBox();
    void boxesThatAreRightAlreadyAreNotTouched();
    void showingTheSameSchemeAmongFortyThousandOutputsChangesNoItem();
    void aKeyYieldsItsChannelOnlyWhenWellFormed_data();
    void aKeyYieldsItsChannelOnlyWhenWellFormed();

    // Searching
    void afterASearchThePanelIsEmptyAndSaysWhatToDo();
    void aSearchPutsBoxesBackInLineWithThePickedOutputs();
    void switchingAfterASearchStillWritesIntoTheCurrentOutput();
    void aTypedSearchThatHidesTheOutputDisablesThePanelUntilItReappears();
    void tickingADeviceUnderASearchTouchesShownOutputsOnly();
    void aSchemeShownUnderASearchTicksHiddenOutputsToo();

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

void TestAlarmOutEditor::anOverlongTimeLosesItsLastDigit_data()
{
    QTest::addColumn<QByteArray>("typed");
    QTest::addColumn<int>("left");
    QTest::newRow("one more than allowed") << QByteArray("43201") << 4320;
    QTest::newRow("fifty thousand") << QByteArray("50000") << 5000;
    QTest::newRow("five nines") << QByteArray("99999") << 9999;
}

void TestAlarmOutEditor::anOverlongTimeLosesItsLastDigit()
{
    QFETCH(QByteArray, typed);
    QFETCH(int, left);
    Desk desk;
    desk.editor.SetAlarmOutInfo({Link("11$3$0$0", true, 45)});
    QVERIFY(desk.hand.ClickChannel(11));
    desk.Type(typed.constData());
    QCOMPARE(desk.time->text(), QString::number(left));
    QCOMPARE(desk.Links(), QStringList(QStringLiteral("11$3$0$0 auto %1").arg(left)));
}

void TestAlarmOutEditor::aTimeBelowFiveIsNotStoredAndUndoneOnLeaving()
{
    Desk desk;
    desk.editor.SetAlarmOutInfo({Link("11$3$0$0", true, 45)});
    QVERIFY(desk.hand.ClickChannel(11));
    desk.Type("3");
    QCOMPARE(desk.time->text(), QStringLiteral("3"));
    QCOMPARE(desk.Links(), Lines({"11$3$0$0 auto 45"}));
    desk.Leave();
    QCOMPARE(desk.time->text(), QStringLiteral("45"));
    desk.Type("0");
    desk.Leave();
    QCOMPARE(desk.time->text(), QStringLiteral("45"));
    QCOMPARE(desk.Links(), Lines({"11$3$0$0 auto 45"}));
}

void TestAlarmOutEditor::anEmptyTimeIsNotStoredAndUndoneOnLeaving()
{
    Desk desk;
    desk.editor.SetAlarmOutInfo({Link("11$3$0$0", true, 45)});
    QVERIFY(desk.hand.ClickChannel(11));
    desk.ClearAndLeave();
    QCOMPARE(desk.time->text(), QStringLiteral("45"));
    QCOMPARE(desk.Links(), Lines({"11$3$0$0 auto 45"}));
}

void TestAlarmOutEditor::theBoundsThemselvesAreStored_data()
{
    QTest::addColumn<int>("seconds");
    QTest::newRow("least") << 5;
    QTest::newRow("most") << 43200;
}

void TestAlarmOutEditor::theBoundsThemselvesAreStored()
{
    QFETCH(int, seconds);
    Desk desk;
    desk.editor.SetAlarmOutInfo({Link("11$3$0$0", true, 45)});
    QVERIFY(desk.hand.ClickChannel(11));
    desk.Type(QByteArray::number(seconds).constData());
    desk.Leave();
    QCOMPARE(desk.time->text(), QString::number(seconds));
    QCOMPARE(desk.Links(), QStringList(QStringLiteral("11$3$0$0 auto %1").arg(seconds)));
}

void TestAlarmOutEditor::theFieldRefusesAnythingButPlainDigits_data()
{
    QTest::addColumn<QString>("pasted");
    QTest::newRow("group separator") << QStringLiteral("1,000");
    QTest::newRow("point") << QStringLiteral("1.000");
    QTest::newRow("leading blank") << QStringLiteral(" 45");
    QTest::newRow("trailing blank") << QStringLiteral("45 ");
    QTest::newRow("blank within") << QStringLiteral("4 5");
    QTest::newRow("no-break blank") << QString(QChar(0xa0)) + QStringLiteral("45");
    QTest::newRow("new line") << QStringLiteral("45\n");
    QTest::newRow("Arabic-Indic digits") << QString(QChar(0x0664)) + QChar(0x0665);
    QTest::newRow("full-width digits") << QString(QChar(0xff14)) + QChar(0xff15);
    QTest::newRow("negative") << QStringLiteral("-45");
    QTest::newRow("hexadecimal") << QStringLiteral("0x45");
    QTest::newRow("exponent") << QStringLiteral("1e3");
    QTest::newRow("letters") << QStringLiteral("soon");
    QTest::newRow("beyond 64 bits") << QStringLiteral("99999999999999999999");
}

void TestAlarmOutEditor::theFieldRefusesAnythingButPlainDigits()
{
    QFETCH(QString, pasted);
    Desk desk;
    desk.editor.SetAlarmOutInfo({Link("11$3$0$0", true, 77)});
    QVERIFY(desk.hand.ClickChannel(11));
    desk.time->selectAll();
    desk.time->insert(pasted); // what pasting does
    desk.Leave();
    QCOMPARE(desk.time->text(), QStringLiteral("77"));
    QCOMPARE(desk.Links(), Lines({"11$3$0$0 auto 77"}));
    // Even where such a text stands in the field by other means, it is not taken.
    desk.time->setText(pasted);
    Q_EMIT desk.time->textEdited(desk.time->text());
    QCOMPARE(desk.Links(), Lines({"11$3$0$0 auto 77"}));
    desk.Leave();
    QCOMPARE(desk.time->text(), QStringLiteral("77"));
}

void TestAlarmOutEditor::leavingWithoutAShownOutputChangesNothing()
{
    Desk desk;
    desk.editor.SetAlarmOutInfo({Link("11$3$0$0", true, 45)});
    desk.time->setText(QStringLiteral("3"));
    desk.Leave();
    QCOMPARE(desk.time->text(), QStringLiteral("3"));
    QCOMPARE(desk.Links(), Lines({"11$3$0$0 auto 45"}));
}

void TestAlarmOutEditor::aDesktopWithGroupSeparatorsChangesNothing()
{
    const QLocale before;
    for (const QLocale& locale :
         {QLocale(QLocale::English, QLocale::UnitedStates), QLocale(QLocale::German, QLocale::Germany),
          QLocale(QLocale::Arabic, QLocale::Egypt)}) {
        QLocale::setDefault(locale);
        Desk desk;
        desk.editor.SetAlarmOutInfo({Link("11$3$0$0", true, 12345)});
        QVERIFY(desk.hand.ClickChannel(11));
        QCOMPARE(desk.time->text(), QStringLiteral("12345"));
        desk.time->selectAll();
        desk.time->insert(QStringLiteral("1,000"));
        desk.time->insert(QStringLiteral("1.000"));
        desk.Leave();
        QCOMPARE(desk.Links(), Lines({"11$3$0$0 auto 12345"}));
        desk.Type("20000");
        QTest::keyClick(desk.time, Qt::Key_Return);
        QCOMPARE(desk.time->text(), QStringLiteral("20000"));
        QCOMPARE(desk.Links(), Lines({"11$3$0$0 auto 20000"}));
    }
    QLocale::setDefault(before);
}

void TestAlarmOutEditor::settingAListTicksItsOutputsAndNoOthers()
{
    Desk desk;
    QVERIFY(desk.hand.TickChannel(21));
    desk.editor.SetAlarmOutInfo({Link("12$3$0$0", true, 45)});
    QCOMPARE(desk.State(11), Qt::Unchecked);
    QCOMPARE(desk.State(12), Qt::Checked);
    QCOMPARE(desk.State(21), Qt::Unchecked);
    QCOMPARE(desk.Links(), Lines({"12$3$0$0 auto 45"}));
}

void TestAlarmOutEditor::settingAnEmptyListUnticksEverythingAndDisablesThePanel()
{
    Desk desk;
    desk.editor.SetAlarmOutInfo({Link("11$3$0$0", true, 45), Link("21$3$0$0", true, 45)});
    QVERIFY(desk.hand.ClickChannel(11));
    desk.editor.SetAlarmOutInfo({});
    for (const int64_t channel : {11, 12, 21})
        QCOMPARE(desk.State(channel), Qt::Unchecked);
    QCOMPARE(desk.hand.Device(1)->checkState(), Qt::Unchecked);
    QVERIFY(!desk.panel->isEnabled());
    QVERIFY(desk.IsPanelEmpty());
    QVERIFY(desk.Links().isEmpty());
}

void TestAlarmOutEditor::theLastOfTwoLinksWithOneKeyWins()
{
    Desk desk;
    desk.editor.SetAlarmOutInfo({Link("11$3$0$0", true, 45), Link("11$3$0$0", false, 90)});
    QCOMPARE(desk.Links(), Lines({"11$3$0$0 manual 90"}));
}

void TestAlarmOutEditor::theResultIsInTheOrderOfTheKeyTexts()
{
    Desk desk;
    desk.host.manager.AddDevice([] {
        VantaLogic::DeviceInfo device = TestSite::Device(4, VantaLogic::DeviceTypeAlarmHost);
        TestSite::AddChannel(device, 100, VantaLogic::ChannelTypeAlarmOutput);
        return device;
    }());
    desk.editor.SetAlarmOutInfo(
        {Link("21$3$0$0", true, 5), Link("100$3$0$0", true, 6), Link("11$3$0$0", true, 7)});
    QCOMPARE(desk.Links(), Lines({"100$3$0$0 auto 6", "11$3$0$0 auto 7", "21$3$0$0 auto 5"}));
}

void TestAlarmOutEditor::readingClearsTheListFirst()
{
    Desk desk;
    QList<AlarmLinkAlarmOut> links = {Link("99$3$0$0", true, 5)};
    QCOMPARE(desk.editor.GetAlarmOutInfo(links), 0);
    QVERIFY(links.isEmpty());
}

void TestAlarmOutEditor::theShownOutputSurvivesANewList()
{
    Desk desk;
    desk.editor.SetAlarmOutInfo({Link("11$3$0$0", true, 45)});
    QVERIFY(desk.hand.ClickChannel(11));
    desk.editor.SetAlarmOutInfo({Link("11$3$0$0", false, 300)});
    QVERIFY(desk.panel->isEnabled());
    QVERIFY(!desk.toggle->isToggled());
    QCOMPARE(desk.time->text(), QStringLiteral("300"));
    QVERIFY(desk.hint->isHidden());
    // A list without it hides its values, one with it shows them again.
    desk.editor.SetAlarmOutInfo({});
    QVERIFY(desk.IsPanelEmpty());
    desk.editor.SetAlarmOutInfo({Link("11$3$0$0", true, 60)});
    QVERIFY(desk.panel->isEnabled());
    QCOMPARE(desk.time->text(), QStringLiteral("60"));
}

void TestAlarmOutEditor::theShownOutputDroppedByANewListShowsNothing()
{
    Desk desk;
    desk.editor.SetAlarmOutInfo({Link("11$3$0$0", true, 45)});
    QVERIFY(desk.hand.ClickChannel(11));
    desk.editor.SetAlarmOutInfo({Link("12$3$0$0", true, 60)});
    QVERIFY(!desk.panel->isEnabled());
    QVERIFY(desk.IsPanelEmpty());
    desk.editor.SetSettingEnabled(true);
    desk.toggle->click(); // writes into nothing
    QCOMPARE(desk.Links(), Lines({"12$3$0$0 auto 60"}));
}

void TestAlarmOutEditor::anOutputDeletedFromTheSiteIsLeftOutButKept()
{
    Desk desk;
    desk.editor.SetAlarmOutInfo({Link("11$3$0$0", true, 45), Link("21$3$0$0", false, 50)});
    const VantaLogic::DeviceInfo second = desk.host.manager.GetSite().devices.at(1);
    QVERIFY(desk.host.manager.RemoveDevice(2));
    QCOMPARE(desk.Links(), Lines({"11$3$0$0 auto 45"}));
    QVERIFY(desk.host.manager.AddDevice(second));
    QCOMPARE(desk.Links(), Lines({"11$3$0$0 auto 45", "21$3$0$0 manual 50"}));
}

void TestAlarmOutEditor::aChannelThatIsNoOutputIsLeftOut()
{
    Desk desk;
    desk.editor.SetAlarmOutInfo({Link("13$3$0$0", true, 45), Link("1$3$0$0", true, 45)});
    QVERIFY(desk.Links().isEmpty());
}

void TestAlarmOutEditor::malformedKeysAreLeftOutAndTickNothing_data()
{
    QTest::addColumn<QString>("key");
    for (const char* const key :
         {"", "11", "11$3$0", "11$3$0$0$0", "$3$0$0", "11$4$0$0", "11$$0$0", "x$3$0$0", "11 $3$0$0",
          "9223372036854775808$3$0$0", "-11$3$0$0", "$$$", "0x0b$3$0$0", "11$3.0$0$0"})
        QTest::newRow(key) << QString::fromLatin1(key);
    QTest::newRow("other digits") << QString(QChar(0x0661)) + QChar(0x0661) + QStringLiteral("$3$0$0");
    QTest::newRow("very long") << QString(100000, QLatin1Char('1')) + QStringLiteral("$3$0$0");
}

void TestAlarmOutEditor::malformedKeysAreLeftOutAndTickNothing()
{
    QFETCH(QString, key);
    Desk desk;
    desk.editor.SetAlarmOutInfo({{key, true, 45}, Link("21$3$0$0", true, 46)});
    QCOMPARE(desk.Links(), Lines({"21$3$0$0 auto 46"}));
    QCOMPARE(desk.State(11), Qt::Unchecked);
}

void TestAlarmOutEditor::anotherSpellingOfAnOutputsNumberDoesNotTickIt()
{
    Desk desk;
    desk.editor.SetAlarmOutInfo({Link("011$3$0$0", true, 45), Link("12$3$7$8", true, 46)});
    QCOMPARE(desk.State(11), Qt::Unchecked);
    QCOMPARE(desk.State(12), Qt::Unchecked);
    // Their channels exist, so the links are handed out as they came.
    QCOMPARE(desk.Links(), Lines({"011$3$0$0 auto 45", "12$3$7$8 auto 46"}));
}

void TestAlarmOutEditor::anOfflineDeviceLosesNoLinkByBeingLookedAt()
{
    Desk desk;
    desk.host.manager.SetDeviceOnline(1, false);
    desk.editor.SetAlarmOutInfo({Link("11$3$0$0", false, 45), Link("12$3$0$0", true, 46)});
    QCOMPARE(desk.State(11), Qt::Checked);
    QVERIFY(desk.hand.ClickChannel(11));
    QVERIFY(desk.panel->isEnabled());
    QCOMPARE(desk.time->text(), QStringLiteral("45"));
    desk.host.manager.SetDeviceOnline(1, true);
    desk.host.manager.SetDeviceOnline(1, false);
    QCOMPARE(desk.Links(), Lines({"11$3$0$0 manual 45", "12$3$0$0 auto 46"}));
}

void TestAlarmOutEditor::partlyPickedDevicesShowAPartialBox()
{
    Desk desk;
    desk.editor.SetAlarmOutInfo({Link("11$3$0$0", true, 45)});
    QCOMPARE(desk.hand.Device(1)->checkState(), Qt::PartiallyChecked);
    desk.editor.SetAlarmOutInfo({Link("11$3$0$0", true, 45), Link("12$3$0$0", true, 45)});
    QCOMPARE(desk.hand.Device(1)->checkState(), Qt::Checked);
    desk.editor.SetAlarmOutInfo({});
    QCOMPARE(desk.hand.Device(1)->checkState(), Qt::Unchecked);
}

void TestAlarmOutEditor::boxesThatAreRightAlreadyAreNotTouched()
{
    Desk desk;
    desk.editor.SetAlarmOutInfo({Link("11$3$0$0", true, 45)});
    QSignalSpy changes(desk.hand.Channel(11)->model(), &QAbstractItemModel::dataChanged);
    desk.editor.SetAlarmOutInfo({Link("11$3$0$0", false, 90)});
    QCOMPARE(changes.size(), 0);
    desk.editor.SetAlarmOutInfo({Link("21$3$0$0", false, 90)});
    QVERIFY(!changes.empty());
}

void TestAlarmOutEditor::showingTheSameSchemeAmongFortyThousandOutputsChangesNoItem()
{
    Site site;
    QList<AlarmLinkAlarmOut> links;
    for (int controller = 0; controller < 400; ++controller) {
        VantaLogic::DeviceInfo device =
            TestSite::Device(1 + 1000 * controller, VantaLogic::DeviceTypeAccessControl);
        for (int output = 1; output <= 100; ++output) {
            TestSite::AddChannel(device, device.iDeviceId + output, VantaLogic::ChannelTypeAlarmOutput,
                                 output);
        }
        links.append({QStringLiteral("%1$3$0$0").arg(device.iDeviceId + 50), true, 30});
        site.devices.append(device);
    }
    Desk desk(site);
    desk.editor.SetAlarmOutInfo(links);
    QSignalSpy changes(desk.hand.Device(1)->model(), &QAbstractItemModel::dataChanged);
    desk.editor.SetAlarmOutInfo(links);
    QCOMPARE(changes.size(), 0);
    QCOMPARE(desk.Links().size(), 400);
    links.removeFirst();
    desk.editor.SetAlarmOutInfo(links);
    QCOMPARE(desk.State(51), Qt::Unchecked);
    QVERIFY(!changes.empty() && changes.size() <= 3); // the output and what stands above it
}

void TestAlarmOutEditor::aKeyYieldsItsChannelOnlyWhenWellFormed_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<qlonglong>("channel");
    const auto row = [](const char* szKey, qlonglong channel) {
        QTest::newRow(szKey) << QString::fromLatin1(szKey) << channel;
    };
    row("11$3$0$0", 11);
    row("9223372036854775807$3$0$0", 9223372036854775807LL);
    row("9223372036854775808$3$0$0", -1);
    row("11$3$$", 11);
    row("11$03$0$0", 11);
    row("11$2$0$0", -1);
    row("11$3$0", -1);
    row("11$3$0$0$", -1);
    row("", -1);
}

void TestAlarmOutEditor::aKeyYieldsItsChannelOnlyWhenWellFormed()
{
    QFETCH(QString, key);
    QFETCH(qlonglong, channel);
    QCOMPARE(static_cast<qlonglong>(QAlarmOutEditor::GetChannelIdFromKey(key)), channel);
}

void TestAlarmOutEditor::afterASearchThePanelIsEmptyAndSaysWhatToDo()
{
    Desk desk;
    desk.editor.SetAlarmOutInfo({Link("11$3$0$0", true, 45)});
    QVERIFY(desk.hand.ClickChannel(11));
    QVERIFY(desk.hint->isHidden());
    Q_EMIT desk.hand.Tree()->SignalSearchChanged();
    QVERIFY(desk.panel->isEnabled());
    QVERIFY(desk.IsPanelEmpty());
    QVERIFY(!desk.hint->isHidden());
    QCOMPARE(desk.hint->text(), QStringLiteral("Click the output again to see its settings."));
    QVERIFY(desk.hand.ClickChannel(11));
    QVERIFY(desk.hint->isHidden());
    QCOMPARE(desk.time->text(), QStringLiteral("45"));
    QVERIFY(desk.toggle->isToggled());
    // With an output selected that is not picked, the panel stays disabled.
    QVERIFY(desk.hand.Tree()->SelectNode(12, VantaModel::NodeKindChannel));
    Q_EMIT desk.hand.Tree()->SignalSearchChanged();
    QVERIFY(!desk.panel->isEnabled());
    QVERIFY(!desk.hint->isHidden());
}

void TestAlarmOutEditor::aSearchPutsBoxesBackInLineWithThePickedOutputs()
{
    Desk desk;
    desk.editor.SetAlarmOutInfo({Link("11$3$0$0", true, 45)});
    desk.hand.Tree()->UpdateSelectedState(desk.hand.Channel(11), false);
    desk.hand.Tree()->UpdateSelectedState(desk.hand.Channel(21), true);
    Q_EMIT desk.hand.Tree()->SignalSearchChanged();
    QCOMPARE(desk.State(11), Qt::Checked);
    QCOMPARE(desk.State(21), Qt::Unchecked);
    QCOMPARE(desk.Links(), Lines({"11$3$0$0 auto 45"}));
}

void TestAlarmOutEditor::switchingAfterASearchStillWritesIntoTheCurrentOutput()
{
    Desk desk;
    desk.editor.SetAlarmOutInfo({Link("11$3$0$0", true, 45)});
    QVERIFY(desk.hand.ClickChannel(11));
    Q_EMIT desk.hand.Tree()->SignalSearchChanged();
    QCOMPARE(desk.Links(), Lines({"11$3$0$0 auto 45"})); // emptying the panel wrote nothing
    desk.toggle->click();
    desk.toggle->click();
    QCOMPARE(desk.Links(), Lines({"11$3$0$0 manual 45"}));
    desk.Leave();
    QCOMPARE(desk.time->text(), QStringLiteral("45")); // leaving the empty field brings the value back
}

void TestAlarmOutEditor::aTypedSearchThatHidesTheOutputDisablesThePanelUntilItReappears()
{
    Desk desk;
    desk.editor.SetAlarmOutInfo({Link("11$3$0$0", true, 45)});
    QVERIFY(desk.hand.ClickChannel(11));
    desk.Search("Channel 12");
    QVERIFY(!desk.panel->isEnabled());
    QVERIFY(desk.IsPanelEmpty());
    desk.Search("");
    QVERIFY(desk.panel->isEnabled());
    QVERIFY(desk.IsPanelEmpty());
    QCOMPARE(desk.hint->text(), QStringLiteral("Click the output again to see its settings."));
    QCOMPARE(desk.Links(), Lines({"11$3$0$0 auto 45"}));
}

void TestAlarmOutEditor::tickingADeviceUnderASearchTouchesShownOutputsOnly()
{
    Desk desk;
    desk.editor.SetAlarmOutInfo({Link("11$3$0$0", false, 45)});
    desk.Search("Channel 12");
    QVERIFY(desk.hand.TickDevice(1));
    QCOMPARE(desk.Links(), Lines({"11$3$0$0 manual 45", "12$3$0$0 auto 20"}));
    QVERIFY(desk.hand.TickDevice(1, false));
    QCOMPARE(desk.Links(), Lines({"11$3$0$0 manual 45"}));
    desk.Search("");
    QCOMPARE(desk.State(11), Qt::Checked);
    QCOMPARE(desk.State(12), Qt::Unchecked);
}

void TestAlarmOutEditor::aSchemeShownUnderASearchTicksHiddenOutputsToo()
{
    Desk desk;
    desk.Search("Channel 21");
    desk.editor.SetAlarmOutInfo({Link("11$3$0$0", true, 45)});
    QCOMPARE(desk.State(11), Qt::Checked);
    QCOMPARE(desk.hand.Device(1)->checkState(), Qt::PartiallyChecked);
    desk.editor.SetAlarmOutInfo({Link("21$3$0$0", true, 45)});
    desk.Search("");
    QCOMPARE(desk.State(11), Qt::Unchecked);
    QCOMPARE(desk.State(21), Qt::Checked);
    QCOMPARE(desk.Links(), Lines({"21$3$0$0 auto 45"}));
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
