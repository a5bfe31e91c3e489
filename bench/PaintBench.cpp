// SPDX-License-Identifier: MIT
// Painting 50 rows by 4 columns, asking the view for each cell what a widget would ask.
#include "ColumnHost.h"
#include "CountingNew.h"
#include "Widget.h"

#include <benchmark/benchmark.h>

using zbbench::Canvas;
using zbbench::ColumnHost;
using zbbench::rowsShown;
using zbbench::Widget;

namespace {

void Sizes(benchmark::internal::Benchmark* bench) {
    bench->Arg(10'000)->Arg(100'000)->Arg(1'000'000)->Unit(benchmark::kMicrosecond);
}

//! Frames that begin `step` rows after the one before, round and round.
void Paint(benchmark::State& state, std::size_t step) {
    ColumnHost host(static_cast<std::size_t>(state.range(0)));
    host.Sort(host.name);
    Widget widget(host.view, host.rows);
    Canvas canvas;
    widget.Paint(0, canvas);
    if (!canvas.IsComplete(1))
        state.SkipWithError("cells are missing");
    auto const allocations = zbbench::Allocations();
    auto const places = host.rows.size() - rowsShown;
    std::size_t first = places / 2;
    for (auto _ : state) {
        widget.Paint(first, canvas);
        first = (first + step) % places;
    }
    benchmark::DoNotOptimize(canvas.GetSum());
    state.counters["allocations"] =
        benchmark::Counter(static_cast<double>(zbbench::Allocations() - allocations),
                           benchmark::Counter::kAvgIterations);
}

//! The same rows time and again.
void PaintAgain(benchmark::State& state) {
    Paint(state, 0);
}
BENCHMARK(PaintAgain)->Apply(Sizes);

//! Other rows each time. Where they do not fit the caches, memory is waited for.
void PaintPages(benchmark::State& state) {
    Paint(state, rowsShown);
}
BENCHMARK(PaintPages)->Apply(Sizes);

} // namespace
