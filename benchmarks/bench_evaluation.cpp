// What is known about the schemes of a whole site, beside loading them from their file: the verdict of every
// scheme at one moment, the coverage of the week, the check. "ratio" is the time for a scheme to the time of
// loading one.

#include "AlarmCtrl/AlarmSchemeData/AlarmSchemeDatabaseParser.h"
#include "AlarmCtrl/AlarmSchemeData/AlarmSchemeStoreReader.h"
#include "platform/SystemLibrary/SystemPaths.h"
#include "platform/lxl/DPrintLog.h"
#include "scheme_services/evaluation/OutputUse.h"
#include "scheme_services/evaluation/SchemeCheck.h"
#include "scheme_services/evaluation/SchemeMoment.h"
#include "scheme_services/evaluation/SiteIndex.h"
#include "scheme_services/evaluation/WeekCoverage.h"

#include <benchmark/benchmark.h>

#include <QDir>
#include <QTemporaryDir>

#include <chrono>
#include <functional>

namespace {

constexpr int s_typesOfDoor = 80;
constexpr int s_doorsOfDevice = 8;
constexpr int s_stored = 100000;

double Seconds(const std::function<void()>& work)
{
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

/// One of three schemes is switched on, with a week of its own and three outputs.
AlarmInfo Scheme(int iScheme)
{
    AlarmInfo info;
    if (iScheme % 3 != 0)
        return info;
    info.bOpen = true;
    info.bOpenSound = iScheme % 2 == 0;
    for (int link = 0; link < 3; ++link)
        info.listAlarmOut.append({EventSource::AlarmOutput(8000000 + (iScheme + link) % 500), true, 20});
    for (int day = 1; day < 6; ++day)
        info.defenceTime[day] = {{0, 7 * 3600 + 60 * (iScheme % 60)}, {18 * 3600, 86399}};
    return info;
}

int64_t DeviceOf(int iDoor)
{
    return 1 + iDoor / s_doorsOfDevice;
}

AlarmInfoMap Schemes(int iCount)
{
    AlarmInfoMap map;
    for (int scheme = 0; scheme < iCount; ++scheme) {
        const int door = scheme / s_typesOfDoor;
        map.insert({EventSource::Door(DeviceOf(door), 1000000 + door), 101 + scheme % s_typesOfDoor},
                   Scheme(scheme));
    }
    return map;
}

/// The doors of the schemes and the outputs that they link.
Site SiteOf(int iSchemes)
{
    Site site;
    const auto add = [](VantaLogic::DeviceInfo& device, int64_t iChannel, int32_t iType) {
        VantaLogic::ChannelInfo channel;
        channel.iChannelId = iChannel;
        channel.iDeviceId = device.iDeviceId;
        channel.iChannelType = iType;
        channel.iNumber = device.channels.size();
        channel.strName = QString::number(iChannel);
        device.channels.append(channel);
    };
    const int doors = iSchemes / s_typesOfDoor;
    for (int door = 0; door < doors; ++door) {
        if (door % s_doorsOfDevice == 0) {
            VantaLogic::DeviceInfo device;
            device.iDeviceId = DeviceOf(door);
            device.iDeviceType = VantaLogic::DeviceTypeAccessControl;
            device.bOnline = door % 96 != 0;
            device.strName = QString::number(device.iDeviceId);
            site.devices.append(device);
        }
        add(site.devices.last(), 1000000 + door, VantaLogic::ChannelTypeDoor);
    }
    for (int output = 0; output < 500; ++output)
        add(site.devices.first(), 8000000 + output, VantaLogic::ChannelTypeAlarmOutput);
    return site;
}

/// Seconds for loading one scheme of a site from its file.
double LoadTime()
{
    static const double seconds = []() {
        const QTemporaryDir directory;
        SystemPaths::SetDataDirectory(directory.path());
        QDir().mkpath(QGetDatabaseDirPath());
        const AlarmInfoMap map = Schemes(s_stored);
        AlarmSchemeDatabaseParser().SaveAll(&map);
        const QString strFile =
            QDir(QGetDatabaseDirPath()).absoluteFilePath(QStringLiteral("AlarmScheme.db"));
        AlarmInfoMap loaded;
        const double all = Seconds([&]() { AlarmSchemeStoreReader(strFile).Read(loaded); });
        if (loaded.size() != s_stored)
            qFatal("the schemes were not stored");
        return all / s_stored;
    }();
    return seconds;
}

void Measure(benchmark::State& state, const std::function<void(const AlarmInfoMap&)>& work)
{
    const int count = static_cast<int>(state.range(0));
    const AlarmInfoMap map = Schemes(count);
    double seconds = 0.0;
    for (auto _ : state)
        seconds += Seconds([&]() { work(map); });
    const double each = seconds / static_cast<double>(state.iterations()) / count;
    state.counters["ratio"] = each / LoadTime();
}

void EvaluateEveryScheme(benchmark::State& state)
{
    const QDateTime at(QDate(2026, 10, 25), QTime(8, 30), QTimeZone("Europe/Berlin"));
    Measure(state, [&at](const AlarmInfoMap& map) {
        SchemeMoment moment(at);
        int armed = 0;
        for (const AlarmInfo& info : map)
            armed += moment.Evaluate(&info).verdict == SchemeVerdict::Armed ? 1 : 0;
        benchmark::DoNotOptimize(armed);
    });
}

void JudgeEveryScheme(benchmark::State& state)
{
    const QDateTime at(QDate(2026, 10, 25), QTime(8, 30), QTimeZone("Europe/Berlin"));
    Measure(state, [&at](const AlarmInfoMap& map) {
        const SchemeMoment moment(at);
        int armed = 0;
        for (const AlarmInfo& info : map)
            armed += moment.Judge(&info) == SchemeVerdict::Armed ? 1 : 0;
        benchmark::DoNotOptimize(armed);
    });
}

void CoverTheWeek(benchmark::State& state)
{
    Measure(state,
            [](const AlarmInfoMap& map) { benchmark::DoNotOptimize(WeekCoverage::Of(map, {}).iEnabled); });
}

void CheckEverything(benchmark::State& state)
{
    const SiteIndex site(SiteOf(static_cast<int>(state.range(0))));
    Measure(state, [&site](const AlarmInfoMap& map) {
        const QVector<Finding> findings = SchemeCheck::Run(map, site);
        benchmark::DoNotOptimize(findings.size());
    });
}

void FindWhoSwitches(benchmark::State& state)
{
    Measure(state, [](const AlarmInfoMap& map) {
        benchmark::DoNotOptimize(OutputUse::Of(map, EventSource::AlarmOutput(8000007)).size());
    });
}

BENCHMARK(EvaluateEveryScheme)->Arg(100000)->Arg(800000)->Unit(benchmark::kMillisecond);
BENCHMARK(JudgeEveryScheme)->Arg(800000)->Unit(benchmark::kMillisecond);
BENCHMARK(CoverTheWeek)->Arg(100000)->Arg(800000)->Unit(benchmark::kMillisecond);
BENCHMARK(CheckEverything)->Arg(100000)->Arg(800000)->Unit(benchmark::kMillisecond);
BENCHMARK(FindWhoSwitches)->Arg(800000)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv)
{
    lxl::DPrintLog::instance().SetStandardError(false);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
