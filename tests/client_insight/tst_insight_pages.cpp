#include "client/insight/CoveragePage.h"
#include "client/insight/DayStrip.h"
#include "client/insight/ExplainPage.h"
#include "client/insight/WeekHeatMap.h"
#include "client/store/StoredSchemes.h"
#include "platform/SystemLibrary/QCommon.h"
#include "tests/AlarmSchemeData/StoreFolder.h"

#include <QComboBox>
#include <QDateTimeEdit>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSignalSpy>
#include <QTableView>
#include <QtTest>

#include <memory>

namespace {

constexpr int DeviceId = 7;
constexpr int FirstDoorId = 71;
constexpr int SecondDoorId = 72;
constexpr int EventType = 101;

Site SmallSite()
{
    VantaLogic::DeviceInfo device;
    device.iDeviceId = DeviceId;
    device.iDeviceType = VantaLogic::DeviceTypeAccessControl;
    device.strName = QStringLiteral("Hall");
    for (const int id : {FirstDoorId, SecondDoorId}) {
        VantaLogic::ChannelInfo door;
        door.iChannelId = id;
        door.iDeviceId = DeviceId;
        door.iNumber = id - FirstDoorId + 1;
        door.iChannelType = VantaLogic::ChannelTypeDoor;
        door.strName = id == FirstDoorId ? QStringLiteral("Front") : QStringLiteral("Back");
        device.channels.append(door);
    }
    Site site;
    site.devices.append(device);
    return site;
}

/// Armed on Mondays from 8 to 12; rings.
AlarmInfo Mornings()
{
    AlarmInfo info;
    info.bOpen = true;
    info.bOpenSound = true;
    for (int day = 0; day < AlarmWeek::DayCount; ++day)
        info.defenceTime[day].clear();
    info.defenceTime[1] = {{8 * 3600, 12 * 3600}};
    return info;
}

} // namespace

class InsightPagesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void theStripsColumnsRunFromEndToEnd();
    void theMapsHalfHoursCoverTheFieldWithoutAGap();
    void theMapSaysWhatAHalfHourStandsFor();
    void theArrowKeysWalkOverTheMapAndStopAtItsEdges();
    void theArrowKeysGoOnFromWhereWasClicked();
    void withoutASourceThePageSaysWhatToDo();
    void withoutDevicesThePageSaysWhatToDo();
    void anArmedMomentTellsTheReactions();
    void theEndOfARegionIsNoLongerArmed();
    void aSourceMayBeTyped();
    void aSourceThatIsUnknownIsSaid();
    void whatIsSavedMeanwhileIsShownAfterTheNextReading();
    void whatIsPickedStaysPickedWhenTheSiteChanges();
    void aDatabaseThatCannotBeReadIsSaid();
    void findingsAreSortedByHowBadTheyAre();
    void theCoverageIsFilteredByDeviceAndCategory();
    void whatTheGreenMeansIsSaidWhileNothingIsPointedAt();
    void openingAFindingAsksForItsExplanation();

private:
    void Store(const AlarmInfoMap& map);
    template <typename Type>
    static Type* Child(QWidget& page, const char* szName)
    {
        return page.findChild<Type*>(QLatin1String(szName));
    }
    void Read()
    {
        QSignalSpy read(m_view.get(), &StoredSchemeView::SignalRead);
        m_view->Refresh();
        QTRY_COMPARE(read.size(), 1);
    }
    void AskAt(ExplainPage& page, int iHour, int iMinute, int iSecond = 0)
    {
        page.Ask(EventSource::Door(DeviceId, FirstDoorId), EventType);
        Child<QDateTimeEdit>(page, "dteTime")
            ->setDateTime(QDateTime(QDate(2026, 11, 23), QTime(iHour, iMinute, iSecond)));
    }

    std::unique_ptr<LogCatcher> m_log;
    std::unique_ptr<StoreFolder> m_folder;
    std::unique_ptr<StoredSchemeView> m_view;
};

void InsightPagesTest::init()
{
    m_log = std::make_unique<LogCatcher>();
    m_folder = std::make_unique<StoreFolder>();
    Store({{{EventSource::Door(DeviceId, FirstDoorId), EventType}, Mornings()}});
    m_view = std::make_unique<StoredSchemeView>(m_folder->File());
    Read();
}

void InsightPagesTest::cleanup()
{
    m_view.reset();
    m_folder.reset();
    m_log.reset();
}

