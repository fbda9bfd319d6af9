// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// Delivery to a server on the loopback beside what a single compressed request costs there; the
// backlog after a restart, for its growth; memory and disk.
#include "delivery/CurlTransport.h"
#include "delivery/Gzip.h"
#include "delivery/Sender.h"
#include "Session.h"
#include "store/StoreOpening.h"
#include "TemporaryDirectory.h"
#include "TestServer.h"

#include <benchmark/benchmark.h>

#include <fstream>
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
    Sender sender(database, paths.senderLock(), transport, systemClock(), {}, {}, randomJitter);
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

double residentKilobytes()
{
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);) {
        if (line.rfind("VmRSS:", 0) == 0) {
            return std::stod(line.substr(6));
        }
    }
    return 0;
}

void memoryOfASession(benchmark::State &state)
{
    double grown = 0;
    for ([[maybe_unused]] auto unused : state) {
        const TemporaryDirectory directory;
        const double before = residentKilobytes();
        Session session;
        session.open(directory.path());
        for (int i = 0; i < 5000; ++i) {
            session.track(std::string(200, 'x'));
        }
        grown = std::max(grown, residentKilobytes() - before);
    }
    state.counters["resident_kB"] = grown;
}
BENCHMARK(memoryOfASession)->Iterations(3);

// Argument: bytes of the text; the floor is these bytes.
void diskBytesOfAnEvent(benchmark::State &state)
{
    const int64_t events = 400;
    double bytes = 0;
    for ([[maybe_unused]] auto unused : state) {
        const TemporaryDirectory directory;
        fill(directory.path(), events, static_cast<std::size_t>(state.range(0)));
        bytes =
            static_cast<double>(std::filesystem::file_size(directory.path("usage-events.sqlite")));
    }
    const double each = bytes / static_cast<double>(events);
    state.counters["bytes_per_event"] = each;
    state.counters["ratio"] = each / static_cast<double>(state.range(0));
}
BENCHMARK(diskBytesOfAnEvent)->Arg(200)->Arg(100000)->Iterations(1);

} // namespace
