// Showing a scheme and ticking everything with 40,000 outputs, beside a plain walk over the tree and plain
// insertions into a map in the same run.

#include "AlarmCtrl/AlarmSchemeData/AlarmSourceKey.h"
#include "AlarmCtrl/QAlarmCopyToPopup.h"
#include "AlarmCtrl/QAlarmOutEditor.h"
#include "scheme_editor/ACSCopyModes.h"
#include "scheme_editor/ACSEventCopyToPopup.h"
#include "tests/AlarmCtrl_linkage/SiteHost.h"

#include <QApplication>
#include <QTreeView>

#include <benchmark/benchmark.h>

#include <functional>
#include <memory>

namespace {

constexpr int s_iControllers = 1250;
constexpr int s_iOutputsPerController = 32;
constexpr int s_iDoorsPerController = 8;
constexpr int64_t s_iSite = 1;

int64_t ControllerId(int iController)
{
    return 1000 + 100 * iController;
}

Site LargeSite()
{
    Site site;
    VantaLogic::GroupInfo group;
    group.iGroupId = s_iSite;
    site.groups.append(group);
    for (int controller = 0; controller < s_iControllers; ++controller) {
        VantaLogic::DeviceInfo device =
            TestSite::Device(ControllerId(controller), VantaLogic::DeviceTypeAccessControl);
        device.iGroupId = s_iSite;
        for (int output = 1; output <= s_iOutputsPerController; ++output)
            TestSite::AddChannel(device, device.iDeviceId + output, VantaLogic::ChannelTypeAlarmOutput,
                                 output);
        for (int door = 1; door <= s_iDoorsPerController; ++door)
            TestSite::AddChannel(device, device.iDeviceId + s_iOutputsPerController + door,
                                 VantaLogic::ChannelTypeDoor, door);
        site.devices.append(device);
    }
    return site;
}

SiteHost& Host()
{
    static SiteHost host(LargeSite());
    return host;
}

/// Links to the first outputs of every n-th controller.
QList<AlarmLinkAlarmOut> Links(int iEvery, int iOutputs)
{
    QList<AlarmLinkAlarmOut> links;
    for (int controller = 0; controller < s_iControllers; controller += iEvery) {
        for (int output = 1; output <= iOutputs; ++output)
            links.append({EventSource::AlarmOutput(ControllerId(controller) + output), true, 20});
    }
    return links;
}

struct Editor
{
    Editor()
    {
        Host();
        editor = std::make_unique<QAlarmOutEditor>();
        editor->show();
        hand = std::make_unique<TreeHand>(*editor);
    }
    std::unique_ptr<QAlarmOutEditor> editor;
    std::unique_ptr<TreeHand> hand;
};

// The plain container operation of a refresh: looking at every row once.
void WalkEveryRow(benchmark::State& state)
{
    const Editor desk;
    const QStandardItemModel* const model = desk.hand->Device(ControllerId(0))->model();
    int checked = 0;
    const std::function<void(const QStandardItem*)> walk = [&](const QStandardItem* pItem) {
        checked += pItem->checkState() == Qt::Checked ? 1 : 0;
        for (int row = 0; row < pItem->rowCount(); ++row)
            walk(pItem->child(row));
    };
    for (auto _ : state) {
        walk(model->invisibleRootItem());
        benchmark::DoNotOptimize(checked);
    }
}

void ShowTheSameScheme(benchmark::State& state)
{
    const Editor desk;
    const QList<AlarmLinkAlarmOut> links = Links(10, 4);
    desk.editor->SetAlarmOutInfo(links);
    for (auto _ : state)
        desk.editor->SetAlarmOutInfo(links);
}

void ShowSchemesInTurn(benchmark::State& state)
{
    const Editor desk;
    const QList<AlarmLinkAlarmOut> links[] = {Links(100, 4), Links(125, 2), {}};
    std::size_t next = 0;
    for (auto _ : state)
        desk.editor->SetAlarmOutInfo(links[next++ % 3]);
}

void ShowAllAndNothingInTurn(benchmark::State& state)
{
    const Editor desk;
    const QList<AlarmLinkAlarmOut> links[] = {Links(1, s_iOutputsPerController), {}};
    std::size_t next = 0;
    for (auto _ : state)
        desk.editor->SetAlarmOutInfo(links[next++ % 2]);
}

void ShowAllAndNothingInAnUnfoldedTree(benchmark::State& state)
{
    const Editor desk;
    desk.editor->findChild<QTreeView*>()->expandAll();
    const QList<AlarmLinkAlarmOut> links[] = {Links(1, s_iOutputsPerController), {}};
    std::size_t next = 0;
    for (auto _ : state) {
        desk.editor->SetAlarmOutInfo(links[next++ % 2]);
    }
}

void ReadAll(benchmark::State& state)
{
    const Editor desk;
    desk.editor->SetAlarmOutInfo(Links(1, s_iOutputsPerController));
    QList<AlarmLinkAlarmOut> links;
    for (auto _ : state)
        desk.editor->GetAlarmOutInfo(links);
    state.counters["links"] = links.size();
}

// The plain container operation of ticking everything: as many keys into a map.
void InsertEveryKey(benchmark::State& state)
{
    for (auto _ : state) {
        QMap<QString, AlarmLinkAlarmOut> map;
        for (const AlarmLinkAlarmOut& link : Links(1, s_iOutputsPerController))
            map.insert(link.strLinkAlarmID, link);
        benchmark::DoNotOptimize(map);
    }
}

void TickAndUntickEverythingInTheEditor(benchmark::State& state)
{
    const Editor desk;
    bool tick = false;
    for (auto _ : state)
        desk.hand->Tick(s_iSite, VantaModel::NodeKindGroup, tick = !tick);
}

template <typename Popup>
void TickAndUntickEverything(benchmark::State& state, int iMode)
{
    Host();
    Popup popup(iMode);
    popup.show();
    const TreeHand hand(popup);
    bool tick = false;
    for (auto _ : state) {
        hand.Tick(s_iSite, VantaModel::NodeKindGroup, tick = !tick);
    }
    QVector<QStandardItem*> rows;
    hand.Tree()->GetAllCheckedItem(rows);
    hand.Tree()->GetAllUnCheckedItem(rows);
    state.counters["rows"] = rows.size();
}

void TickAndUntickEveryDoorInThePopup(benchmark::State& state)
{
    TickAndUntickEverything<ACSEventCopyToPopup>(state, ACSCopy::Door);
}

// A mode without a table row offers every door and every other channel.
void TickAndUntickEveryChannelInThePopup(benchmark::State& state)
{
    TickAndUntickEverything<QAlarmCopyToPopup>(state, 0);
}

BENCHMARK(WalkEveryRow)->Unit(benchmark::kMillisecond);
BENCHMARK(ShowTheSameScheme)->Unit(benchmark::kMillisecond);
BENCHMARK(ShowSchemesInTurn)->Unit(benchmark::kMillisecond);
BENCHMARK(ShowAllAndNothingInTurn)->Unit(benchmark::kMillisecond);
BENCHMARK(ShowAllAndNothingInAnUnfoldedTree)->Unit(benchmark::kMillisecond);
BENCHMARK(ReadAll)->Unit(benchmark::kMillisecond);
BENCHMARK(InsertEveryKey)->Unit(benchmark::kMillisecond);
BENCHMARK(TickAndUntickEverythingInTheEditor)->Unit(benchmark::kMillisecond);
BENCHMARK(TickAndUntickEveryDoorInThePopup)->Unit(benchmark::kMillisecond);
BENCHMARK(TickAndUntickEveryChannelInThePopup)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char* argv[])
{
    const QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
