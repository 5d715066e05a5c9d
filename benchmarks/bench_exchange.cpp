// Writing schemes as a text, reading them from one, and comparing two maps, beside the plain load of the same
// schemes from their database in the same run.

#include "benchmarks/SchemesToMeasure.h"
#include "platform/lxl/DPrintLog.h"
#include "scheme_services/exchange/SchemeComparison.h"
#include "scheme_services/exchange/SchemeTextReader.h"
#include "scheme_services/exchange/SchemeTextWriter.h"

#include <QBuffer>

namespace {

/// The work and the load turn by turn.
void MeasureBesideLoad(benchmark::State& state, const AlarmInfoMap& map, const std::function<void()>& work)
{
    const Folder folder;
    AlarmSchemeDatabaseParser store;
    Save(store, map);
    Timing timing;
    for (auto _ : state) {
        timing.store.push_back(Seconds(work));
        state.SetIterationTime(timing.store.back());
        AlarmInfoMap loaded;
        timing.raw.push_back(Seconds([&] { store.ReadAll(&loaded); }));
        Check(loaded.size() == map.size(), "schemes are missing");
    }
    Report(state, timing);
}

QByteArray TextOf(const AlarmInfoMap& map)
{
    QByteArray text;
    const bool written = SchemeTextWriter().Write(map, [&text](const QByteArray& piece) {
        text += piece;
        return true;
    });
    Check(written, "the text was not written");
    return text;
}

void export_vs_load(benchmark::State& state)
{
    const AlarmInfoMap map = Schemes(Count(state));
    MeasureBesideLoad(state, map, [&map] { benchmark::DoNotOptimize(TextOf(map).size()); });
}

void import_vs_load(benchmark::State& state)
{
    const AlarmInfoMap map = Schemes(Count(state));
    QByteArray text = TextOf(map);
    MeasureBesideLoad(state, map, [&] {
        QBuffer device(&text);
        device.open(QIODevice::ReadOnly);
        AlarmInfoMap read;
        Check(SchemeTextReader().Read(device, read) && read.size() == map.size(), "the text was not read");
    });
}

/// Two maps that share nothing, every tenth scheme changed.
void diff_vs_load(benchmark::State& state)
{
    const AlarmInfoMap map = Schemes(Count(state));
    AlarmInfoMap other = Schemes(Count(state));
    int scheme = 0;
    for (AlarmInfo& info : other)
        info.bOpenSound = (++scheme % 10 == 0) != info.bOpenSound;
    MeasureBesideLoad(state, map, [&] {
        int fields = 0;
        const auto counts =
            SchemeComparison::Compare(map, other, [&fields](const SchemeDifference& difference) {
                fields += difference.fields.size();
            });
        Check(counts.iChanged == map.size() / 10 && fields == counts.iChanged, "the comparison is wrong");
    });
}

void Sizes(benchmark::internal::Benchmark* pBenchmark)
{
    pBenchmark->Arg(1000)->Arg(100000)->Iterations(5)->UseManualTime()->Unit(benchmark::kMillisecond);
}
BENCHMARK(export_vs_load)->Apply(Sizes);
BENCHMARK(import_vs_load)->Apply(Sizes);
BENCHMARK(diff_vs_load)->Apply(Sizes);

} // namespace

int main(int argc, char** argv)
{
    lxl::DPrintLog::instance().SetStandardError(false);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
