// The scheme store beside a raw prepared pass over the same rows, with the same schema, indexes, foreign keys
// and journal, in the same run. A third of the schemes have outputs, painted days and video links.
//
// "--instructions save" and "--instructions load" do one save, or one load, of 1,000 schemes and nothing
// else, for a program that counts instructions.

#include "benchmarks/SchemesToMeasure.h"
#include "client/store/AlarmSchemeStoreBackend.h"
#include "platform/lxl/DPrintLog.h"

#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <sqlite3.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstring>
#include <functional>
#include <memory>
#include <vector>

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace {

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

constexpr std::array<const char*, 9> s_tables{
    "AlarmUniqueID",     "AlarmLinkVideoID",      "AlarmLinkAlarmOutID",
    "AlarmBaseInfo",     "AlarmSplitInfo",        "AlarmLinkVideoInfo",
    "AlarmLinkDoorInfo", "AlarmLinkAlarmOutInfo", "AlarmDefenceTimeInfo"};

/// A connection as the store has one, and plain prepared passes over whole tables.
class RawPass
{
public:
    explicit RawPass(const QString& strPath)
    {
        Check(sqlite3_open(strPath.toUtf8().constData(), &m_pDatabase) == SQLITE_OK, "cannot open a file");
        Run("PRAGMA foreign_keys = ON; PRAGMA cache_size=20000;");
    }
    ~RawPass() { sqlite3_close(m_pDatabase); }
    RawPass(const RawPass&) = delete;
    RawPass& operator=(const RawPass&) = delete;

    void Run(const QByteArray& sql)
    {
        Check(sqlite3_exec(m_pDatabase, sql.constData(), nullptr, nullptr, nullptr) == SQLITE_OK, sql);
    }

    /// Fetches every column of every row; the keys go into a map of plain records.
    AlarmInfoMap Scan()
    {
        AlarmInfoMap map;
        Run("begin");
        for (const char* table : s_tables) {
            sqlite3_stmt* statement = Prepare(QByteArray("select * from ") + table);
            const bool keys = std::strcmp(table, "AlarmUniqueID") == 0;
            const int columns = sqlite3_column_count(statement);
            while (sqlite3_step(statement) == SQLITE_ROW) {
                for (int column = 0; column < columns; ++column) {
                    if (sqlite3_column_type(statement, column) == SQLITE_TEXT) {
                        benchmark::DoNotOptimize(sqlite3_column_text(statement, column));
                    } else {
                        benchmark::DoNotOptimize(sqlite3_column_int64(statement, column));
                    }
                }
                if (keys) {
                    const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, 1));
                    map.insert({QString::fromUtf8(text), sqlite3_column_int(statement, 2)}, AlarmInfo());
                }
            }
            sqlite3_finalize(statement);
        }
        Run("commit");
        return map;
    }

    /// All rows of a file, kept in memory, to be inserted as they are.
    void Collect()
    {
        for (const char* table : s_tables) {
            Table rows{table, 0, {}};
            sqlite3_stmt* statement = Prepare(QByteArray("select * from ") + table);
            rows.iColumns = sqlite3_column_count(statement);
            while (sqlite3_step(statement) == SQLITE_ROW) {
                for (int column = 0; column < rows.iColumns; ++column)
                    rows.values.push_back(sqlite3_value_dup(sqlite3_column_value(statement, column)));
            }
            sqlite3_finalize(statement);
            m_rows.push_back(rows);
        }
    }
    void Forget()
    {
        for (const Table& table : m_rows) {
            for (sqlite3_value* value : table.values)
                sqlite3_value_free(value);
        }
        m_rows.clear();
    }

    /// Inserts what was collected elsewhere; ids are given anew by the tables.
    void Insert(const RawPass& from)
    {
        Run("begin");
        for (const Table& table : from.m_rows) {
            QByteArray marks("null");
            for (int column = 1; column < table.iColumns; ++column)
                marks += ",?";
            sqlite3_stmt* statement =
                Prepare(QByteArray("insert into ") + table.szName + " values(" + marks + ')');
            const size_t columns = static_cast<size_t>(table.iColumns);
            for (size_t row = 0; row < table.values.size(); row += columns) {
                for (size_t column = 1; column < columns; ++column)
                    sqlite3_bind_value(statement, static_cast<int>(column), table.values[row + column]);
                Check(sqlite3_step(statement) == SQLITE_DONE, "a raw row was refused");
                sqlite3_reset(statement);
            }
            sqlite3_finalize(statement);
        }
        Run("commit");
    }

private:
    struct Table
    {
        const char* szName;
        int iColumns;
        std::vector<sqlite3_value*> values;
    };

    sqlite3_stmt* Prepare(const QByteArray& sql)
    {
        sqlite3_stmt* statement = nullptr;
        Check(sqlite3_prepare_v2(m_pDatabase, sql.constData(), -1, &statement, nullptr) == SQLITE_OK, sql);
        return statement;
    }

    sqlite3* m_pDatabase = nullptr;
    std::vector<Table> m_rows;
};

