// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// Delivery to a server on the loopback beside what a single compressed request costs there; the
// backlog after a restart, for its growth.
#include "delivery/CurlTransport.h"
#include "delivery/Gzip.h"
#include "delivery/Sender.h"
#include "Session.h"
#include "store/StoreOpening.h"
#include "TemporaryDirectory.h"
#include "TestServer.h"

#include <benchmark/benchmark.h>

#include <string>

namespace {

using namespace rui;
using namespace rui::test;

void fill(const std::string &directory, int64_t events, std::size_t bytes = 200)
{
    Session session;
    session.open(directory);
    for (int64_t i = 0; i < events; ++i) {
        session.track(std::string(bytes, 'x'), "Opened", "Camera");
    }
}

double seconds(std::chrono::steady_clock::time_point since)
{
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - since).count();
}

// Delivers everything that the directory holds.
double deliver(const std::string &directory, const TestServer &server)
{
    const auto start = std::chrono::steady_clock::now();
    const StorePaths paths(directory);
    Database database = openStore(paths, {}, std::make_shared<BusyLimit>(std::chrono::seconds(5)));
    CurlTransport transport(parseServerAddress(server.url()), {});
    SenderMemory memory;
    Sender sender(database, paths.senderLock(), transport, systemClock(), {}, {}, randomJitter,
                  memory);
    while (sender.stepNow().kind == Step::Kind::Progress) {
    }
    return seconds(start);
}

// As many requests of the same size as the delivery needs, without a database.
double bareRequests(const TestServer &server, int64_t requests)
{
    const std::string body = gzip(std::string(60000, 'x'));
    CurlTransport transport(parseServerAddress(server.url()), {});
    const auto start = std::chrono::steady_clock::now();
    for (int64_t i = 0; i < requests; ++i) {
        transport.post(body);
    }
    return seconds(start);
}

// The backlog is linear when the time for an event does not grow with its size.
void backlogAfterARestart(benchmark::State &state)
{
    double ours = 0;
    double floor = 0;
    for ([[maybe_unused]] auto unused : state) {
        const TemporaryDirectory directory;
        const TestServer server;
        fill(directory.path(), state.range(0));
        ours += deliver(directory.path(), server);
        floor += bareRequests(server, (state.range(0) + 99) / 100);
    }
    const auto events =
        static_cast<double>(state.range(0) * static_cast<int64_t>(state.iterations()));
    state.counters["events_per_second"] = events / ours;
    state.counters["us_per_event"] = ours / events * 1e6;
    state.counters["floor_us_per_event"] = floor / events * 1e6;
    state.counters["ratio"] = ours / floor;
}
BENCHMARK(backlogAfterARestart)->Arg(1000)->Arg(2500)->Arg(5000)->Arg(10000)->Iterations(2);

// One backlog beside a tenth of it, in turns: the growth of the time for an event is 1 when the
// delivery is linear.
void growthOfTheBacklog(benchmark::State &state)
{
    constexpr int64_t largeBacklog = 10000;
    constexpr int64_t smallBacklog = 1000;
    double large = 0;
    double small = 0;
    for ([[maybe_unused]] auto unused : state) {
        const TemporaryDirectory directory;
        const TestServer server;
        fill(directory.path("large"), largeBacklog);
        fill(directory.path("small"), smallBacklog);
        small += deliver(directory.path("small"), server);
        large += deliver(directory.path("large"), server);
    }
    const auto times = static_cast<double>(state.iterations());
    state.counters["ms_10000"] = large / times * 1e3;
    state.counters["ms_1000"] = small / times * 1e3;
    state.counters["growth_of_us_per_event"] = large / largeBacklog / (small / smallBacklog);
}
BENCHMARK(growthOfTheBacklog)->Iterations(5);

} // namespace
