// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// Memory and disk beside those of bare SQLite with the same rows.
#include "Floor.h"
#include "Session.h"
#include "TemporaryDirectory.h"
#include "TestServer.h"

#include <benchmark/benchmark.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <fstream>
#include <functional>
#include <stdexcept>
#include <string>

namespace {

using namespace rui::benchmarks;
using namespace rui::test;

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

using Report = std::function<void(double)>;

// What the action reports, from a process of its own: memory that was freed by one would be used
// again by the next.
double inAProcess(const std::function<void(const Report &)> &action)
{
    std::array<int, 2> channel{};
    if (pipe(channel.data()) != 0) {
        throw std::runtime_error("no pipe");
    }
    const pid_t child = fork();
    if (child == 0) {
        action([&](double value) {
            const bool written = write(channel[1], &value, sizeof value) == sizeof value;
            _exit(written ? 0 : 1);
        });
        _exit(1);
    }
    double value = 0;
    const bool got = read(channel[0], &value, sizeof value) == sizeof value;
    close(channel[0]);
    close(channel[1]);
    waitpid(child, nullptr, 0);
    if (!got) {
        throw std::runtime_error("the process reported nothing");
    }
    return value;
}

constexpr int eventsForMemory = 5000;
const std::string textForMemory(200, 'x');

double memoryOfOurs(const std::string &host)
{
    return inAProcess([&](const Report &report) {
        const TemporaryDirectory directory;
        const double before = residentKilobytes();
        Session session;
        session.open(directory.path(), host);
        for (int i = 0; i < eventsForMemory; ++i) {
            session.track(textForMemory);
        }
        const double grown = residentKilobytes() - before;
        session.destroy();
        std::filesystem::remove_all(directory.path());
        report(grown);
    });
}

double memoryOfTheFloor()
{
    return inAProcess([](const Report &report) {
        const TemporaryDirectory directory;
        const double before = residentKilobytes();
        BareInsert bare(directory.path("floor"));
        for (int i = 0; i < eventsForMemory; ++i) {
            bare.run(textForMemory);
        }
        const double grown = residentKilobytes() - before;
        std::filesystem::remove_all(directory.path());
        report(grown);
    });
}

// What 5,000 events add to the resident memory. Argument: 1 when they are delivered meanwhile.
void memoryOfASession(benchmark::State &state)
{
    double ours = 0;
    double floor = 0;
    for ([[maybe_unused]] auto unused : state) {
        const TestServer server;
        ours = std::max(ours, memoryOfOurs(state.range(0) == 1 ? server.url() : ""));
        floor = std::max(floor, memoryOfTheFloor());
    }
    state.counters["resident_kB"] = ours;
    state.counters["floor_kB"] = floor;
    state.counters["ratio"] = ours / floor;
}
BENCHMARK(memoryOfASession)->Arg(0)->Arg(1)->Iterations(3);

// Argument: bytes of the text. The floor is the file of bare SQLite; text_ratio is by the bytes of
// the text alone.
void diskBytesOfAnEvent(benchmark::State &state)
{
    constexpr int events = 400;
    const std::string text(static_cast<std::size_t>(state.range(0)), 'x');
    double ours = 0;
    double floor = 0;
    for ([[maybe_unused]] auto unused : state) {
        const TemporaryDirectory directory;
        {
            Session session;
            session.open(directory.path());
            BareInsert bare(directory.path("floor"));
            for (int i = 0; i < events; ++i) {
                session.track(text, "Opened", "Camera");
                bare.run(text);
            }
        }
        const auto size = [&](const char *name) {
            return static_cast<double>(std::filesystem::file_size(directory.path(name)));
        };
        ours = size("usage-events.sqlite") / events;
        floor = size("floor") / events;
    }
    state.counters["bytes_per_event"] = ours;
    state.counters["floor_bytes"] = floor;
    state.counters["ratio"] = ours / floor;
    state.counters["text_ratio"] = ours / static_cast<double>(state.range(0));
}
BENCHMARK(diskBytesOfAnEvent)->Arg(200)->Arg(100000)->Iterations(1);

} // namespace
