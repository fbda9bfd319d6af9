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

#include <memory>
#include <mutex>
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

constexpr int64_t callsOfAllThreads = 8000;

// Seconds that the threads take together for all calls. The action is given the thread's number.
template <typename Action>
double inThreads(int64_t count, Action action)
{
    const auto start = std::chrono::steady_clock::now();
    std::vector<std::thread> threads;
    for (int64_t i = 0; i < count; ++i) {
        threads.emplace_back([&action, count, i] {
            for (int64_t n = 0; n < callsOfAllThreads / count; ++n) {
                action(static_cast<std::size_t>(i));
            }
        });
    }
    for (std::thread &thread : threads) {
        thread.join();
    }
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

double trackInThreads(int64_t count, const std::string &text, benchmark::State &state)
{
    const TemporaryDirectory directory;
    Session session;
    session.open(directory.path("ours"));
    return inThreads(count, [&](std::size_t) { track(session, text, state); });
}

double insertThroughOneConnection(int64_t count, const std::string &text)
{
    const TemporaryDirectory directory;
    BareInsert bare(directory.path("floor"));
    std::mutex mutex;
    return inThreads(count, [&](std::size_t) {
        const std::lock_guard<std::mutex> lock(mutex);
        bare.run(text);
    });
}

double insertThroughAConnectionEach(int64_t count, const std::string &text)
{
    const TemporaryDirectory directory;
    std::vector<std::unique_ptr<BareInsert>> bare;
    for (int64_t i = 0; i < count; ++i) {
        bare.push_back(std::make_unique<BareInsert>(directory.path("floor")));
    }
    return inThreads(count, [&](std::size_t thread) { bare[thread]->run(text); });
}

// Calls a second of one instance from several threads; the floors are as many threads that insert
// through one connection, as an instance does, and through one each. Ratios are of times, ours by
// the floor's.
void callsFromThreads(benchmark::State &state)
{
    const std::string text(200, 'x');
    double ours = 0;
    double shared = 0;
    double each = 0;
    for ([[maybe_unused]] auto unused : state) {
        ours += trackInThreads(state.range(0), text, state);
        shared += insertThroughOneConnection(state.range(0), text);
        each += insertThroughAConnectionEach(state.range(0), text);
    }
    const double calls =
        static_cast<double>(callsOfAllThreads * static_cast<int64_t>(state.iterations()));
    state.counters["calls_per_second"] = calls / ours;
    state.counters["floor_shared"] = calls / shared;
    state.counters["floor_each"] = calls / each;
    state.counters["ratio_shared"] = ours / shared;
    state.counters["ratio_each"] = ours / each;
}
BENCHMARK(callsFromThreads)->Arg(1)->Arg(2)->Arg(4)->Iterations(5);

} // namespace