void InsightPagesTest::Store(const AlarmInfoMap& map)
{
    StoredSchemes schemes(std::chrono::milliseconds(1000));
    SaveProgress progress;
    QVERIFY(schemes.Replace(map, std::nullopt, {}, progress).eReason == SchemeStoreOutcome::Reason::None);
}

void InsightPagesTest::theStripsColumnsRunFromEndToEnd()
{
    QCOMPARE(DayStrip::ColumnOf(0, 480), 0);
    QCOMPARE(DayStrip::ColumnOf(43200, 480), 240);
    QCOMPARE(DayStrip::ColumnOf(86400, 480), 480);
    QCOMPARE(DayStrip::ColumnOf(86400, 100'000), 100'000);
    QCOMPARE(DayStrip::ColumnOf(86400, 0), 0);
}

void InsightPagesTest::theMapsHalfHoursCoverTheFieldWithoutAGap()
{
    WeekHeatMap map;
    for (const int width : {420, 777, 1920}) {
        map.resize(width, map.minimumSizeHint().height());
        for (int slot = 0; slot + 1 < WeekCoverage::SlotsOfDay; ++slot) {
            QCOMPARE(map.SlotRect(0, slot).right() + 1, map.SlotRect(0, slot + 1).left());
            QVERIFY(map.SlotRect(0, slot).width() > 0);
        }
        QVERIFY(map.rect().contains(map.SlotRect(6, WeekCoverage::SlotsOfDay - 1)));
        QCOMPARE(map.SlotRect(0, 5).bottom() + 1, map.SlotRect(1, 5).top());
    }
}

void InsightPagesTest::theMapSaysWhatAHalfHourStandsFor()
{
    QLocale::setDefault(QLocale(QLocale::English, QLocale::Germany)); // weeks begin on Mondays
    WeekHeatMap map;
    map.SetCoverage(WeekCoverage::Of(m_view->Schemes(), {}));
    QCOMPARE(map.SlotText(0, 15), QStringLiteral("Monday 07:30-08:00: 0 of 1 schemes armed"));
    QCOMPARE(map.SlotText(0, 16), QStringLiteral("Monday 08:00-08:30: 1 of 1 schemes armed"));
    QCOMPARE(map.SlotText(6, 47), QStringLiteral("Sunday 23:30-24:00: 0 of 1 schemes armed"));
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates)); // on Sundays
    QVERIFY(map.SlotText(0, 0).startsWith(QLatin1String("Sunday ")));
    QVERIFY(map.SlotText(1, 16).startsWith(QLatin1String("Monday 08:00-08:30: 1")));
    QLocale::setDefault(QLocale::c());
}

void InsightPagesTest::theArrowKeysWalkOverTheMapAndStopAtItsEdges()
{
    WeekHeatMap map;
    QSignalSpy pointed(&map, &WeekHeatMap::SignalPointedAt);
    QTest::keyClick(&map, Qt::Key_Left);
    QTest::keyClick(&map, Qt::Key_Up);
    QCOMPARE(pointed.last().first().toString(), map.SlotText(0, 0));
    QTest::keyClick(&map, Qt::Key_Right);
    QTest::keyClick(&map, Qt::Key_Down);
    QCOMPARE(pointed.last().first().toString(), map.SlotText(1, 1));
    QTest::keyClick(&map, Qt::Key_End);
    for (int step = 0; step < 9; ++step)
        QTest::keyClick(&map, Qt::Key_Down);
    QTest::keyClick(&map, Qt::Key_Right);
    QCOMPARE(pointed.last().first().toString(), map.SlotText(6, 47));
}

void InsightPagesTest::theArrowKeysGoOnFromWhereWasClicked()
{
    WeekHeatMap map;
    map.resize(map.sizeHint());
    QTest::mouseClick(&map, Qt::LeftButton, Qt::NoModifier, map.SlotRect(3, 20).center());
    QCOMPARE(map.CurrentText(), map.SlotText(3, 20));
    QTest::keyClick(&map, Qt::Key_Right);
    QCOMPARE(map.CurrentText(), map.SlotText(3, 21));
    QTest::mouseClick(&map, Qt::RightButton, Qt::NoModifier, map.SlotRect(0, 0).center());
    QTest::mouseClick(&map, Qt::LeftButton, Qt::NoModifier, QPoint(1, 1)); // beside the field
    QCOMPARE(map.CurrentText(), map.SlotText(3, 21));
}

