// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// A device or a network that fails while a session with a backlog delivers: one call of each
// thread at a time. RUI_FAULTS=all does every call instead of a selection.
#include "ReceivedRecords.h"
#include "StoredRecords.h"
#include "TemporaryDirectory.h"
#include "Tracing.h"

#include <gtest/gtest.h>

#include <map>

namespace {

using namespace rui::test;

const std::set<std::string> none = {};
const std::set<std::string> storage = {"5"};
const std::set<std::string> storageOrBusy = {"5", "9"};
const std::set<std::string> fullOrStorage = {"5", "6"};

const std::vector<Fault> fileFaults = {
    {"pwrite64", "EIO", "error=EIO", storage, 7},
    {"pwrite64", "ENOSPC", "error=ENOSPC", {"6"}, 7},
    {"pwrite64", "WritesNothing", "retval=0", fullOrStorage, 5},
    {"pread64", "EIO", "error=EIO", storage, 7},
    {"fdatasync", "EIO", "error=EIO", storage, 4},
    {"ftruncate", "EIO", "error=EIO", storage, 2},
    {"openat", "EIO", "error=EIO", storage, 6},
    {"openat", "EMFILE", "error=EMFILE", storage, 6},
    {"close", "EIO", "error=EIO", none, 5},
    {"fcntl", "EIO", "error=EIO", storageOrBusy, 2},
    {"flock", "EIO", "error=EIO", storage, 5},
    {"newfstatat", "EIO", "error=EIO", storage, 6},
    {"unlink", "EIO", "error=EIO", none, 2},
    {"fchown", "EPERM", "error=EPERM", none, 2},
    {"mmap", "ENOMEM", "error=ENOMEM", storage, 2},
};

// What goes wrong in the network is no concern of the caller.
const std::vector<Fault> networkFaults = {
    {"socket", "EMFILE", "error=EMFILE", none, 3},
    {"connect", "ENETUNREACH", "error=ENETUNREACH", none, 3},
    {"connect", "ECONNREFUSED", "error=ECONNREFUSED", none, 3},
    {"setsockopt", "EIO", "error=EIO", none, 3},
    {"getsockopt", "EIO", "error=EIO", none, 3},
    {"getsockname", "EIO", "error=EIO", none, 3},
    {"getpeername", "ENOTCONN", "error=ENOTCONN", none, 3},
    {"sendto", "EPIPE", "error=EPIPE", none, 3},
    {"sendto", "ECONNRESET", "error=ECONNRESET", none, 3},
    {"recvfrom", "ECONNRESET", "error=ECONNRESET", none, 3},
    {"recvfrom", "EIO", "error=EIO", none, 3},
    {"poll", "ENOMEM", "error=ENOMEM", none, 3},
    // Without a thread of its own the library cannot begin a session.
    {"clone3", "EAGAIN", "error=EAGAIN", {"10"}},
};

std::vector<std::string> acknowledgedBacklog(const std::string &data)
{
    return readReport(runProgram({RUI_WRITER_PROGRAM, data, "backlog", "4"})).acknowledged;
}

CallCounts countWholeDelivery(bool onFiles)
{
    const TemporaryDirectory directory;
    const TestServer server;
    acknowledgedBacklog(directory.path("data"));
    return countCalls(directory.path("log"), directory.path("data"), {"w", "3", server.url()},
                      onFiles);
}

class DeliveryFaults : public testing::TestWithParam<Fault>
{
protected:
    void SetUp() override
    {
        if (!canTrace()) {
            GTEST_SKIP() << "strace may not trace here";
        }
    }

    // Device and network work again: the rest is delivered.
    static void expectArrived(const TestServer &server, const std::string &data,
                              const std::vector<std::string> &acknowledged)
    {
        const Outcome sent = runProgram({RUI_EVENTS_PROGRAM, "send", "--to", server.url(), data});
        EXPECT_EQ(sent.status, 0) << sent.errors;
        std::map<std::string, std::set<std::string>> ids;
        for (const ReceivedRecord &record : receivedRecords(server)) {
            ids[record.text].insert(record.uid);
        }
        for (const std::string &text : acknowledged) {
            EXPECT_EQ(ids[text].size(), 1U) << text << ": how many ids it arrived under";
        }
        EXPECT_EQ(fileBeginningWith(data, "usage-events.sqlite.damaged"), "");
        EXPECT_EQ(queryValue(data, "PRAGMA integrity_check"), "ok");
    }

    // False when the session made fewer calls than that this time.
    static bool tryCall(int call, bool onFiles)
    {
        const TemporaryDirectory directory;
        const TestServer server;
        const std::string data = directory.path("data");
        std::vector<std::string> acknowledged = acknowledgedBacklog(data);
        EXPECT_EQ(acknowledged.size(), 4U);
        const WriterRun run = runWithFault(directory.path("log"), GetParam(), call, data,
                                           {"w", "3", server.url()}, onFiles);
        acknowledged.insert(acknowledged.end(), run.acknowledged.begin(), run.acknowledged.end());
        for (const std::string &result : run.results) {
            EXPECT_EQ(GetParam().results.count(result), 1U) << "result " << result;
        }
        expectArrived(server, data, acknowledged);
        return run.injected;
    }

    static void tryCalls(bool onFiles)
    {
        int runs = 0;
        for (const int call : callsToFail(GetParam(), countWholeDelivery(onFiles))) {
            const testing::ScopedTrace at(__FILE__, __LINE__, "call " + std::to_string(call));
            runs += tryCall(call, onFiles) ? 1 : 0;
        }
        if (runs == 0) {
            GTEST_SKIP() << "the library makes no such call here";
        }
        std::printf("%d runs\n", runs);
    }
};

std::string nameOf(const testing::TestParamInfo<Fault> &row)
{
    return std::string(row.param.call) + "_" + row.param.word;
}

class DeviceFaults : public DeliveryFaults
{};

TEST_P(DeviceFaults, DuringADeliveryLoseNothingThatWasAcknowledged)
{
    tryCalls(true);
}

INSTANTIATE_TEST_SUITE_P(Calls, DeviceFaults, testing::ValuesIn(fileFaults), nameOf);

class NetworkFaults : public DeliveryFaults
{};

TEST_P(NetworkFaults, DuringADeliveryLoseNothingAndAreNotSeenByTheCaller)
{
    tryCalls(false);
}

INSTANTIATE_TEST_SUITE_P(Calls, NetworkFaults, testing::ValuesIn(networkFaults), nameOf);

TEST(DeviceFault, IsPutIntoEveryCallThatADeliveryMakesOnItsFiles)
{
    if (!canTrace()) {
        GTEST_SKIP() << "strace may not trace here";
    }
    EXPECT_EQ(callsWithoutFault(fileFaults, countWholeDelivery(true)), std::set<std::string>{});
}

} // namespace
