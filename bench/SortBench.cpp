// SPDX-License-Identifier: MIT
// Sorting the rows of one list. What the data side takes to compare is part of the times;
// `compared` says how often it was asked.
#include "ColumnHost.h"
#include "CountingNew.h"
#include "Sizes.h"

#include <benchmark/benchmark.h>

#include <cmath>

using zbbench::changes;
using zbbench::ColumnHost;
using zbbench::Rows;
using zbbench::Sizes;

namespace {

//! Comparisons of one iteration, and how many they are for each n log2 n.
void ReportComparisons(benchmark::State& state, std::size_t comparisons) {
    auto const n = static_cast<double>(state.range(0));
    auto const each = static_cast<double>(comparisons) / static_cast<double>(state.iterations());
    state.counters["compared"] = each;
    state.counters["of n log2 n"] = each / (n * std::log2(n));
}

//! The rows stand in the order of their creation, which is that of no column.
void FirstSort(benchmark::State& state, zbIBrowserViewColumn& (*columnOf)(ColumnHost&)) {
    std::size_t comparisons = 0;
    std::ptrdiff_t bytes = 0;
    for (auto _ : state) {
        state.PauseTiming();
        auto host = std::make_unique<ColumnHost>(Rows(state));
        host->Read();
        auto const before = zbbench::BytesInUse();
        state.ResumeTiming();
        host->Sort(columnOf(*host));
        state.PauseTiming();
        comparisons += host->source.comparisons;
        bytes = static_cast<std::ptrdiff_t>(zbbench::BytesInUse() - before);
        host.reset();
        state.ResumeTiming();
    }
    ReportComparisons(state, comparisons);
    state.counters["more bytes"] = static_cast<double>(bytes);
}

void FirstSortByName(benchmark::State& state) {
    FirstSort(
        state, [](ColumnHost & host) -> auto& { return host.name; });
}
BENCHMARK(FirstSortByName)->Apply(Sizes);

void FirstSortByNumber(benchmark::State& state) {
    FirstSort(
        state, [](ColumnHost & host) -> auto& { return host.number; });
}
BENCHMARK(FirstSortByNumber)->Apply(Sizes);

//! The direction changes, and all rows are read again.
void Reverse(benchmark::State& state) {
    ColumnHost host(Rows(state));
    host.Sort(host.name);
    host.source.comparisons = 0;
    bool ascending = true;
    for (auto _ : state) {
        ascending = !ascending;
        host.view.SetAscendingOrder(&host.name, ascending);
        host.Read();
    }
    ReportComparisons(state, host.source.comparisons);
}
BENCHMARK(Reverse)->Apply(Sizes);

void ReadAllSorted(benchmark::State& state) {
    ColumnHost host(Rows(state));
    host.Sort(host.name);
    for (auto _ : state) {
        host.Read();
        benchmark::DoNotOptimize(host.rows.data());
    }
    if (host.rows.size() != Rows(state))
        state.SkipWithError("rows are missing");
}
BENCHMARK(ReadAllSorted)->Apply(Sizes);

//! 10 thousand items have come since the rows were sorted.
void SortAgain(benchmark::State& state) {
    std::size_t comparisons = 0;
    for (auto _ : state) {
        state.PauseTiming();
        auto host = std::make_unique<ColumnHost>(Rows(state));
        host->Sort(host->name);
        for (int i = 0; i < changes; ++i)
            host->controller->OnDataItemCreated(host->source.AddItem(), true);
        host->source.comparisons = 0;
        state.ResumeTiming();
        host->Read();
        state.PauseTiming();
        comparisons += host->source.comparisons;
        host.reset();
        state.ResumeTiming();
    }
    ReportComparisons(state, comparisons);
}
BENCHMARK(SortAgain)->Apply(Sizes);

} // namespace
