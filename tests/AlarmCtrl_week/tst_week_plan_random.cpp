#include "AlarmCtrl/QAlarmDayEditor.h"
#include "AlarmCtrl/QAlarmDefenceTimeEditor.h"
#include "BarMouse.h"
#include "DayBits.h"

#include <QObject>
#include <QPushButton>
#include <QRandomGenerator>
#include <QTest>

#include <algorithm>
#include <array>

namespace {

constexpr int DayCount = 7;
constexpr int Drags = 10000;

using Week = std::array<AlarmDefenceTime_t, DayCount>;

/// The second under a column, as a ruler would read it: by stepping, not by dividing.
int SecondUnder(int x, int width)
{
    if (x < 0) {
        return 0;
    }
    if (x > width) {
        return 86399;
    }
    int second = static_cast<int>(86399.0 * x / width);
    while (qint64{second} * width > qint64{86399} * x) {
        --second;
    }
    while (qint64{second + 1} * width <= qint64{86399} * x) {
        ++second;
    }
    return second;
}

} // namespace

/// Ten thousand drags over a week with random locks, compared with one bit for every second of every day.
class tst_WeekPlanRandom : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void lockedDaysChangeAllOrNothing();
};

void tst_WeekPlanRandom::lockedDaysChangeAllOrNothing()
{
    const quint32 seed = QRandomGenerator::global()->generate();
    QRandomGenerator random(seed);
    QAlarmDefenceTimeEditor editor;
    editor.show();
    QVERIFY(QTest::qWaitForWindowExposed(&editor));
    std::array<QAlarmDayEditor*, DayCount> bars{};
    std::array<QPushButton*, DayCount> locks{};
    for (size_t day = 0; day < DayCount; ++day) {
        bars.at(day) = editor.findChild<QAlarmDayEditor*>(QStringLiteral("editor%1").arg(day));
        locks.at(day) = editor.findChild<QPushButton*>(QStringLiteral("btn%1").arg(day));
    }
    const int width = BarMouse(bars[0]).Display()->width();

    Week week;
    std::array<DayBits, DayCount> armed;
    int refused = 0;
    int together = 0;
    for (int drag = 0; drag < Drags; ++drag) {
        locks.at(static_cast<size_t>(random.bounded(DayCount)))->click();
        if (drag % 500 == 0) {
            // Off the grid: what a person types.
            for (size_t day = 0; day < DayCount; ++day) {
                week.at(day).clear();
                int second = random.bounded(10000);
                while (week.at(day).size() < 6 && second < 80000) {
                    const int end = qMin(86399, second + random.bounded(1, 9000));
                    week.at(day).append({second, end});
                    second = end + random.bounded(1, 9000);
                }
                armed.at(day) = DayBits(week.at(day));
            }
            editor.SetDefenceTime(week.data());
        }

        const auto dragged = static_cast<size_t>(random.bounded(DayCount));
        const BarMouse mouse(bars.at(dragged));
        const int from = random.bounded(width + 1);
        const int reach = random.bounded(5) == 0 ? width + 40 : 40;
        const int to = from + random.bounded(-reach, reach + 1);
        const int hover = random.bounded(2) == 0 ? from : random.bounded(width + 1);
        const int hovered = SecondUnder(hover, width);
        const bool erase = std::any_of(
            week.at(dragged).cbegin(), week.at(dragged).cend(), [&](const AlarmTimeRegion& region) {
                const auto [first, last] = DayBits::Quarters(region.Begin, region.End);
                return first <= hovered && hovered <= last;
            });
        mouse.Hover(hover);
        mouse.Press(from);
        for (int moves = random.bounded(3); moves > 0; --moves) {
            mouse.Drag(random.bounded(width + 1));
        }
        mouse.Release(to);

        const int press = SecondUnder(from, width);
        const int current = SecondUnder(to, width);
        const auto [begin, end] = DayBits::Quarters(qMin(press, current), qMax(press, current));
        const bool covers = press != current || press % 900 != 0;
        std::array<DayBits, DayCount> wanted = armed;
        bool allowed = true;
        int affected = 0;
        for (size_t day = 0; day < DayCount; ++day) {
            const bool takesPart =
                day == dragged || (locks.at(dragged)->isChecked() && locks.at(day)->isChecked());
            if (!takesPart || !covers) {
                continue;
            }
            ++affected;
            erase ? wanted.at(day).Disarm(begin, end) : wanted.at(day).Arm(begin, end);
            allowed = allowed && wanted.at(day).Runs() <= 6;
        }
        Week after;
        editor.GetDefenceTime(after.data());
        for (size_t day = 0; day < DayCount; ++day) {
            const QString where = QStringLiteral("seed %1, drag %2, day %3").arg(seed).arg(drag).arg(day);
            QVERIFY2(Unsoundness(after.at(day)).isEmpty(), qPrintable(where));
            if (allowed) {
                QVERIFY2(DayBits(after.at(day)) == wanted.at(day), qPrintable(where));
            } else {
                QVERIFY2(after.at(day) == week.at(day), qPrintable(where));
            }
        }
        if (allowed) {
            armed = wanted;
        } else {
            ++refused;
        }
        together += affected > 1 ? 1 : 0;
        week = after;
    }
    // Without enough of both, nothing was tried.
    QVERIFY2(refused > Drags / 50, qPrintable(QString::number(refused)));
    QVERIFY2(Drags - refused > Drags / 10, qPrintable(QString::number(refused)));
    QVERIFY2(together > Drags / 10, qPrintable(QString::number(together)));
}

QTEST_MAIN(tst_WeekPlanRandom)
#include "tst_week_plan_random.moc"
