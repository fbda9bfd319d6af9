// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "Quantiles.h"

#include <benchmark/benchmark.h>

/// Reports medians of \a scale runs each, in microseconds a run, and their ratio.
inline void report(benchmark::State &state, rui::benchmarks::Quantiles &ours,
                   rui::benchmarks::Quantiles &floor, double scale = 1)
{
    state.counters["p50_us"] = ours.at(0.5) / scale;
    state.counters["floor_us"] = floor.at(0.5) / scale;
    state.counters["ratio"] = ours.at(0.5) / floor.at(0.5);
}

/// The numbers of cameras for which everything is measured.
inline void cameraCounts(benchmark::internal::Benchmark *benchmark)
{
    benchmark->ArgName("cameras")->Arg(1)->Arg(10)->Arg(100)->Arg(1000);
}
