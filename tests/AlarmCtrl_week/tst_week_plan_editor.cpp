#include "AlarmCtrl/QAlarmDayEditor.h"
#include "AlarmCtrl/QAlarmDayItem.h"
#include "AlarmCtrl/QAlarmDefenceTimeEditor.h"
#include "tests/AlarmCtrl_week/BarMouse.h"
#include "tests/AlarmCtrl_week/DayTexts.h"

#include <QGridLayout>
#include <QHash>
#include <QLabel>
#include <QMetaMethod>
#include <QObject>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

#include <array>
#include <functional>
#include <limits>
#include <memory>

using DayTexts::Hour;
using DayTexts::Text;

namespace {

constexpr QRgb Green = 0xFF3AAA24;

using Week = std::array<AlarmDefenceTime_t, 7>;

QString WeekText(const Week& week)
{
    QString text;
    for (const AlarmDefenceTime_t& day : week) {
        text += Text(day) + QLatin1Char('/');
    }
    return text;
}

AlarmDefenceTime_t Regions(int count)
{
    AlarmDefenceTime_t regions;
    for (int i = 0; i < count; ++i) {
        regions.append({(2 * i + 1) * Hour, (2 * i + 2) * Hour});
    }
    return regions;
}

QStringList DayNames()
{
    return {QStringLiteral("Sunday"),    QStringLiteral("Monday"),   QStringLiteral("Tuesday"),
            QStringLiteral("Wednesday"), QStringLiteral("Thursday"), QStringLiteral("Friday"),
            QStringLiteral("Saturday")};
}

} // namespace

class tst_WeekPlanEditor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void theFormHasItsNamesClassesAndTexts();
    void slotsStandInTheirDeclaredOrder();

    void aWeekIsShownAndReadBackSundayFirst();
    void nullPointersAreRefused();
    void readingReplacesWhatWasThere();
    void aMissingBarIsEmptyOnReadingAndSkippedOnWriting();
    void brokenDaysAreNotChangedByReadingBack();

    void anUnlockedDragChangesOnlyItsDay();
    void anUnlockedDragThatIsRefusedChangesNothing();
    void lockedDaysShowTheDragLive();
    void lockedDaysFollowEveryMove();
    void lockedDaysAreCommittedTogether();
    void lockedDaysMergeTheSpanWithTheirOwnRegions();
    void aLockedEraseErasesOnEveryDay();
    void aDragOnAnUnlockedDayLeavesLockedOnesAlone();
    void oneFullDayRefusesForAll();
    void theFirstFullDayInMapOrderShowsTheTip();
    void touchingRegionsOnOneDayRefuseForAllSilently();
    void editSourcesEndWithTheDrag();
    void aDayUnlockedInMidDragKeepsItsSource();
    void aDayLockedInMidDragTakesPartWithItsOwnDrag();
    void aDoubleClickCommitsToAllLockedDays();
    void anUnknownBarIsIgnored();

    void allLocksAndUnlocksEveryDay();
    void allFollowsTheDays();
    void clickingNobodyDoesNothing();
    void locksStayWhenAnotherWeekIsShown();

    void copyingReplacesExactlyTheNamedDays();
    void copyingIgnoresLocksAndBitsWithoutADay();
    void copyingANegativeMaskEnds();

    void theScaleStandsOverTheFirstBar_data();
    void theScaleStandsOverTheFirstBar();
    void theScaleFollowsTheFirstBarAlone();
    void withoutADisplayTheScaleStays();

    void everyButtonIsNamedAfterItsDay();

