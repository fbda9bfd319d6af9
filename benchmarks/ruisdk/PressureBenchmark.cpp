// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// What the library costs when something is short: room for events, a reader that reads on, a server
// that has time for everybody.
#include "delivery/Sender.h"
#include "Quantiles.h"
#include "Session.h"
#include "store/Notices.h"
#include "store/RecordReader.h"
#include "store/Shrinking.h"
#include "store/Store.h"
#include "TemporaryDirectory.h"

#include <benchmark/benchmark.h>

#include <array>
#include <cstdio>
#include <filesystem>

namespace {

using namespace rui;
using namespace rui::benchmarks;
using namespace rui::test;

std::shared_ptr<BusyLimit> patience()
{
    return std::make_shared<BusyLimit>(std::chrono::seconds(5));
}

double sizeOf(const std::string &path)
{
    return std::filesystem::exists(path) ? static_cast<double>(std::filesystem::file_size(path))
                                         : 0;
}

// An event that pushes out the oldest one, in microseconds at the median. Argument: 1 when a number
// of a record of the library's own stands between the events.
void evictionAtTheLimit(benchmark::State &state)
{
    Quantiles times;
    for ([[maybe_unused]] auto unused : state) {
        const TemporaryDirectory directory;
        const StorePaths paths(directory.path());
        Limits limits;
        Store store(paths, {}, limits, systemClock(), patience());
        store.join({"1", "app", "", "", "", ""});
        Database database = openStore(paths, {}, patience());
        const std::string text(200, 'x');
        const auto track = [&] { store.add({"Camera", "Opened", "", text}); };
        for (std::int64_t i = 0; i < limits.maxEvents; ++i) {
            if (i == limits.maxEvents / 2 && state.range(0) == 1) {
                addNotice(database, {nextSequence(database), NoticeKind::Loss, 0, 1, "{}"});
            }
            track();
        }
        for (int i = 0; i < 1000; ++i) {
            times.measure(track);
        }
    }
    state.counters["p50"] = times.at(0.5);
    state.counters["p99"] = times.at(0.99);
}
BENCHMARK(evictionAtTheLimit)->Arg(0)->Arg(1)->Iterations(3);

// The journal in MB after 200 MB were tracked while one reads who has stopped at the first record.
void journalBehindAReaderThatStalls(benchmark::State &state)
{
    double journal = 0;
    for ([[maybe_unused]] auto unused : state) {
        const TemporaryDirectory directory;
        const std::string text(500000, 'x');
        Session session;
        session.open(directory.path());
        session.track(text);
        const RecordReader reader{StorePaths(directory.path())};
        reader.read({}, 0, [&](const Record &) {
            for (int i = 0; i < 400; ++i) {
                session.track(text);
            }
        });
        journal = sizeOf(directory.path("usage-events.sqlite-wal"));
    }
    state.counters["tracked_MB"] = 200;
    state.counters["journal_MB"] = journal / 1e6;
}
BENCHMARK(journalBehindAReaderThatStalls)->Iterations(1);

// Takes everything, or asks everybody to come back after the same time.
class Answering : public Transport
{
public:
    explicit Answering(Response response)
        : m_response(std::move(response))
    {}
    Response post(const std::string &) override
    {
        return m_response;
    }
    void cancel() override {}

private:
    const Response m_response;
};

Response taken()
{
    Response response;
    response.status = 200;
    return response;
}

// The files in MB before and after a backlog of 50 MB is delivered.
void bytesOnDiskAfterDelivery(benchmark::State &state)
{
    double before = 0;
    double after = 0;
    for ([[maybe_unused]] auto unused : state) {
        const TemporaryDirectory directory;
        const StorePaths paths(directory.path());
        {
            Session session;
            session.open(directory.path());
            for (int i = 0; i < 500; ++i) {
                session.track(std::string(100000, 'x'));
            }
        }
        before = sizeOf(paths.database());
        {
            Database database = openStore(paths, {}, patience());
            Answering transport(taken());
            SenderMemory memory;
            Sender sender(database, paths.senderLock(), transport, systemClock(), {}, {},
                          randomJitter, memory);
            while (sender.stepNow().kind == Step::Kind::Progress) {
            }
            while (shrinkByOneStep(database, {})) {
            }
        }
        after = sizeOf(paths.database()) + sizeOf(paths.database() + "-wal");
    }
    state.counters["before_MB"] = before / 1e6;
    state.counters["after_MB"] = after / 1e6;
}
BENCHMARK(bytesOnDiskAfterDelivery)->Iterations(1);

Response pause(std::int64_t seconds)
{
    Response response;
    response.status = 503;
    response.retryAfter = std::to_string(seconds);
    return response;
}

// Seconds until each of so many clients comes back that were all asked at one moment.
std::vector<double> comeBack(std::size_t clients, std::int64_t seconds)
{
    const TemporaryDirectory directory;
    const StorePaths paths(directory.path());
    Store store(paths, {}, {}, systemClock(), patience());
    store.join({"1", "app", "", "", "", ""});
    store.add({"Camera", "Opened", "", "text"});
    Database database = openStore(paths, {}, patience());
    Answering transport(pause(seconds));
    SenderMemory memory;
    Sender client(database, paths.senderLock(), transport, systemClock(), {}, {}, randomJitter,
                  memory);
    std::vector<double> times;
    while (times.size() < clients) {
        database.execute("UPDATE state SET not_before = 0, failures = 0");
        const std::int64_t now = systemClock().now();
        times.push_back(static_cast<double>(client.step().due - now) / nanosecondsPerSecond);
    }
    return times;
}

constexpr std::size_t clients = 1000;
constexpr std::size_t tenths = 10;

using Spread = std::array<int, tenths>;

Spread spreadOf(const std::vector<double> &times, double first, double width)
{
    Spread spread{};
    for (const double time : times) {
        const double place = (time - first) / width * tenths;
        ++spread.at(static_cast<std::size_t>(std::clamp(place, 0.0, tenths - 1.0)));
    }
    return spread;
}

// One line of the table: how many of the clients come back in each tenth of the time over which
// they are spread.
void retryAfterOfAThousandClients(benchmark::State &state)
{
    const auto asked = static_cast<double>(state.range(0));
    const double width = std::max(1.0, asked / 2);
    std::vector<double> times;
    for ([[maybe_unused]] auto unused : state) {
        times = comeBack(clients, state.range(0));
    }
    const Spread spread = spreadOf(times, asked, width);
    std::printf("Retry-After %6.0f s, back in %8.1f to %8.1f s, in each tenth of that:", asked,
                *std::min_element(times.begin(), times.end()),
                *std::max_element(times.begin(), times.end()));
    for (const int count : spread) {
        std::printf(" %4d", count);
    }
    std::printf("\n");
    state.counters["early"] = static_cast<double>(
        std::count_if(times.begin(), times.end(), [&](double time) { return time < asked; }));
    state.counters["most_in_a_tenth"] = *std::max_element(spread.begin(), spread.end());
    state.counters["a_second_on_average"] = clients / width;
}
BENCHMARK(retryAfterOfAThousandClients)->Arg(1)->Arg(30)->Arg(300)->Arg(3600)->Iterations(1);

} // namespace
