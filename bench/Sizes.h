// SPDX-License-Identifier: MIT
//! \file
//! How many rows the workloads have.
#pragma once

#include <benchmark/benchmark.h>

#include <cstddef>

namespace zbbench {

//! For BENCHMARK(...)->Apply: times are told in milliseconds.
inline void Sizes(benchmark::internal::Benchmark* bench) {
    bench->Arg(10'000)->Arg(100'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond);
}

inline std::size_t Rows(benchmark::State const& state) {
    return static_cast<std::size_t>(state.range(0));
}

//! How many rows come, go or change, whatever the size.
inline constexpr int changes = 10'000;

} // namespace zbbench