private:
    QAlarmDayEditor* Bar(int day) const
    {
        return m_editor->findChild<QAlarmDayEditor*>(QStringLiteral("editor%1").arg(day));
    }
    QPushButton* Lock(int day) const
    {
        return m_editor->findChild<QPushButton*>(QStringLiteral("btn%1").arg(day));
    }
    QPushButton* LockAll() const { return m_editor->findChild<QPushButton*>(QStringLiteral("btnAll")); }
    void LockDays(const QVector<int>& days) const
    {
        for (int day : days) {
            Lock(day)->click();
        }
    }
    BarMouse Mouse(int day) const { return BarMouse(Bar(day)); }
    /// Hovers and presses inside the first quarter and moves into the last one, without letting go.
    void StartDrag(int day, int begin, int end) const
    {
        const BarMouse mouse = Mouse(day);
        mouse.Hover(mouse.ColumnOf(begin));
        mouse.Press(mouse.ColumnOf(begin));
        mouse.Drag(mouse.ColumnOf(end) - 1);
    }
    void EndDrag(int day, int end) const { Mouse(day).Release(Mouse(day).ColumnOf(end) - 1); }
    void Drag(int day, int begin, int end) const
    {
        StartDrag(day, begin, end);
        EndDrag(day, end);
    }
    Week Read() const
    {
        Week week;
        m_editor->GetDefenceTime(week.data());
        return week;
    }
    QString Day(int day) const { return Text(Read().at(static_cast<size_t>(day))); }
    bool ShowsGreen(int day, int second) const
    {
        const QImage image = Mouse(day).Display()->grab().toImage();
        return image.pixel(static_cast<int>(qint64{second} * image.width() / 86400) + 2, 5) == Green;
    }

    std::unique_ptr<QAlarmDefenceTimeEditor> m_editor;
};

void tst_WeekPlanEditor::init()
{
    m_editor = std::make_unique<QAlarmDefenceTimeEditor>();
    m_editor->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_editor.get()));
}

void tst_WeekPlanEditor::theFormHasItsNamesClassesAndTexts()
{
    QAlarmDefenceTimeEditor editor;
    QCOMPARE(editor.objectName(), QStringLiteral("QAlarmDefenceTimeEditor"));
    QCOMPARE(editor.windowTitle(), QStringLiteral("Form"));
    QCOMPARE(editor.size(), QSize(866, 437));
    const auto* outer = editor.findChild<QVBoxLayout*>(QStringLiteral("verticalLayout"));
    QVERIFY(outer != nullptr);
    QCOMPARE(outer->spacing(), 10);
    QCOMPARE(outer->contentsMargins(), QMargins(35, 33, 18, 18));
    const QSpacerItem* spacer = outer->itemAt(1)->spacerItem();
    QVERIFY(spacer != nullptr);
    QCOMPARE(spacer->sizeHint(), QSize(20, 158));
    QCOMPARE(spacer->sizePolicy().horizontalPolicy(), QSizePolicy::Minimum);
    QCOMPARE(spacer->sizePolicy().verticalPolicy(), QSizePolicy::Expanding);

    const auto* grid = editor.findChild<QGridLayout*>(QStringLiteral("gridLayout"));
    QVERIFY(grid != nullptr);
    QCOMPARE(grid->horizontalSpacing(), 10);
    QCOMPARE(grid->verticalSpacing(), 10);
    const QStringList labels{QStringLiteral("label"),   QStringLiteral("label_2"), QStringLiteral("label_3"),
                             QStringLiteral("label_4"), QStringLiteral("label_5"), QStringLiteral("label_16"),
                             QStringLiteral("label_6"), QStringLiteral("label_7")};
    const QStringList texts = QStringList(QStringLiteral("Week Plan")) + DayNames();
    for (int row = 0; row < 8; ++row) {
        const auto* lock = qobject_cast<QPushButton*>(grid->itemAtPosition(row, 0)->widget());
        QVERIFY(lock != nullptr);
        QCOMPARE(lock->objectName(),
                 row == 0 ? QStringLiteral("btnAll") : QStringLiteral("btn%1").arg(row - 1));
        QCOMPARE(lock->minimumSize(), QSize(18, 18));
        QCOMPARE(lock->maximumSize(), QSize(18, 18));
        QCOMPARE(lock->focusPolicy(), Qt::NoFocus);
        QVERIFY(lock->isCheckable());
        QVERIFY(!lock->isChecked());
        QCOMPARE(lock->property("ImgLock"), QVariant(true));
        QCOMPARE(lock->text(), QString());

        const auto* label = qobject_cast<QLabel*>(grid->itemAtPosition(row, 1)->widget());
        QVERIFY(label != nullptr);
        QCOMPARE(label->objectName(), labels.at(row));
        QCOMPARE(label->text(), texts.at(row));
        QCOMPARE(label->alignment() & (Qt::AlignHorizontal_Mask | Qt::AlignVertical_Mask) &
                     ~Qt::AlignAbsolute,
                 Qt::AlignRight | Qt::AlignVCenter);
        if (row > 0) {
            const auto* bar = qobject_cast<QAlarmDayEditor*>(grid->itemAtPosition(row, 2)->widget());
            QVERIFY(bar != nullptr);
            QCOMPARE(bar->objectName(), QStringLiteral("editor%1").arg(row - 1));
            QCOMPARE(bar->minimumSize(), QSize(0, 24));
            QCOMPARE(bar->maximumSize(), QSize(16777215, 24));
        }
    }
    const auto* scale = editor.findChild<QAlarmDayItem*>();
    QVERIFY(scale != nullptr);
    QCOMPARE(scale->parentWidget(), &editor);
}