void InsightPagesTest::withoutASourceThePageSaysWhatToDo()
{
    ExplainPage page(*m_view);
    page.SetSite(SmallSite());
    QVERIFY(Child<QLabel>(page, "lblVerdict")->text().contains(QLatin1String("Pick the source")));
    QVERIFY(!Child<QComboBox>(page, "cmbEvent")->isEnabled());
}

void InsightPagesTest::withoutDevicesThePageSaysWhatToDo()
{
    ExplainPage page(*m_view);
    page.SetSite(Site());
    QVERIFY(Child<QLabel>(page, "lblVerdict")->text().contains(QLatin1String("no devices")));
}

void InsightPagesTest::anArmedMomentTellsTheReactions()
{
    ExplainPage page(*m_view);
    page.SetSite(SmallSite());
    AskAt(page, 8, 0);
    QVERIFY2(Child<QLabel>(page, "lblVerdict")->text().contains(QLatin1String("is armed")),
             qPrintable(Child<QLabel>(page, "lblVerdict")->text()));
    const auto* reactions = Child<QListWidget>(page, "lstReactions");
    QCOMPARE(reactions->count(), 1);
    QVERIFY(reactions->item(0)->text().contains(QLatin1String("sound")));
    QVERIFY(reactions->isEnabled());
    QVERIFY(Child<QLabel>(page, "lblDay")->text().contains(QLatin1String("08:00-12:00")));
    QVERIFY(Child<QLabel>(page, "lblNext")->text().contains(QLatin1String("2026-11-23 12:00")));
}

void InsightPagesTest::theEndOfARegionIsNoLongerArmed()
{
    ExplainPage page(*m_view);
    page.SetSite(SmallSite());
    AskAt(page, 12, 0);
    QVERIFY(Child<QLabel>(page, "lblVerdict")->text().contains(QLatin1String("not armed")));
    QVERIFY(!Child<QListWidget>(page, "lstReactions")->isEnabled());
    AskAt(page, 11, 59, 59);
    QVERIFY(Child<QListWidget>(page, "lstReactions")->isEnabled());
}

void InsightPagesTest::aSourceMayBeTyped()
{
    ExplainPage page(*m_view);
    page.SetSite(SmallSite());
    auto* source = Child<QComboBox>(page, "cmbSource");
    auto* event = Child<QComboBox>(page, "cmbEvent");
    for (const QString& text : {QStringLiteral("hall/front"), EventSource::Door(DeviceId, FirstDoorId)}) {
        source->setEditText(text);
        QVERIFY2(event->isEnabled(), qPrintable(text));
        QVERIFY(event->findData(EventType) >= 0);
    }
    // The page keeps the event from source to source.
    event->setCurrentIndex(event->findData(EventType));
    source->setEditText(QStringLiteral("Hall/Back"));
    QCOMPARE(event->currentData().toInt(), EventType);
    QVERIFY(Child<QLabel>(page, "lblVerdict")->text().contains(QLatin1String("no scheme")));
}

void InsightPagesTest::aSourceThatIsUnknownIsSaid()
{
    ExplainPage page(*m_view);
    page.SetSite(SmallSite());
    Child<QComboBox>(page, "cmbSource")->setEditText(QStringLiteral("Hall/Roof"));
    QVERIFY(!Child<QComboBox>(page, "cmbEvent")->isEnabled());
    QVERIFY(!Child<QLabel>(page, "lblVerdict")->text().isEmpty());
}

void InsightPagesTest::whatIsSavedMeanwhileIsShownAfterTheNextReading()
{
    ExplainPage page(*m_view);
    page.SetSite(SmallSite());
    AskAt(page, 8, 0);
    Store({});
    Read();
    QVERIFY(Child<QLabel>(page, "lblVerdict")->text().contains(QLatin1String("no scheme")));
}

void InsightPagesTest::whatIsPickedStaysPickedWhenTheSiteChanges()
{
    ExplainPage page(*m_view);
    page.SetSite(SmallSite());
    AskAt(page, 8, 0);
    Site more = SmallSite();
    more.devices.prepend(more.devices.constFirst());
    more.devices[0].iDeviceId = 1;
    more.devices[0].strName = QStringLiteral("Annex");
    more.devices[0].channels.clear();
    page.SetSite(more);
    QCOMPARE(Child<QComboBox>(page, "cmbSource")->currentText(), QStringLiteral("Hall/Front"));
    QCOMPARE(Child<QComboBox>(page, "cmbEvent")->currentData().toInt(), EventType);
    QVERIFY(Child<QListWidget>(page, "lstReactions")->isEnabled());
}

