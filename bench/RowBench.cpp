// SPDX-License-Identifier: MIT
// Rows of one list in one folder.
#include "CountingNew.h"
#include "LightHost.h"
#include "Sizes.h"

#include <zbBrowserView/zbIBrowserViewItemFreeFolder.h>

#include <benchmark/benchmark.h>

#include <random>

using zbbench::changes;
using zbbench::LightHost;
using zbbench::Rows;
using zbbench::Sizes;

namespace {

//! Time for each row, and how many of them there are.
void ReportRows(benchmark::State& state, std::size_t rows) {
    state.counters["per row"] = benchmark::Counter(static_cast<double>(rows),
                                                   benchmark::Counter::kIsIterationInvariantRate |
                                                       benchmark::Counter::kInvert);
}

//! A list is made, with nobody listening.
void ConnectList(benchmark::State& state) {
    LightHost host(Rows(state));
    std::size_t bytes = 0;
    for (auto _ : state) {
        auto const before = zbbench::BytesInUse();
        host.Connect();
        // Later on the memory of the rows that went before serves again.
        if (bytes == 0)
            bytes = zbbench::BytesInUse() - before;
        state.PauseTiming();
        host.Disconnect();
        state.ResumeTiming();
    }
    ReportRows(state, Rows(state));
    state.counters["bytes/row"] = static_cast<double>(bytes) / static_cast<double>(Rows(state));
}
BENCHMARK(ConnectList)->Apply(Sizes);

//! The same, with one slot on ViewItemCreated.
void ConnectListHeard(benchmark::State& state) {
    LightHost host(Rows(state));
    std::size_t heard = 0;
    auto const connection = host.manager.GetSignalManager()->ViewItemCreated.Connect(
        [&heard](zbIBrowserViewItem*) { ++heard; });
    for (auto _ : state) {
        host.Connect();
        state.PauseTiming();
        host.Disconnect();
        state.ResumeTiming();
    }
    ReportRows(state, Rows(state));
    if (heard == 0)
        state.SkipWithError("the slot heard nothing");
}
BENCHMARK(ConnectListHeard)->Apply(Sizes);

void DisconnectList(benchmark::State& state) {
    LightHost host(Rows(state));
    for (auto _ : state) {
        state.PauseTiming();
        host.Connect();
        state.ResumeTiming();
        host.Disconnect();
    }
    ReportRows(state, Rows(state));
}
BENCHMARK(DisconnectList)->Apply(Sizes);

//! All rows as a painter asks for them, into a vector that has been used before.
void ReadAll(benchmark::State& state) {
    LightHost host(Rows(state));
    host.Connect();
    std::vector<zbIBrowserViewItem*> rows;
    for (auto _ : state) {
        host.view.GetChildren(rows, host.view.GetRootFreeFolder());
        benchmark::DoNotOptimize(rows.data());
    }
    if (rows.size() != Rows(state))
        state.SkipWithError("rows are missing");
    ReportRows(state, Rows(state));
}
BENCHMARK(ReadAll)->Apply(Sizes);

//! The row of a data item, for 10 thousand data items drawn at random.
void ReadOneByDataItem(benchmark::State& state) {
    LightHost host(Rows(state));
    host.Connect();
    std::mt19937_64 random(1);
    std::vector<zbIBrowserDataItemSimple*> wanted(changes);
    for (auto& item : wanted)
        item = &host.source.Items()[random() % Rows(state)];
    std::vector<zbIBrowserViewItem*> found;
    std::vector<zbIBrowserViewItem*> parents;
    for (auto _ : state) {
        found.clear();
        for (auto* const item : wanted)
            host.view.GetDataDependentViewItems(item, found, parents);
    }
    if (found.size() != wanted.size())
        state.SkipWithError("rows are missing");
    ReportRows(state, wanted.size());
}
BENCHMARK(ReadOneByDataItem)->Apply(Sizes);

//! 10 thousand items come, one event each.
void Create10Thousand(benchmark::State& state) {
    for (auto _ : state) {
        state.PauseTiming();
        auto host = std::make_unique<LightHost>(Rows(state));
        host->Connect();
        std::vector<zbbench::Item*> fresh;
        for (int i = 0; i < changes; ++i)
            fresh.push_back(host->source.AddItem());
        state.ResumeTiming();
        for (auto* const item : fresh)
            host->controller->OnDataItemCreated(item, true);
        state.PauseTiming();
        host.reset();
        state.ResumeTiming();
    }
    ReportRows(state, changes);
}
BENCHMARK(Create10Thousand)->Apply(Sizes);

//! 10 thousand items go, drawn at random, one event each.
void Delete10Thousand(benchmark::State& state) {
    for (auto _ : state) {
        state.PauseTiming();
        auto host = std::make_unique<LightHost>(Rows(state));
        host->Connect();
        std::vector<zbbench::Item*> going;
        for (auto& item : host->source.Items())
            going.push_back(&item);
        std::shuffle(going.begin(), going.end(), std::mt19937_64(2));
        going.resize(changes);
        for (auto* const item : going)
            host->source.TakeOut(*item);
        state.ResumeTiming();
        for (auto* const item : going)
            host->view.OnDataItemDeleted(item);
        state.PauseTiming();
        host.reset();
        state.ResumeTiming();
    }
    ReportRows(state, changes);
}
BENCHMARK(Delete10Thousand)->Apply(Sizes);

//! One row in a hundred has gone and as many are new.
void RebuildOnePercent(benchmark::State& state) {
    LightHost host(Rows(state));
    host.Connect();
    std::mt19937_64 random(3);
    auto const change = [&] {
        for (std::size_t i = 0; i < Rows(state) / 100; ++i) {
            host.source.TakeOut(host.source.Items()[random() % host.source.Items().size()]);
            host.source.AddItem();
        }
        host.source.isDirty = true;
    };
    for (auto _ : state) {
        state.PauseTiming();
        change();
        state.ResumeTiming();
        host.controller->OnAllDirtyDataListsRebuild(&host.view);
    }
    ReportRows(state, Rows(state));
}
BENCHMARK(RebuildOnePercent)->Apply(Sizes)->Iterations(10);

} // namespace