void tst_WeekPlanEditor::slotsStandInTheirDeclaredOrder()
{
    QList<QByteArray> signatures;
    const QMetaObject& meta = QAlarmDefenceTimeEditor::staticMetaObject;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        signatures << meta.method(i).methodSignature();
    }
    QCOMPARE(signatures, (QList<QByteArray>{"OnCopySettingToOthers(int,AlarmDefenceTime_t)",
                                            "OnEditStart(QAlarmDayEditor*)", "OnEditing(QAlarmDayEditor*)",
                                            "OnEditReady(QAlarmDayEditor*)", "OnBtnClicked()"}));
}

void tst_WeekPlanEditor::aWeekIsShownAndReadBackSundayFirst()
{
    Week week;
    for (int day = 0; day < 7; ++day) {
        week.at(static_cast<size_t>(day)) = {{day * Hour, (day + 1) * Hour}};
    }
    m_editor->SetDefenceTime(week.data());
    AlarmDefenceTime_t sunday;
    Bar(0)->GetDefenceTime(sunday);
    QCOMPARE(Text(sunday), QStringLiteral("[0 3600]"));
    QVERIFY(ShowsGreen(6, 6 * Hour + 1800));
    QVERIFY(!ShowsGreen(6, 5 * Hour + 1800));
    Week back;
    QCOMPARE(m_editor->GetDefenceTime(back.data()), 0);
    QCOMPARE(WeekText(back), WeekText(week));
}

void tst_WeekPlanEditor::nullPointersAreRefused()
{
    const AlarmDefenceTime_t monday{{1, 2}};
    Bar(1)->SetDefenceTime(monday);
    m_editor->SetDefenceTime(nullptr);
    QCOMPARE(m_editor->GetDefenceTime(nullptr), -1);
    QCOMPARE(Day(1), Text(monday));
}

void tst_WeekPlanEditor::readingReplacesWhatWasThere()
{
    Week week;
    week.fill({{5, 6}, {7, 8}});
    QCOMPARE(m_editor->GetDefenceTime(week.data()), 0);
    QCOMPARE(WeekText(week), WeekText(Week()));
}

void tst_WeekPlanEditor::aMissingBarIsEmptyOnReadingAndSkippedOnWriting()
{
    Week week;
    week.fill({{5, 6}});
    Bar(3)->setObjectName(QStringLiteral("gone"));
    m_editor->SetDefenceTime(week.data());
    Week back = week;
    QCOMPARE(m_editor->GetDefenceTime(back.data()), 0);
    Week expected = week;
    expected[3].clear();
    QCOMPARE(WeekText(back), WeekText(expected));
    m_editor->OnCopySettingToOthers(127, {{7, 8}});
    expected.fill({{7, 8}});
    expected[3].clear();
    QCOMPARE(WeekText(Read()), WeekText(expected));
}

void tst_WeekPlanEditor::brokenDaysAreNotChangedByReadingBack()
{
    Week week;
    week[0] = Regions(11);
    week[1] = {{9 * Hour, 10 * Hour}, {Hour, 2 * Hour}};
    week[2] = {{Hour, 3 * Hour}, {2 * Hour, 4 * Hour}};
    week[3] = {{-100, -50}, {-7, 90000}};
    week[4] = {{86400, 100000}};
    week[5] = {{10, 5}};
    week[6] = {{std::numeric_limits<int32_t>::min(), std::numeric_limits<int32_t>::max()}};
    m_editor->SetDefenceTime(week.data());
    QVERIFY(!m_editor->grab().isNull());
    LockAll()->click();
    Drag(0, 23 * Hour, 23 * Hour + 900); // refused by Sunday, so by all
    for (int day = 0; day < 7; ++day) {
        Mouse(day).Hover(50);
    }
    QCOMPARE(WeekText(Read()), WeekText(week));
}

