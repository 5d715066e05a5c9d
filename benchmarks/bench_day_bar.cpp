#include "AlarmCtrl/DayBarPicture.h"
#include "AlarmCtrl/DefenceTime.h"
#include "AlarmCtrl/QAlarmDayEditor.h"
#include "AlarmCtrl/QAlarmDefenceTimeEditor.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPushButton>
#include <QTest>

#include <benchmark/benchmark.h>

#include <array>

// How fast a drag follows the pointer: one mouse move, from the event until every bar that shows the drag has
// been painted, with the dragged bar alone and with all seven locked. The density is fixed for a program,
// since the application takes it when it starts: 1 at the form's own size, 2 in a window of 3840 x 2160
// device pixels.

namespace {

constexpr bool Dense = BENCH_DENSITY == 2;

AlarmDefenceTime_t FiveRegions()
{
    return {{3600, 7200}, {10800, 14400}, {18000, 21600}, {25200, 28800}, {32400, 36000}};
}

/// Proof that a step paints what it should.
class PaintCounter : public QObject
{
public:
    bool eventFilter(QObject*, QEvent* event) override
    {
        count += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
    int64_t count = 0;
};

void Send(QWidget* display, QEvent::Type type, int x, Qt::MouseButton button, Qt::MouseButtons held)
{
    QMouseEvent event(type, QPointF(x, 5), button, held, Qt::NoModifier);
    QCoreApplication::sendEvent(display, &event);
}

void MoveStep(benchmark::State& state)
{
    const bool bLocked = state.range(0) == 7;
    QAlarmDefenceTimeEditor editor;
    editor.resize(Dense ? QSize(1920, 1080) : QSize(866, 437));
    std::array<AlarmDefenceTime_t, DefenceTime::DayCount> week;
    week.fill(FiveRegions());
    editor.SetDefenceTime(week.data());
    if (bLocked) {
        editor.findChild<QPushButton*>(QStringLiteral("btnAll"))->click();
    }
    editor.show();
    if (!QTest::qWaitForWindowExposed(&editor)) {
        state.SkipWithError("the window was not shown");
        return;
    }
    const auto flush = [&editor] { QCoreApplication::sendPostedEvents(&editor, QEvent::UpdateRequest); };
    flush();

    auto* pDisplay = editor.findChild<QWidget*>(QStringLiteral("editor1"))
                         ->findChild<QWidget*>(QStringLiteral("wndDisplay"));
    const int width = pDisplay->width();
    Send(pDisplay, QEvent::MouseMove, width - 1, Qt::NoButton, Qt::NoButton);
    Send(pDisplay, QEvent::MouseButtonPress, width - 1, Qt::LeftButton, Qt::LeftButton);
    flush();
    PaintCounter paints;
    for (int day = 0; day < DefenceTime::DayCount; ++day) {
        editor.findChild<QWidget*>(QStringLiteral("editor%1").arg(day))
            ->findChild<QWidget*>(QStringLiteral("wndDisplay"))
            ->installEventFilter(&paints);
    }
    int x = 0;
    for (auto _ : state) {
        x = (x + 7) % width;
        Send(pDisplay, QEvent::MouseMove, x, Qt::NoButton, Qt::LeftButton);
        flush();
    }
    state.counters["painted"] =
        benchmark::Counter(static_cast<double>(paints.count), benchmark::Counter::kAvgIterations);
    Send(pDisplay, QEvent::MouseButtonRelease, x, Qt::LeftButton, Qt::NoButton);
}

void DrawPicture(benchmark::State& state)
{
    const DayBarPicture::Content content{FiveRegions(), DefenceTime::Drag{50000, 60000, false},
                                         QColor(0x3A, 0xAA, 0x24), QColor(0xDD, 0xDD, 0xDD)};
    for (auto _ : state) {
        benchmark::DoNotOptimize(DayBarPicture::Draw(QSize(504, 24), BENCH_DENSITY, content));
    }
}

void MergeDrag(benchmark::State& state)
{
    const AlarmDefenceTime_t regions = FiveRegions();
    for (auto _ : state) {
        benchmark::DoNotOptimize(DefenceTime::Merge(regions, {50000, 60000, false}));
    }
}

} // namespace

int main(int argc, char** argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    qputenv("QT_SCALE_FACTOR", Dense ? "2" : "1");
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 1;
    }
    benchmark::RegisterBenchmark("MoveStep", MoveStep)
        ->ArgName("bars")
        ->Arg(1)
        ->Arg(7)
        ->Unit(benchmark::kMicrosecond);
    benchmark::RegisterBenchmark("DrawPicture", DrawPicture)->Unit(benchmark::kMicrosecond);
    benchmark::RegisterBenchmark("MergeDrag", MergeDrag)->Unit(benchmark::kMicrosecond);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
