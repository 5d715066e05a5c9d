#pragma once

#include "AlarmCtrl/AlarmSchemeData/AlarmSchemeDatabaseParser.h"
#include "platform/SystemLibrary/SystemPaths.h"

#include <benchmark/benchmark.h>

#include <QDir>
#include <QTemporaryDir>

#include <algorithm>
#include <chrono>
#include <ctime>
#include <functional>
#include <vector>

// Schemes, a place for their file and the measuring of what is done to them.

constexpr int s_iTypesOfDoor = 80;
constexpr int s_iOutputs = 500;
constexpr int s_iCameras = 300;

inline double Seconds(const std::function<void()>& work)
{
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

inline AlarmInfo RichScheme(int iScheme)
{
    AlarmInfo info;
    info.bOpen = true;
    info.bOpenSound = true;
    info.videoSplit.SplitRow = 2;
    info.videoSplit.SplitCloum = 2;
    info.videoSplit.SplitCount = 4;
    info.videoSplit.cells[iScheme % 4].iCombine = 1;
    for (int window = 0; window < 2; ++window) {
        info.videoSplit.videoLinks[window].strLinkDevID =
            EventSource::Door(9000000 + (iScheme + window) % s_iCameras, 1);
    }
    for (int link = 0; link < 3; ++link) {
        info.listAlarmOut.append(
            AlarmLinkAlarmOut{EventSource::AlarmOutput(8000000 + (iScheme + link) % s_iOutputs), true, 20});
    }
    for (int day = 1; day < 6; ++day)
        info.defenceTime[day] = {{0, 7 * 3600 + 60 * (iScheme % 60)}, {18 * 3600, 86399}};
    return info;
}

inline AlarmInfoMap Schemes(int iCount)
{
    AlarmInfoMap map;
    for (int scheme = 0; scheme < iCount; ++scheme) {
        const AlarmSourceKey key{EventSource::Door(1 + scheme / s_iTypesOfDoor / 8, scheme / s_iTypesOfDoor),
                                 scheme % s_iTypesOfDoor};
        map.insert(key, scheme % 3 == 0 ? RichScheme(scheme) : AlarmInfo());
    }
    return map;
}

/// A data directory of its own, in effect during the object's life.
class Folder
{
public:
    Folder()
    {
        SystemPaths::SetDataDirectory(m_directory.path());
        QDir().mkpath(QGetDatabaseDirPath());
    }
    ~Folder() { SystemPaths::SetDataDirectory(QString()); }
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;
    QString File() const
    {
        return QDir(QGetDatabaseDirPath()).absoluteFilePath(QStringLiteral("AlarmScheme.db"));
    }
    QString Other() const { return QDir(m_directory.path()).absoluteFilePath(QStringLiteral("raw.db")); }

private:
    QTemporaryDir m_directory;
};

inline void Check(bool bFine, const char* szWhat)
{
    if (!bFine)
        qFatal("%s", szWhat);
}

/// Some runs, the store's and the raw pass's turn by turn. The fastest of each counts: what else the machine
/// does never makes a run faster.
struct Timing
{
    double Ratio() const { return Fastest(store) / Fastest(raw); }
    static double Fastest(const std::vector<double>& times)
    {
        return *std::min_element(times.cbegin(), times.cend());
    }
    void RunStore(const std::function<void()>& work)
    {
        const std::clock_t before = std::clock();
        store.push_back(Seconds(work));
        processor.push_back(static_cast<double>(std::clock() - before) / CLOCKS_PER_SEC);
    }
    void RunRaw(const std::function<void()>& work) { raw.push_back(Seconds(work)); }

    std::vector<double> store;
    std::vector<double> processor; ///< what the processor spent on the store's runs, where that was asked
    std::vector<double> raw;
};

inline void Report(benchmark::State& state, const Timing& timing)
{
    const double count = static_cast<double>(state.range(0));
    state.counters["ratio"] = timing.Ratio();
    state.counters["us_per_scheme"] = Timing::Fastest(timing.store) * 1e6 / count;
    if (!timing.processor.empty())
        state.counters["processor_us_per_scheme"] = Timing::Fastest(timing.processor) * 1e6 / count;
}

inline int Count(const benchmark::State& state)
{
    return static_cast<int>(state.range(0));
}

inline void Save(AlarmSchemeDatabaseParser& store, const AlarmInfoMap& map)
{
    Check(store.SaveAll(&map) == 0 && store.FailedStatements() == 0, "a save failed");
}
