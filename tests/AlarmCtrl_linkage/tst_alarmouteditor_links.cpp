#include "tests/AlarmCtrl_linkage/OutEditorDesk.h"

#include <QSignalSpy>
#include <QTest>

using namespace OutEditor;

/// The list of links that is set and read, and what a search does to it.
class TestAlarmOutEditorLinks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
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
};

void TestAlarmOutEditorLinks::settingAListTicksItsOutputsAndNoOthers()
{
    Desk desk;
    QVERIFY(desk.hand.TickChannel(21));
    desk.editor.SetAlarmOutInfo({Link("12$3$0$0", true, 45)});
    QCOMPARE(desk.State(11), Qt::Unchecked);
    QCOMPARE(desk.State(12), Qt::Checked);
    QCOMPARE(desk.State(21), Qt::Unchecked);
    QCOMPARE(desk.Links(), Lines({"12$3$0$0 auto 45"}));
}

void TestAlarmOutEditorLinks::settingAnEmptyListUnticksEverythingAndDisablesThePanel()
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

void TestAlarmOutEditorLinks::theLastOfTwoLinksWithOneKeyWins()
{
    Desk desk;
    desk.editor.SetAlarmOutInfo({Link("11$3$0$0", true, 45), Link("11$3$0$0", false, 90)});
    QCOMPARE(desk.Links(), Lines({"11$3$0$0 manual 90"}));
}

void TestAlarmOutEditorLinks::theResultIsInTheOrderOfTheKeyTexts()
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

void TestAlarmOutEditorLinks::readingClearsTheListFirst()
{
    Desk desk;
    QList<AlarmLinkAlarmOut> links = {Link("99$3$0$0", true, 5)};
    QCOMPARE(desk.editor.GetAlarmOutInfo(links), 0);
    QVERIFY(links.isEmpty());
}

void TestAlarmOutEditorLinks::theShownOutputSurvivesANewList()
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

void TestAlarmOutEditorLinks::theShownOutputDroppedByANewListShowsNothing()
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

void TestAlarmOutEditorLinks::anOutputDeletedFromTheSiteIsLeftOutButKept()
{
    Desk desk;
    desk.editor.SetAlarmOutInfo({Link("11$3$0$0", true, 45), Link("21$3$0$0", false, 50)});
    const VantaLogic::DeviceInfo second = desk.host.manager.GetSite().devices.at(1);
    QVERIFY(desk.host.manager.RemoveDevice(2));
    QCOMPARE(desk.Links(), Lines({"11$3$0$0 auto 45"}));
    QVERIFY(desk.host.manager.AddDevice(second));
    QCOMPARE(desk.Links(), Lines({"11$3$0$0 auto 45", "21$3$0$0 manual 50"}));
}

void TestAlarmOutEditorLinks::aChannelThatIsNoOutputIsLeftOut()
{
    Desk desk;
    desk.editor.SetAlarmOutInfo({Link("13$3$0$0", true, 45), Link("1$3$0$0", true, 45)});
    QVERIFY(desk.Links().isEmpty());
}

void TestAlarmOutEditorLinks::malformedKeysAreLeftOutAndTickNothing_data()
{
    QTest::addColumn<QString>("key");
    for (const char* const key :
         {"", "11", "11$3$0", "11$3$0$0$0", "$3$0$0", "11$4$0$0", "11$$0$0", "x$3$0$0", "11 $3$0$0",
          "9223372036854775808$3$0$0", "-11$3$0$0", "$$$", "0x0b$3$0$0", "11$3.0$0$0"})
        QTest::newRow(key) << QString::fromLatin1(key);
    QTest::newRow("other digits") << QString(QChar(0x0661)) + QChar(0x0661) + QStringLiteral("$3$0$0");
    QTest::newRow("very long") << QString(100000, QLatin1Char('1')) + QStringLiteral("$3$0$0");
}

void TestAlarmOutEditorLinks::malformedKeysAreLeftOutAndTickNothing()
{
    QFETCH(QString, key);
    Desk desk;
    desk.editor.SetAlarmOutInfo({{key, true, 45}, Link("21$3$0$0", true, 46)});
    QCOMPARE(desk.Links(), Lines({"21$3$0$0 auto 46"}));
    QCOMPARE(desk.State(11), Qt::Unchecked);
}

void TestAlarmOutEditorLinks::anotherSpellingOfAnOutputsNumberDoesNotTickIt()
{
    Desk desk;
    desk.editor.SetAlarmOutInfo({Link("011$3$0$0", true, 45), Link("12$3$7$8", true, 46)});
    QCOMPARE(desk.State(11), Qt::Unchecked);
    QCOMPARE(desk.State(12), Qt::Unchecked);
    // Their channels exist, so the links are handed out as they came.
    QCOMPARE(desk.Links(), Lines({"011$3$0$0 auto 45", "12$3$7$8 auto 46"}));
}

void TestAlarmOutEditorLinks::anOfflineDeviceLosesNoLinkByBeingLookedAt()
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

void TestAlarmOutEditorLinks::partlyPickedDevicesShowAPartialBox()
{
    Desk desk;
    desk.editor.SetAlarmOutInfo({Link("11$3$0$0", true, 45)});
    QCOMPARE(desk.hand.Device(1)->checkState(), Qt::PartiallyChecked);
    desk.editor.SetAlarmOutInfo({Link("11$3$0$0", true, 45), Link("12$3$0$0", true, 45)});
    QCOMPARE(desk.hand.Device(1)->checkState(), Qt::Checked);
    desk.editor.SetAlarmOutInfo({});
    QCOMPARE(desk.hand.Device(1)->checkState(), Qt::Unchecked);
}

void TestAlarmOutEditorLinks::boxesThatAreRightAlreadyAreNotTouched()
{
    Desk desk;
    desk.editor.SetAlarmOutInfo({Link("11$3$0$0", true, 45)});
    QSignalSpy changes(desk.hand.Channel(11)->model(), &QAbstractItemModel::dataChanged);
    desk.editor.SetAlarmOutInfo({Link("11$3$0$0", false, 90)});
    QCOMPARE(changes.size(), 0);
    desk.editor.SetAlarmOutInfo({Link("21$3$0$0", false, 90)});
    QVERIFY(!changes.empty());
}

void TestAlarmOutEditorLinks::showingTheSameSchemeAmongFortyThousandOutputsChangesNoItem()
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

void TestAlarmOutEditorLinks::aKeyYieldsItsChannelOnlyWhenWellFormed_data()
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

void TestAlarmOutEditorLinks::aKeyYieldsItsChannelOnlyWhenWellFormed()
{
    QFETCH(QString, key);
    QFETCH(qlonglong, channel);
    QCOMPARE(static_cast<qlonglong>(QAlarmOutEditor::GetChannelIdFromKey(key)), channel);
}

void TestAlarmOutEditorLinks::afterASearchThePanelIsEmptyAndSaysWhatToDo()
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

void TestAlarmOutEditorLinks::aSearchPutsBoxesBackInLineWithThePickedOutputs()
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

void TestAlarmOutEditorLinks::switchingAfterASearchStillWritesIntoTheCurrentOutput()
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

void TestAlarmOutEditorLinks::aTypedSearchThatHidesTheOutputDisablesThePanelUntilItReappears()
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

void TestAlarmOutEditorLinks::tickingADeviceUnderASearchTouchesShownOutputsOnly()
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

void TestAlarmOutEditorLinks::aSchemeShownUnderASearchTicksHiddenOutputsToo()
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

QTEST_MAIN(TestAlarmOutEditorLinks)
#include "tst_alarmouteditor_links.moc"