void tst_WeekPlanEditor::anUnlockedDragChangesOnlyItsDay()
{
    Drag(2, 8 * Hour, 9 * Hour);
    Week expected;
    expected[2] = {{8 * Hour, 9 * Hour}};
    QCOMPARE(WeekText(Read()), WeekText(expected));
}

void tst_WeekPlanEditor::anUnlockedDragThatIsRefusedChangesNothing()
{
    Week week;
    week[2] = Regions(6);
    m_editor->SetDefenceTime(week.data());
    QSignalSpy tip(Bar(2), &QAlarmDayEditor::SignalInternalShowTip);
    Drag(2, 20 * Hour, 21 * Hour);
    QCOMPARE(tip.count(), 1);
    QCOMPARE(WeekText(Read()), WeekText(week));
}

void tst_WeekPlanEditor::lockedDaysShowTheDragLive()
{
    LockDays({1, 3});
    StartDrag(1, 8 * Hour, 9 * Hour);
    QVERIFY(ShowsGreen(1, 8 * Hour + 1800));
    QVERIFY(ShowsGreen(3, 8 * Hour + 1800));
    QVERIFY(!ShowsGreen(2, 8 * Hour + 1800));
    QCOMPARE(WeekText(Read()), WeekText(Week())); // nothing is committed yet
    EndDrag(1, 9 * Hour);
    Week expected;
    expected[1] = expected[3] = {{8 * Hour, 9 * Hour}};
    QCOMPARE(WeekText(Read()), WeekText(expected));
    QVERIFY(ShowsGreen(3, 8 * Hour + 1800));
    QVERIFY(!ShowsGreen(2, 8 * Hour + 1800));
}

void tst_WeekPlanEditor::lockedDaysFollowEveryMove()
{
    class PaintCounter : public QObject
    {
    public:
        bool eventFilter(QObject* watched, QEvent* event) override
        {
            paints[watched] += event->type() == QEvent::Paint ? 1 : 0;
            return false;
        }
        QHash<QObject*, int> paints;
    } counter;

    LockDays({1, 3});
    StartDrag(1, 8 * Hour, 9 * Hour);
    for (int day = 0; day < 7; ++day) {
        Mouse(day).Display()->installEventFilter(&counter);
    }
    QCoreApplication::sendPostedEvents(m_editor.get(), QEvent::UpdateRequest);
    counter.paints.clear();
    Mouse(1).Drag(Mouse(1).ColumnOf(12 * Hour));
    QTRY_VERIFY(counter.paints.value(Mouse(1).Display()) > 0);
    QVERIFY(counter.paints.value(Mouse(3).Display()) > 0);
    QCOMPARE(counter.paints.value(Mouse(2).Display()), 0);
    QVERIFY(ShowsGreen(3, 11 * Hour));
}

void tst_WeekPlanEditor::lockedDaysAreCommittedTogether()
{
    LockAll()->click();
    Drag(5, 22 * Hour, 23 * Hour);
    Week expected;
    expected.fill({{22 * Hour, 23 * Hour}});
    QCOMPARE(WeekText(Read()), WeekText(expected));
}

void tst_WeekPlanEditor::lockedDaysMergeTheSpanWithTheirOwnRegions()
{
    Week week;
    week[1] = {{7 * Hour, 8 * Hour}};
    week[4] = {{9 * Hour, 10 * Hour}, {12 * Hour, 13 * Hour}};
    m_editor->SetDefenceTime(week.data());
    LockDays({1, 2, 4});
    Drag(2, 8 * Hour, 9 * Hour);
    Week expected;
    expected[1] = {{7 * Hour, 9 * Hour}};
    expected[2] = {{8 * Hour, 9 * Hour}};
    expected[4] = {{8 * Hour, 10 * Hour}, {12 * Hour, 13 * Hour}};
    QCOMPARE(WeekText(Read()), WeekText(expected));
}

void tst_WeekPlanEditor::aLockedEraseErasesOnEveryDay()
{
    Week week;
    week[1] = {{8 * Hour, 12 * Hour}};
    week[3] = {{0, 86399}};
    week[4] = {{8 * Hour, 12 * Hour}}; // not locked
    m_editor->SetDefenceTime(week.data());
    LockDays({1, 3, 6});
    StartDrag(1, 9 * Hour, 10 * Hour);
    QVERIFY(!ShowsGreen(3, 9 * Hour + 1800));
    EndDrag(1, 10 * Hour);
    Week expected = week;
    expected[1] = {{8 * Hour, 9 * Hour}, {10 * Hour, 12 * Hour}};
    expected[3] = {{0, 9 * Hour}, {10 * Hour, 86399}};
    QCOMPARE(WeekText(Read()), WeekText(expected));
}

