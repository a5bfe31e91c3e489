// SPDX-License-Identifier: MIT
// What the data side reports and selects: the view follows.
#include "ColumnHost.h"
#include "Sizes.h"

#include <zbBrowserView/zbIBrowserSelectionManager.h>
#include <zbBrowserView/zbIBrowserViewItemFreeFolder.h>

#include <benchmark/benchmark.h>

using zbbench::changes;
using zbbench::ColumnHost;
using zbbench::Draw;
using zbbench::Item;
using zbbench::LightHost;
using zbbench::Rows;
using zbbench::Sizes;
using zbbench::Source;

namespace {

// Many folders

//! Each folder shows the same ten items; the events are about items of another source.
struct ManyFolders {
    explicit ManyFolders(std::int64_t folders)
        : host(10)
        , other(1'000) {
        auto& root = *host.view.GetRootFreeFolder();
        for (std::int64_t i = 0; i < folders; ++i)
            host.view.CreateFreeFolder(&root, "folder");
        std::vector<zbIBrowserViewItemFreeFolder*> children;
        root.GetChildFreeFolders(children, false, true);
        for (auto* const folder : children)
            host.view.CreateList(folder, &host.source, false);
        host.view.DataSourceConnect(&other);
        Report(other.Items().front()); // The first one makes what the folders lack
    }

    void Report(Item& item) {
        host.controller->OnDataItemCreated(&item, false);
        host.controller->OnDataItemSimpleUpdated(&item);
        host.view.OnDataItemDeleted(&item);
    }

    LightHost host;
    Source other;
};

//! Three events each: created, updated, deleted.
void ItemThatNoFolderShows(benchmark::State& state) {
    ManyFolders folders(state.range(0));
    for (auto _ : state) {
        for (auto& item : folders.other.Items())
            folders.Report(item);
    }
    state.counters["per event"] = benchmark::Counter(
        3.0 * static_cast<double>(folders.other.Items().size()),
        benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}
BENCHMARK(ItemThatNoFolderShows)->Arg(100)->Arg(1'000)->Arg(10'000)->Unit(benchmark::kMicrosecond);

// Nested folders

//! Each folder stands in the one before, and all show the same ten items.
void ItemInNestedFolders(benchmark::State& state) {
    LightHost host(10);
    zbIBrowserViewItemFreeFolder* folder = host.view.GetRootFreeFolder();
    for (std::int64_t i = 0; i < state.range(0); ++i) {
        host.view.CreateFreeFolder(folder, "folder");
        folder = folder->FindChildFreeFolder("folder");
        host.view.CreateList(folder, &host.source, false);
    }
    for (auto _ : state)
        host.controller->OnDataItemSimpleUpdated(&host.source.Items().front());
}
BENCHMARK(ItemInNestedFolders)->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMillisecond);

// Sorted lists

//! A sorted list, then what `prepare` answers is run and all rows are read once more.
template <class Prepare>
void ChangeSorted(benchmark::State& state, Prepare prepare) {
    for (auto _ : state) {
        state.PauseTiming();
        auto host = std::make_unique<ColumnHost>(Rows(state));
        host->Sort(host->name);
        auto const change = prepare(*host);
        state.ResumeTiming();
        change();
        host->Read();
        state.PauseTiming();
        host.reset();
        state.ResumeTiming();
    }
}

void Create10ThousandSorted(benchmark::State& state) {
    ChangeSorted(state, [](ColumnHost& host) {
        std::vector<Item*> fresh(changes);
        for (auto*& item : fresh)
            item = host.source.AddItem();
        return [&host, fresh] {
            for (auto* const item : fresh)
                host.controller->OnDataItemCreated(item, true);
        };
    });
}
BENCHMARK(Create10ThousandSorted)->Apply(Sizes)->Iterations(3);

void Delete10ThousandSorted(benchmark::State& state) {
    ChangeSorted(state, [](ColumnHost& host) {
        auto const going = Draw(host.source, changes);
        for (auto* const item : going)
            host.source.TakeOut(*item);
        return [&host, going] {
            for (auto* const item : going)
                host.view.OnDataItemDeleted(item);
        };
    });
}
BENCHMARK(Delete10ThousandSorted)->Apply(Sizes)->Iterations(3);

std::vector<Item*> RenameOnePercent(ColumnHost& host) {
    auto renamed = Draw(host.source, host.source.Items().size() / 100);
    for (auto* const item : renamed)
        host.source.Rename(*item);
    return renamed;
}

//! One row in a hundred has another name; all are refreshed at once.
void RenameOnePercentAtOnce(benchmark::State& state) {
    ChangeSorted(state, [](ColumnHost& host) {
        for (auto* const item : RenameOnePercent(host))
            item->isDirty = true;
        return [&host] { host.view.OnAllDirtyDataItemsRebuild(); };
    });
}
BENCHMARK(RenameOnePercentAtOnce)->Apply(Sizes)->Iterations(3);

void RenameOnePercentOneByOne(benchmark::State& state) {
    ChangeSorted(state, [](ColumnHost& host) {
        return [&host, renamed = RenameOnePercent(host)] {
            for (auto* const item : renamed)
                host.controller->OnDataItemSimpleUpdated(item);
        };
    });
}
BENCHMARK(RenameOnePercentOneByOne)->Apply(Sizes)->Iterations(3);

// Selection

//! One list, and up to 100 thousand of its items drawn at random.
struct SelectionHost : LightHost {
    explicit SelectionHost(std::size_t rows)
        : LightHost(rows) {
        Connect();
        auto const drawn = Draw(source, 100'000);
        wanted.assign(drawn.begin(), drawn.end());
    }
    void Select() { view.OnDataItemsSelected(wanted, {}, true); }

    std::vector<zbIBrowserDataItemSimple*> wanted;
};

void SelectByDataItem(benchmark::State& state) {
    SelectionHost host(Rows(state));
    for (auto _ : state) {
        host.Select();
        state.PauseTiming();
        host.view.DeselectAllViewItems();
        state.ResumeTiming();
    }
}
BENCHMARK(SelectByDataItem)->Apply(Sizes);

void AskWhetherSelected(benchmark::State& state) {
    SelectionHost host(Rows(state));
    host.Select();
    std::vector<zbIBrowserViewItem*> rows;
    host.view.GetChildren(rows, host.view.GetRootFreeFolder());
    auto& manager = *host.view.GetSelectionManager();
    std::size_t selected = 0;
    for (auto _ : state) {
        selected = 0;
        for (auto* const row : rows)
            selected += manager.IsViewItemSelected(row) ? 1U : 0U;
    }
    if (selected != host.wanted.size())
        state.SkipWithError("rows are not selected");
}
BENCHMARK(AskWhetherSelected)->Apply(Sizes);

void ClearSelection(benchmark::State& state) {
    SelectionHost host(Rows(state));
    for (auto _ : state) {
        state.PauseTiming();
        host.Select();
        state.ResumeTiming();
        host.view.DeselectAllViewItems();
    }
}
BENCHMARK(ClearSelection)->Apply(Sizes);

} // namespace