void InsightPagesTest::aDatabaseThatCannotBeReadIsSaid()
{
    m_folder->Write("this is no database, and it is long enough to be looked at");
    Read();
    QVERIFY(!m_view->Problem().isEmpty());
    QVERIFY(m_view->Schemes().isEmpty());
    ExplainPage explain(*m_view);
    explain.SetSite(SmallSite());
    QCOMPARE(Child<QLabel>(explain, "lblVerdict")->text(), m_view->Problem());
    CoveragePage coverage(*m_view);
    QCOMPARE(Child<QLabel>(coverage, "lblFindings")->text(), m_view->Problem());
}

void InsightPagesTest::findingsAreSortedByHowBadTheyAre()
{
    AlarmInfo never = Mornings();
    never.defenceTime[1].clear();
    Store({{{EventSource::Door(DeviceId, FirstDoorId), EventType}, never}});
    Read();
    CoveragePage page(*m_view);
    page.SetSite(SmallSite());
    const auto* table = Child<QTableView>(page, "tblFindings");
    QTRY_VERIFY(table->model()->rowCount() >= 2);
    QString last;
    for (int row = 0; row < table->model()->rowCount(); ++row) {
        const QString severity = table->model()->index(row, FindingsModel::ColumnSeverity).data().toString();
        if (row == 0)
            QCOMPARE(severity, Finding::SeverityName(FindingSeverity::Error));
        QVERIFY(!(last == Finding::SeverityName(FindingSeverity::Warning) &&
                  severity == Finding::SeverityName(FindingSeverity::Error)));
        last = severity;
    }
    QVERIFY(Child<QLabel>(page, "lblFindings")->text().contains(QLatin1String("Errors: ")));
}

void InsightPagesTest::theCoverageIsFilteredByDeviceAndCategory()
{
    CoveragePage page(*m_view);
    page.SetSite(SmallSite());
    const auto* said = Child<QLabel>(page, "lblPointedAt");
    QTRY_VERIFY(said->text().startsWith(QLatin1Char('1')));
    auto* category = Child<QComboBox>(page, "cmbCategory");
    category->setCurrentIndex(category->findData(static_cast<int>(EventCategory::Normal)));
    QTRY_VERIFY(said->text().contains(QLatin1String("No scheme")));
    category->setCurrentIndex(0);
    auto* device = Child<QComboBox>(page, "cmbDevice");
    QCOMPARE(device->count(), 2);
    device->setCurrentIndex(1);
    QTRY_VERIFY(said->text().startsWith(QLatin1Char('1')));
}

void InsightPagesTest::whatTheGreenMeansIsSaidWhileNothingIsPointedAt()
{
    CoveragePage page(*m_view);
    page.SetSite(SmallSite());
    const auto* said = Child<QLabel>(page, "lblPointedAt");
    QTRY_VERIFY(said->text().contains(QLatin1String("the green")));
    const QString strMeaning = said->text();
    auto* map = Child<WeekHeatMap>(page, "wndWeek");
    Q_EMIT map->SignalPointedAt(map->SlotText(0, 16));
    QCOMPARE(said->text(), map->SlotText(0, 16));
    Q_EMIT map->SignalPointedAt(QString());
    QCOMPARE(said->text(), strMeaning);
}

void InsightPagesTest::openingAFindingAsksForItsExplanation()
{
    AlarmInfo never = Mornings();
    never.defenceTime[1].clear();
    const QString door = EventSource::Door(DeviceId, FirstDoorId);
    Store({{{door, EventType}, never}});
    Read();
    CoveragePage page(*m_view);
    page.SetSite(SmallSite());
    QSignalSpy wanted(&page, &CoveragePage::SignalExplain);
    auto* table = Child<QTableView>(page, "tblFindings");
    QTRY_VERIFY(table->model()->rowCount() > 0);
    Q_EMIT table->activated(table->model()->index(0, 0));
    QCOMPARE(wanted.size(), 1);
    QCOMPARE(wanted.first().at(0).toString(), door);
    QCOMPARE(wanted.first().at(1).toInt(), EventType);
}

QTEST_MAIN(InsightPagesTest)
#include "tst_insight_pages.moc"