void tst_WeekPlanEditor::aDragOnAnUnlockedDayLeavesLockedOnesAlone()
{
    LockDays({1, 3});
    StartDrag(2, 8 * Hour, 9 * Hour);
    QVERIFY(!ShowsGreen(1, 8 * Hour + 1800));
    EndDrag(2, 9 * Hour);
    Week expected;
    expected[2] = {{8 * Hour, 9 * Hour}};
    QCOMPARE(WeekText(Read()), WeekText(expected));
}

void tst_WeekPlanEditor::oneFullDayRefusesForAll()
{
    Week week;
    week[1] = Regions(5);
    week[3] = Regions(6);
    m_editor->SetDefenceTime(week.data());
    LockDays({1, 3});
    QSignalSpy monday(Bar(1), &QAlarmDayEditor::SignalInternalShowTip);
    QSignalSpy wednesday(Bar(3), &QAlarmDayEditor::SignalInternalShowTip);
    Drag(1, 20 * Hour, 21 * Hour);
    QCOMPARE(WeekText(Read()), WeekText(week));
    QCOMPARE(monday.count(), 0);
    QCOMPARE(wednesday.count(), 1);
    QVERIFY(!ShowsGreen(1, 20 * Hour + 1800)); // the preview is over on both
    QVERIFY(!ShowsGreen(3, 20 * Hour + 1800));
}

void tst_WeekPlanEditor::theFirstFullDayInMapOrderShowsTheTip()
{
    Week week;
    week.fill(Regions(6));
    m_editor->SetDefenceTime(week.data());
    LockDays({0, 2, 5, 6});
    std::array<std::unique_ptr<QSignalSpy>, 7> tips;
    for (int day = 0; day < 7; ++day) {
        tips.at(static_cast<size_t>(day)) =
            std::make_unique<QSignalSpy>(Bar(day), &QAlarmDayEditor::SignalInternalShowTip);
    }
    Drag(5, 20 * Hour, 21 * Hour);
    // The map is ordered by the bars' addresses.
    QAlarmDayEditor* first = Bar(0);
    for (const int day : {2, 5, 6}) {
        first = std::less<>()(Bar(day), first) ? Bar(day) : first;
    }
    for (int day = 0; day < 7; ++day) {
        QCOMPARE(tips.at(static_cast<size_t>(day))->count(), Bar(day) == first ? 1 : 0);
    }
    QCOMPARE(WeekText(Read()), WeekText(week));
}

void tst_WeekPlanEditor::touchingRegionsOnOneDayRefuseForAllSilently()
{
    Week week;
    week[3] = {{8 * Hour, 9 * Hour}, {9 * Hour, 10 * Hour}};
    m_editor->SetDefenceTime(week.data());
    LockDays({1, 3});
    QSignalSpy monday(Bar(1), &QAlarmDayEditor::SignalInternalShowTip);
    QSignalSpy wednesday(Bar(3), &QAlarmDayEditor::SignalInternalShowTip);
    Drag(1, 20 * Hour, 21 * Hour);
    QCOMPARE(WeekText(Read()), WeekText(week));
    QCOMPARE(monday.count() + wednesday.count(), 0);
}

void tst_WeekPlanEditor::editSourcesEndWithTheDrag()
{
    LockDays({1, 3});
    Drag(1, 8 * Hour, 9 * Hour);
    // Were Monday still the source, Wednesday would now take Monday's last drag for its own.
    LockDays({1, 3}); // unlocks both
    Drag(3, 20 * Hour, 21 * Hour);
    QCOMPARE(Day(3), QStringLiteral("[28800 32400][72000 75600]"));
    QCOMPARE(Day(1), QStringLiteral("[28800 32400]"));
}

