// SPDX-License-Identifier: MIT
// Free folders: many in one parent, and many below each other.
#include "LightHost.h"

#include <zbBrowserView/zbIBrowserViewItemFreeFolder.h>

#include <benchmark/benchmark.h>

using zbbench::LightHost;

namespace {

void Sizes(benchmark::internal::Benchmark* bench) {
    bench->Arg(1'000)->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMillisecond);
}

void ReportFolders(benchmark::State& state) {
    state.counters["per folder"] = benchmark::Counter(
        static_cast<double>(state.range(0)),
        benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

zbIBrowserViewItemFreeFolder* LastChild(zbIBrowserViewItemFreeFolder& folder) {
    std::vector<zbIBrowserViewItemFreeFolder*> children;
    folder.GetChildFreeFolders(children, false, true);
    return children.back();
}

void Siblings(zbBrowserView& view, std::int64_t count) {
    for (std::int64_t i = 0; i < count; ++i)
        view.CreateFreeFolder(view.GetRootFreeFolder(), "folder");
}

void Chain(zbBrowserView& view, std::int64_t count) {
    auto* parent = view.GetRootFreeFolder();
    for (std::int64_t i = 0; i < count; ++i) {
        view.CreateFreeFolder(parent, "folder");
        parent = LastChild(*parent);
    }
}

void DeleteChildren(zbBrowserView& view) {
    std::vector<zbIBrowserViewItemFreeFolder*> children;
    view.GetRootFreeFolder()->GetChildFreeFolders(children, false, true);
    for (auto* const child : children)
        view.DeleteFreeFolder(child, true);
}

void CreateSiblings(benchmark::State& state) {
    LightHost host(0);
    for (auto _ : state) {
        Siblings(host.view, state.range(0));
        state.PauseTiming();
        DeleteChildren(host.view);
        state.ResumeTiming();
    }
    ReportFolders(state);
}
BENCHMARK(CreateSiblings)->Apply(Sizes);

//! One after the other, from the first.
void DeleteSiblings(benchmark::State& state) {
    LightHost host(0);
    for (auto _ : state) {
        state.PauseTiming();
        Siblings(host.view, state.range(0));
        state.ResumeTiming();
        DeleteChildren(host.view);
    }
    ReportFolders(state);
}
BENCHMARK(DeleteSiblings)->Apply(Sizes);

void CreateChain(benchmark::State& state) {
    LightHost host(0);
    for (auto _ : state) {
        Chain(host.view, state.range(0));
        state.PauseTiming();
        DeleteChildren(host.view);
        state.ResumeTiming();
    }
    ReportFolders(state);
}
BENCHMARK(CreateChain)->Apply(Sizes);

//! All at once, from the top.
void DeleteChain(benchmark::State& state) {
    LightHost host(0);
    for (auto _ : state) {
        state.PauseTiming();
        Chain(host.view, state.range(0));
        state.ResumeTiming();
        DeleteChildren(host.view);
    }
    ReportFolders(state);
}
BENCHMARK(DeleteChain)->Apply(Sizes);

} // namespace
