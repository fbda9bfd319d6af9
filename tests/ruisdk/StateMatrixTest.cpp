// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// Every call on an instance in every state, after every failure, and beside every other call.
#include "Child.h"
#include "Session.h"
#include "StoredRecords.h"
#include "TemporaryDirectory.h"

#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <functional>
#include <set>
#include <thread>

namespace {

using namespace rui::test;

struct Call
{
    const char *name;
    std::function<int32_t(ruiInstance, const std::string &directory)> run;
};

int32_t configure(ruiInstance instance, const std::string &directory)
{
    return ruiCreateConfig(instance, directory.c_str(), "1", "app", "", 3, "", 0, 0);
}

const std::vector<Call> calls = {
    {"config", configure},
    {"product", [](auto i, auto) { return ruiSetProductData(i, "a", "b", "c", "d"); }},
    {"start", [](auto i, auto) { return ruiStartSDK(i); }},
    {"stop", [](auto i, auto) { return ruiStopSDK(i, 0); }},
    {"stopAtOnce", [](auto i, auto) { return ruiStopSDK(i, 1); }},
    {"optOut", [](auto i, auto) { return ruiOptOut(i); }},
    {"track", [](auto i, auto) { return ruiTrackEvent(i, "c", "n", ""); }},
    {"trackText", [](auto i, auto) { return ruiTrackEventText(i, "c", "n", "t", ""); }},
    {"destroy", [](auto i, auto) { return ruiDestroyInstance(i); }},
};

// From here on the database cannot be used, which each call notices when it touches it.
void breakDatabase(const std::string &directory)
{
    std::filesystem::remove_all(databasePath(directory));
    std::filesystem::create_directory(databasePath(directory));
}

struct State
{
    const char *name;
    std::function<void(Session &, const std::string &directory)> enter;
    // What each call gives then, in the order of the calls.
    std::array<int32_t, 9> results;
};

const std::vector<State> states = {
    {"Created", [](auto &, auto) {}, {0, 3, 3, 3, 3, 3, 3, 3, 0}},
    {"ConfigFailed",
     [](auto &session, auto) { EXPECT_EQ(session.config("/dev/null/nowhere"), 5); },
     {0, 3, 3, 3, 3, 3, 3, 3, 0}},
    {"Configured",
     [](auto &session, auto directory) { session.config(directory); },
     {3, 0, 3, 3, 3, 0, 3, 3, 0}},
    {"Ready",
     [](auto &session, auto directory) {
         session.config(directory);
         session.product();
     },
     {3, 0, 0, 3, 3, 0, 3, 3, 0}},
    {"Running",
     [](auto &session, auto directory) { session.open(directory); },
     {3, 3, 3, 0, 0, 0, 0, 0, 0}},
    {"Stopped",
     [](auto &session, auto directory) {
         session.open(directory);
         session.stop();
     },
     {3, 3, 0, 3, 3, 0, 3, 3, 0}},
    {"OptedOutBeforeTheStart",
     [](auto &session, auto directory) {
         session.config(directory);
         session.product();
         session.optOut();
     },
     {3, 0, 0, 3, 3, 0, 3, 3, 0}},
    {"OptedOutWhileRunning",
     [](auto &session, auto directory) {
         session.open(directory);
         session.optOut();
     },
     {3, 3, 3, 0, 0, 0, 7, 7, 0}},
    {"OptedOutAndStopped",
     [](auto &session, auto directory) {
         session.open(directory);
         session.optOut();
         session.stop();
     },
     {3, 3, 0, 3, 3, 0, 3, 3, 0}},
    {"ReadyAndTheDatabaseBroken",
     [](auto &session, auto directory) {
         session.config(directory);
         session.product();
         breakDatabase(directory);
     },
     {3, 0, 5, 3, 3, 5, 3, 3, 0}},
    {"RunningAndTheDatabaseBroken",
     [](auto &session, auto directory) {
         session.open(directory);
         breakDatabase(directory);
     },
     {3, 3, 3, 0, 0, 5, 5, 5, 0}},
    {"OptOutFailedBeforeTheStart",
     [](auto &session, auto directory) {
         session.config(directory);
         session.product();
         breakDatabase(directory);
         EXPECT_EQ(session.optOut(), 5);
     },
     {3, 0, 5, 3, 3, 5, 3, 3, 0}},
    {"OptOutFailedWhileRunning",
     [](auto &session, auto directory) {
         session.open(directory);
         breakDatabase(directory);
         EXPECT_EQ(session.optOut(), 5);
     },
     {3, 3, 3, 0, 0, 5, 7, 7, 0}},
    {"DirectoryGoneWhileRunning",
     [](auto &session, auto directory) {
         session.open(directory);
         std::filesystem::rename(directory, directory + "-gone");
     },
     {3, 3, 3, 0, 0, 5, 5, 5, 0}},
    {"Destroyed",
     [](auto &session, auto directory) {
         session.open(directory);
         session.destroy();
     },
     {1, 1, 1, 1, 1, 1, 1, 1, 1}},
};

class StateByCall : public testing::TestWithParam<State>
{};

TEST_P(StateByCall, GivesTheCodeOfTheTable)
{
    for (std::size_t i = 0; i < calls.size(); ++i) {
        const TemporaryDirectory directory(TemporaryDirectory::Where::Memory);
        Session session;
        GetParam().enter(session, directory.path("data"));
        EXPECT_EQ(calls[i].run(session.handle(), directory.path("data")), GetParam().results[i])
            << calls[i].name;
    }
}

// After any call a second one gives a code, too, and the instance can be destroyed, unless one of
// the two has done it.
TEST_P(StateByCall, LeavesAnInstanceOnWhichEveryCallGivesACode)
{
    for (const Call &first : calls) {
        for (const std::size_t index : {2U, 5U, 6U, 8U}) { // start, optOut, track, destroy
            const Call &second = calls[index];
            const TemporaryDirectory directory(TemporaryDirectory::Where::Memory);
            Session session;
            GetParam().enter(session, directory.path("data"));
            first.run(session.handle(), directory.path("data"));
            const int32_t result = second.run(session.handle(), directory.path("data"));
            const bool isDestroyed = &first == &calls.back() || &second == &calls.back()
                                     || GetParam().results.back() == 1;
            EXPECT_TRUE(result >= 0 && result <= 11) << first.name << ", " << second.name;
            EXPECT_EQ(session.destroy(), isDestroyed ? 1 : 0) << first.name << ", " << second.name;
        }
    }
}

// Runs both at once, as far as two threads can.
std::array<int32_t, 2> together(const Call &first, const Call &second, ruiInstance instance,
                                const std::string &directory)
{
    std::array<int32_t, 2> results{};
    std::atomic<int> ready{0};
    const auto run = [&](const Call &call, int32_t &result) {
        for (++ready; ready < 2;) {
        }
        result = call.run(instance, directory);
    };
    std::thread other([&] { run(second, results[1]); });
    run(first, results[0]);
    other.join();
    return results;
}

TEST_P(StateByCall, TwoCallsAtOnceGiveCodesOfOneOrderOrTheOther)
{
    // 5: the broken database; 7: after an opt-out; 9: the end of a session ends all waiting.
    const std::set<int32_t> allowed = {0, 1, 3, 5, 7, 9};
    for (std::size_t i = 0; i < calls.size(); ++i) {
        for (std::size_t j = i; j < calls.size(); ++j) {
            const TemporaryDirectory directory(TemporaryDirectory::Where::Memory);
            Session session;
            GetParam().enter(session, directory.path("data"));
            for (const int32_t result :
                 together(calls[i], calls[j], session.handle(), directory.path("data"))) {
                EXPECT_EQ(allowed.count(result), 1U)
                    << result << " of " << calls[i].name << " and " << calls[j].name;
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(States, StateByCall, testing::ValuesIn(states),
                         [](const auto &row) { return std::string(row.param.name); });

TEST(AtExit, EveryCallOfAStaticObjectIsABadHandleAndNoInstanceIsCreated)
{
    const TemporaryDirectory directory(TemporaryDirectory::Where::Memory);
    const Outcome outcome = runProgram({RUI_EXIT_PROGRAM, "static", directory.path("data")});
    EXPECT_EQ(outcome.status, 0) << outcome.errors;
    std::string expected;
    for (const char *state : {"created", "configured", "running", "stopped", "optedOut"}) {
        expected += std::string(state) + " 1 1 1 1 1 1 1 1\n";
    }
    EXPECT_EQ(outcome.output, expected + "create null\n");
}

TEST(AtExit, ThreadsThatStillCallGetCodesToTheEnd)
{
    const TemporaryDirectory directory(TemporaryDirectory::Where::Memory);
    for (int round = 0; round < 5; ++round) {
        const Outcome outcome = runProgram({RUI_EXIT_PROGRAM, "threads", directory.path("data")});
        EXPECT_EQ(outcome.status, 0) << outcome.errors;
        EXPECT_EQ(outcome.errors, "");
    }
    EXPECT_EQ(queryValue(directory.path("data"), "PRAGMA integrity_check"), "ok");
}

} // namespace