void tst_WeekPlanEditor::aDayUnlockedInMidDragKeepsItsSource()
{
    LockDays({1, 3});
    StartDrag(1, 8 * Hour, 9 * Hour);
    Lock(3)->click();
    EndDrag(1, 9 * Hour);
    QCOMPARE(Day(1), QStringLiteral("[28800 32400]"));
    QCOMPARE(Day(3), QString());
    // Wednesday still commits Monday's drag instead of its own.
    Drag(3, 20 * Hour, 21 * Hour);
    QCOMPARE(Day(3), QStringLiteral("[28800 32400]"));
    // And shows the next one of Monday.
    StartDrag(1, 12 * Hour, 13 * Hour);
    Bar(3)->UpdateDisplay();
    QVERIFY(ShowsGreen(3, 12 * Hour + 1800));
    EndDrag(1, 13 * Hour);
    QCOMPARE(Day(3), QStringLiteral("[28800 32400]"));
    // The next locked release lets it go.
    Lock(3)->click();
    Drag(1, 15 * Hour, 16 * Hour);
    Lock(3)->click();
    Drag(3, 20 * Hour, 21 * Hour);
    QCOMPARE(Day(3), QStringLiteral("[28800 32400][54000 57600][72000 75600]"));
}

void tst_WeekPlanEditor::aDayLockedInMidDragTakesPartWithItsOwnDrag()
{
    Drag(3, 20 * Hour, 21 * Hour);
    const Week none;
    m_editor->SetDefenceTime(none.data());
    LockDays({1});
    StartDrag(1, 8 * Hour, 9 * Hour);
    Lock(3)->click();
    EndDrag(1, 9 * Hour);
    QCOMPARE(Day(1), QStringLiteral("[28800 32400]"));
    QCOMPARE(Day(3), QStringLiteral("[72000 75600]")); // its own last one
}

void tst_WeekPlanEditor::aDoubleClickCommitsToAllLockedDays()
{
    Drag(3, 20 * Hour, 21 * Hour);
    const Week none;
    m_editor->SetDefenceTime(none.data());
    LockDays({1, 3});
    const BarMouse mouse = Mouse(1);
    const int x = mouse.ColumnOf(8 * Hour) + 1;
    mouse.Click(x);
    mouse.PressAgain(x);
    mouse.Release(x);
    QCOMPARE(Day(1), QStringLiteral("[28800 29700]"));
    QCOMPARE(Day(3), QStringLiteral("[28800 29700]")); // not its own old drag
}

void tst_WeekPlanEditor::anUnknownBarIsIgnored()
{
    LockAll()->click();
    QAlarmDayEditor stranger;
    m_editor->OnEditStart(&stranger);
    m_editor->OnEditing(&stranger);
    m_editor->OnEditReady(&stranger);
    m_editor->OnEditStart(nullptr);
    m_editor->OnEditing(nullptr);
    m_editor->OnEditReady(nullptr);
    QCOMPARE(WeekText(Read()), WeekText(Week()));
}

void tst_WeekPlanEditor::allLocksAndUnlocksEveryDay()
{
    LockAll()->click();
    for (int day = 0; day < 7; ++day) {
        QVERIFY(Lock(day)->isChecked());
    }
    LockAll()->click();
    for (int day = 0; day < 7; ++day) {
        QVERIFY(!Lock(day)->isChecked());
    }
}

void tst_WeekPlanEditor::allFollowsTheDays()
{
    LockAll()->click();
    Lock(4)->click();
    QVERIFY(!LockAll()->isChecked());
    QVERIFY(Lock(3)->isChecked());
    Lock(4)->click();
    QVERIFY(LockAll()->isChecked());
    LockAll()->click();
    for (int day = 0; day < 7; ++day) {
        QVERIFY(!LockAll()->isChecked());
        Lock(day)->click();
    }
    QVERIFY(LockAll()->isChecked());
}

void tst_WeekPlanEditor::clickingNobodyDoesNothing()
{
    LockAll()->setChecked(true); // out of step with the days on purpose
    m_editor->OnBtnClicked();
    QVERIFY(LockAll()->isChecked());
    QVERIFY(!Lock(0)->isChecked());
}

void tst_WeekPlanEditor::locksStayWhenAnotherWeekIsShown()
{
    LockDays({2, 5});
    const Week week;
    m_editor->SetDefenceTime(week.data());
    for (int day = 0; day < 7; ++day) {
        QCOMPARE(Lock(day)->isChecked(), day == 2 || day == 5);
    }
}

void tst_WeekPlanEditor::copyingReplacesExactlyTheNamedDays()
{
    Week week;
    week.fill({{5, 6}});
    m_editor->SetDefenceTime(week.data());
    Q_EMIT Bar(2)->SignalCopySettingToOthers(0x41, {{8 * Hour, 9 * Hour}});
    week[0] = week[6] = {{8 * Hour, 9 * Hour}};
    QCOMPARE(WeekText(Read()), WeekText(week));
}

