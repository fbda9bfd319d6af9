// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// A track call beside the bare insert, taken in turns, so that a slow moment of the machine hits
// both. Times are microseconds; ratio is ours by the floor's at the median.
#include "Floor.h"
#include "Quantiles.h"
#include "Session.h"
#include "TemporaryDirectory.h"

#include <benchmark/benchmark.h>

#include <thread>

namespace {

using namespace rui::benchmarks;
using namespace rui::test;

void track(Session &session, const std::string &text, benchmark::State &state)
{
    if (const int32_t result = session.track(text, "Opened", "Camera"); result != RUI_OK) {
        state.SkipWithError(ruiResultText(result));
    }
}

// Arguments: bytes of the text, events (within what is kept, so that nothing is pushed out).
void trackedEvent(benchmark::State &state)
{
    const std::string text(static_cast<std::size_t>(state.range(0)), 'x');
    Quantiles ours;
    Quantiles floor;
    for ([[maybe_unused]] auto unused : state) {
        const TemporaryDirectory directory;
        BareInsert bare(directory.path("floor"));
        Session session;
        session.open(directory.path("ours"));
        for (int64_t i = 0; i < state.range(1); ++i) {
            ours.measure([&] { track(session, text, state); });
            floor.measure([&] { bare.run(text); });
        }
    }
    state.counters["p50"] = ours.at(0.5);
    state.counters["floor_p50"] = floor.at(0.5);
    state.counters["p99"] = ours.at(0.99);
    state.counters["floor_p99"] = floor.at(0.99);
    state.counters["ratio"] = ours.at(0.5) / floor.at(0.5);
}
BENCHMARK(trackedEvent)->Args({200, 5000})->Args({100000, 300})->Iterations(3);

// Calls a second of one instance from several threads; the floor has one thread.
void callsFromThreads(benchmark::State &state)
{
    constexpr int calls = 8000;
    const std::string text(200, 'x');
    double seconds = 0;
    for ([[maybe_unused]] auto unused : state) {
        const TemporaryDirectory directory;
        Session session;
        session.open(directory.path("ours"));
        const auto start = std::chrono::steady_clock::now();
        std::vector<std::thread> threads;
        for (int64_t i = 0; i < state.range(0); ++i) {
            threads.emplace_back([&] {
                for (int64_t n = 0; n < calls / state.range(0); ++n) {
                    track(session, text, state);
                }
            });
        }
        for (std::thread &thread : threads) {
            thread.join();
        }
        seconds += std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    }
    state.counters["calls_per_second"] = calls * static_cast<double>(state.iterations()) / seconds;
}
BENCHMARK(callsFromThreads)->Arg(1)->Arg(2)->Arg(4)->Iterations(3);

void callsOfTheFloor(benchmark::State &state)
{
    constexpr int calls = 8000;
    const std::string text(200, 'x');
    double seconds = 0;
    for ([[maybe_unused]] auto unused : state) {
        const TemporaryDirectory directory;
        BareInsert bare(directory.path("floor"));
        const auto start = std::chrono::steady_clock::now();
        for (int n = 0; n < calls; ++n) {
            bare.run(text);
        }
        seconds += std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    }
    state.counters["calls_per_second"] = calls * static_cast<double>(state.iterations()) / seconds;
}
BENCHMARK(callsOfTheFloor)->Iterations(3);

} // namespace