void load_vs_raw(benchmark::State& state)
{
    const Folder folder;
    const AlarmInfoMap map = Schemes(Count(state));
    AlarmSchemeDatabaseParser store;
    Save(store, map);
    RawPass raw(folder.File());
    Timing timing;
    AlarmInfoMap scanned = raw.Scan();
    for (auto _ : state) {
        AlarmInfoMap loaded;
        timing.RunStore([&] { store.ReadAll(&loaded); });
        state.SetIterationTime(timing.store.back());
        Check(loaded.size() == map.size(), "schemes are missing");
        loaded.clear();
        scanned.clear();
        timing.RunRaw([&] { scanned = raw.Scan(); });
    }
    Report(state, timing);
}

/// A file with the schema and its indexes and no scheme, closed.
void MakeEmpty(const QString& strPath)
{
    const Folder folder;
    {
        const AlarmSchemeDatabaseParser store;
    }
    QFile::remove(strPath);
    Check(QFile::copy(folder.File(), strPath), "cannot copy a file");
}

void SaveBesideRaw(benchmark::State& state, bool bAgain)
{
    const AlarmInfoMap map = Schemes(Count(state));
    const QTemporaryDir directory;
    const QString empty = QDir(directory.path()).absoluteFilePath(QStringLiteral("empty.db"));
    MakeEmpty(empty);
    Timing timing;
    for (auto _ : state) {
        const Folder folder;
        AlarmSchemeDatabaseParser store;
        if (bAgain)
            Save(store, map);
        timing.RunStore([&] { Save(store, map); });
        state.SetIterationTime(timing.store.back());

        RawPass from(folder.File());
        from.Collect();
        // The ids of the schemes are those of an empty file; rows that refer to them go in unchanged.
        Check(QFile::copy(empty, folder.Other()), "cannot copy a file");
        RawPass raw(folder.Other());
        timing.RunRaw([&] { raw.Insert(from); });
        from.Forget();
    }
    Report(state, timing);
}

void save_new_vs_raw(benchmark::State& state)
{
    SaveBesideRaw(state, false);
}

void save_again_vs_raw(benchmark::State& state)
{
    SaveBesideRaw(state, true);
}

/// As the client saves: compare with what the file holds, then write what differs.
void SaveChanges(AlarmSchemeStoreBackend& client, const AlarmInfoMap& map, int iExpected)
{
    client.Save(map);
    client.WaitForSaves();
    Check(client.LastOutcome().IsSuccess() && client.LastOutcome().iSchemes == iExpected,
          "a save of changes failed");
}

void save_one_vs_whole(benchmark::State& state)
{
    const Folder folder;
    {
        AlarmSchemeDatabaseParser store;
        Save(store, Schemes(Count(state)));
    }
    AlarmSchemeStoreBackend client;
    AlarmInfoMap map; // a program works on what it has loaded
    Check(client.Load(map) == 0, "the load failed");
    Timing timing;
    int turn = 0;
    for (auto _ : state) {
        for (int change = 0; change < 5; ++change) {
            AlarmInfo& changed = *std::next(map.begin(), ++turn * 37 % map.size());
            changed.bOpenSound = !changed.bOpenSound;
            timing.RunStore([&] { SaveChanges(client, map, 1); });
        }
        state.SetIterationTime(timing.store.back());
        for (AlarmInfo& info : map)
            info.bOpenSound = !info.bOpenSound;
        timing.RunRaw([&] { SaveChanges(client, map, Count(state)); });
    }
    Report(state, timing);
}

void bytes_per_default_scheme(benchmark::State& state)
{
    const Folder folder;
    AlarmSchemeDatabaseParser store;
    AlarmInfoMap map = Schemes(Count(state));
    for (AlarmInfo& info : map)
        info = AlarmInfo();
    Save(store, map);
    map.clear();
    for (auto _ : state) {
        // Whatever a first load keeps for ever is not the map's.
        store.ReadAll(&map);
        map = AlarmInfoMap();
        const double before = HeapBytes();
        state.SetIterationTime(Seconds([&] { store.ReadAll(&map); }));
        state.counters["number"] = (HeapBytes() - before) / static_cast<double>(map.size());
    }
}

int RunOnce(const QByteArray& work)
{
    const Folder folder;
    const AlarmInfoMap map = Schemes(1000);
    AlarmSchemeDatabaseParser store;
    if (work == "load")
        Save(store, map);
    AlarmInfoMap loaded;
    // The counting program looks at these two calls only.
    if (work == "load") {
        Check(store.ReadAll(&loaded) == 0 && loaded == map, "the schemes were not read");
    } else {
        Save(store, map);
    }
    return 0;
}

void Sizes(benchmark::internal::Benchmark* pBenchmark)
{
    pBenchmark->Arg(1000)->Arg(10000)->Arg(100000)->Iterations(5)->UseManualTime()->Unit(
        benchmark::kMillisecond);
}
BENCHMARK(load_vs_raw)->Apply(Sizes);
BENCHMARK(save_new_vs_raw)->Apply(Sizes);
BENCHMARK(save_again_vs_raw)->Apply(Sizes);
BENCHMARK(save_one_vs_whole)->Apply(Sizes);
BENCHMARK(bytes_per_default_scheme)->Apply(Sizes);

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv); // the client's saves report through the event loop
    lxl::DPrintLog::instance().SetStandardError(false);
    if (argc == 3 && QByteArray(argv[1]) == "--instructions")
        return RunOnce(argv[2]);

    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 2;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