void tst_WeekPlanEditor::copyingIgnoresLocksAndBitsWithoutADay()
{
    LockDays({1, 2});
    m_editor->OnCopySettingToOthers(0x7FFFFF80 | 4, {{8 * Hour, 9 * Hour}});
    Week expected;
    expected[2] = {{8 * Hour, 9 * Hour}};
    QCOMPARE(WeekText(Read()), WeekText(expected));
    m_editor->OnCopySettingToOthers(0, {{1, 2}});
    QCOMPARE(WeekText(Read()), WeekText(expected));
}

void tst_WeekPlanEditor::copyingANegativeMaskEnds()
{
    m_editor->OnCopySettingToOthers(-1, {{1, 2}}); // -1 / 2 is 0
    Week expected;
    expected[0] = {{1, 2}};
    QCOMPARE(WeekText(Read()), WeekText(expected));
    m_editor->OnCopySettingToOthers(std::numeric_limits<int>::min(), {{1, 2}});
    QCOMPARE(WeekText(Read()), WeekText(expected));
}

void tst_WeekPlanEditor::theScaleStandsOverTheFirstBar_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("form") << QSize(866, 437);
    QTest::newRow("narrow") << QSize(450, 437);
    QTest::newRow("wide") << QSize(1600, 437);
    QTest::newRow("high") << QSize(700, 900);
}

void tst_WeekPlanEditor::theScaleStandsOverTheFirstBar()
{
    QFETCH(QSize, size);
    m_editor->resize(size);
    const auto* scale = m_editor->findChild<QAlarmDayItem*>();
    const QWidget* display = Mouse(0).Display();
    const QPoint left = display->mapTo(m_editor.get(), QPoint(0, 0));
    QCOMPARE(scale->height(), 23);
    QCOMPARE(scale->width(), display->width() + 20);
    QCOMPARE(scale->x(), left.x() - 10);
    QCOMPARE(scale->y(), left.y() - 24);
    QVERIFY(scale->isVisible());
}

void tst_WeekPlanEditor::theScaleFollowsTheFirstBarAlone()
{
    // A longer name pushes the bars to the right and makes them narrower; the editor keeps its size.
    m_editor->resize(500, 437);
    m_editor->findChild<QLabel*>(QStringLiteral("label_3"))->setText(QString(15, QLatin1Char('W')));
    const auto* scale = m_editor->findChild<QAlarmDayItem*>();
    const QWidget* display = Mouse(0).Display();
    const int before = scale->x();
    QTRY_VERIFY(scale->x() > before);
    const QPoint left = display->mapTo(m_editor.get(), QPoint(0, 0));
    QCOMPARE(scale->geometry(), QRect(left.x() - 10, left.y() - 24, display->width() + 20, 23));
    // A higher first row pushes them down without resizing them.
    m_editor->findChild<QLabel*>(QStringLiteral("label"))->setMinimumHeight(60);
    const int top = scale->y();
    QTRY_VERIFY(scale->y() > top);
    QCOMPARE(scale->y(), display->mapTo(m_editor.get(), QPoint(0, 0)).y() - 24);
}

void tst_WeekPlanEditor::withoutADisplayTheScaleStays()
{
    const auto* scale = m_editor->findChild<QAlarmDayItem*>();
    const QRect before = scale->geometry();
    Mouse(0).Display()->setObjectName(QStringLiteral("elsewhere"));
    m_editor->resize(1200, 700);
    QCOMPARE(scale->geometry(), before);
}

void tst_WeekPlanEditor::everyButtonIsNamedAfterItsDay()
{
    QCOMPARE(LockAll()->accessibleName(), QStringLiteral("Lock all days"));
    for (int day = 0; day < 7; ++day) {
        QCOMPARE(Lock(day)->accessibleName(), QStringLiteral("Lock ") + DayNames().at(day));
        QCOMPARE(Bar(day)->findChild<QPushButton*>(QStringLiteral("btnDetail"))->accessibleName(),
                 QStringLiteral("Details for ") + DayNames().at(day));
        QCOMPARE(Mouse(day).Display()->accessibleName(), DayNames().at(day));
    }
}

QTEST_MAIN(tst_WeekPlanEditor)
#include "tst_week_plan_editor.moc"
