// SPDX-License-Identifier: MIT
// What raising a signal costs.
#include <zbBrowserView/platform/zbSignal.h>

#include <benchmark/benchmark.h>

namespace {

//! `connections` slots that count.
void Emit(benchmark::State& state) {
    zbSignal<single_threaded, int> signal;
    std::int64_t heard = 0;
    for (std::int64_t i = 0; i < state.range(0); ++i)
        static_cast<void>(signal.Connect([&heard](int value) { heard += value; }));
    for (auto _ : state) {
        signal(1);
        benchmark::DoNotOptimize(heard);
    }
}
BENCHMARK(Emit)->Arg(0)->Arg(1)->Arg(10);

} // namespace
