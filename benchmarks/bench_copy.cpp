// One door's schemes copied to 10,000 doors, and the schemes of single devices removed from among those,
// beside as many plain insertions and removals in the same run.

#include "scheme_editor/DeviceSchemes.h"
#include "scheme_editor/SchemeCopy.h"

#include <benchmark/benchmark.h>

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace {

constexpr int s_iDoors = 10000;
constexpr int s_iDoorsPerController = 8;
constexpr int s_iTypes = 80;
constexpr int s_iFirstController = 100;
constexpr int s_iRemovals = 1000; // of the 1,250 controllers
const QString s_strSource = QStringLiteral("1$1$0$2");

/// Bytes that the heap holds; 0 where the platform does not tell.
double HeapBytes()
{
#if defined(__GLIBC__) && (__GLIBC__ > 2 || __GLIBC_MINOR__ >= 33)
    const struct mallinfo2 info = mallinfo2();
    return static_cast<double>(info.uordblks + info.hblkhd);
#else
    return 0.0;
#endif
}

/// Eighty event types, the per-device one among them.
QList<int> Types()
{
    QList<int> types;
    for (int type = 1; type <= s_iTypes; ++type)
        types.append(type);
    return types;
}

AlarmInfo Scheme()
{
    AlarmInfo info;
    info.bOpen = true;
    info.listAlarmOut = {{QStringLiteral("7$3$0$0"), true, 20}, {QStringLiteral("8$3$0$0"), false, 45}};
    return info;
}

AlarmInfoMap SourceOnly()
{
    AlarmInfoMap map;
    const QList<int> types = Types();
    for (const int type : types)
        map.insert(*EventSource::SchemeKey(s_strSource, type), Scheme());
    return map;
}

QList<QString> Targets()
{
    QList<QString> targets;
    targets.reserve(s_iDoors);
    for (int door = 0; door < s_iDoors; ++door)
        targets.append(EventSource::Door(s_iFirstController + door / s_iDoorsPerController, 100000 + door));
    return targets;
}

void Count(benchmark::State& state, int iEntries, double bytes)
{
    state.counters["entries"] = iEntries;
    if (bytes > 0.0)
        state.counters["bytes/entry"] = bytes / iEntries;
    state.SetItemsProcessed(state.iterations() * iEntries);
}

// The plain container operation: as many entries, in order, without any rule.
void PlainInsert(benchmark::State& state)
{
    const QList<int> types = Types();
    const QList<QString> targets = Targets();
    const AlarmInfo scheme = Scheme();
    double bytes = 0.0;
    int entries = 0;
    for (auto _ : state) {
        const double before = HeapBytes();
        AlarmInfoMap map;
        for (const QString& strTarget : targets) {
            for (const int type : types)
                map.insert(map.cend(), {strTarget, type}, scheme);
        }
        benchmark::DoNotOptimize(map);
        state.PauseTiming();
        bytes = HeapBytes() - before;
        entries = map.size();
        map.clear();
        state.ResumeTiming();
    }
    Count(state, entries, bytes);
}

void CopyIntoEmpty(benchmark::State& state)
{
    const QList<int> types = Types();
    const QList<QString> targets = Targets();
    double bytes = 0.0;
    int entries = 0;
    for (auto _ : state) {
        state.PauseTiming();
        AlarmInfoMap map = SourceOnly();
        const double before = HeapBytes();
        state.ResumeTiming();
        map = SchemeCopy::Copy(std::move(map), s_strSource, targets, types);
        state.PauseTiming();
        bytes = HeapBytes() - before;
        entries = map.size();
        map.clear();
        state.ResumeTiming();
    }
    Count(state, entries, bytes);
}

void CopyOverExisting(benchmark::State& state)
{
    const QList<int> types = Types();
    const QList<QString> targets = Targets();
    AlarmInfoMap map = SchemeCopy::Copy(SourceOnly(), s_strSource, targets, types);
    for (auto _ : state)
        map = SchemeCopy::Copy(std::move(map), s_strSource, targets, types);
    Count(state, map.size(), 0.0);
}

void ClearTargets(benchmark::State& state)
{
    const QList<int> types = Types();
    const QList<QString> targets = Targets();
    int entries = 0;
    for (auto _ : state) {
        state.PauseTiming();
        AlarmInfoMap map = SchemeCopy::Copy(SourceOnly(), s_strSource, targets, types);
        entries = map.size();
        state.ResumeTiming();
        map = SchemeCopy::Copy(std::move(map), QStringLiteral("9$1$0$9"), targets, types);
    }
    Count(state, entries, 0.0);
}

// The plain container operation of a removal: as many entries, one after the other, without any rule.
void PlainErase(benchmark::State& state)
{
    AlarmInfoMap map = SchemeCopy::Copy(SourceOnly(), s_strSource, Targets(), Types());
    const int before = map.size();
    const int each = s_iDoorsPerController * (s_iTypes - 1) + 1;
    auto place = map.begin();
    for (auto _ : state) {
        for (int entry = 0; entry < each; ++entry)
            place = map.erase(place);
    }
    state.counters["entries"] = static_cast<double>(before - map.size()) / s_iRemovals;
}

void RemoveDevice(benchmark::State& state)
{
    AlarmInfoMap map = SchemeCopy::Copy(SourceOnly(), s_strSource, Targets(), Types());
    const int before = map.size();
    int64_t device = s_iFirstController;
    for (auto _ : state)
        DeviceSchemes::Remove(map, device++);
    state.counters["entries"] = static_cast<double>(before - map.size()) / s_iRemovals;
}

// What a removal would cost that looked at every entry.
void WalkWholeMap(benchmark::State& state)
{
    const AlarmInfoMap map = SchemeCopy::Copy(SourceOnly(), s_strSource, Targets(), Types());
    for (auto _ : state) {
        int found = 0;
        for (auto it = map.cbegin(); it != map.cend(); ++it)
            found += EventSource::BelongsToDevice(it.key().strEventSource, s_iFirstController) ? 1 : 0;
        benchmark::DoNotOptimize(found);
    }
}

BENCHMARK(PlainInsert)->Unit(benchmark::kMillisecond);
BENCHMARK(CopyIntoEmpty)->Unit(benchmark::kMillisecond);
BENCHMARK(CopyOverExisting)->Unit(benchmark::kMillisecond);
BENCHMARK(ClearTargets)->Unit(benchmark::kMillisecond)->Iterations(3);
BENCHMARK(PlainErase)->Unit(benchmark::kMillisecond)->Iterations(s_iRemovals);
BENCHMARK(RemoveDevice)->Unit(benchmark::kMillisecond)->Iterations(s_iRemovals);
BENCHMARK(WalkWholeMap)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
