// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// Sessions with a server: what is sent when, and how long the end takes.
#include "Child.h"
#include "Session.h"
#include "StoredRecords.h"
#include "TemporaryDirectory.h"
#include "TestServer.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <csignal>
#include <thread>

namespace {

using namespace rui::test;
using namespace std::chrono_literals;
using Manner = Answer::Manner;

class SessionDelivery : public testing::Test
{
protected:
    template <typename Call>
    static std::chrono::nanoseconds timeOf(Call call)
    {
        const auto start = std::chrono::steady_clock::now();
        call();
        return std::chrono::steady_clock::now() - start;
    }

    std::string pending()
    {
        return queryValue(m_path, "SELECT count(*) FROM record WHERE state = 'pending'");
    }

    TemporaryDirectory m_directory;
    const std::string m_path = m_directory.path();
    TestServer m_server;
    Session m_session;
};

TEST_F(SessionDelivery, EventsAreSentDuringTheSession)
{
    m_session.open(m_path, m_server.url());
    m_session.track("text");
    EXPECT_TRUE(m_server.waitForRequests(1));
}

TEST_F(SessionDelivery, StopSendsWhatIsLeft)
{
    m_session.open(m_path, m_server.url());
    for (int i = 0; i < 250; ++i) {
        m_session.track("text");
    }
    EXPECT_EQ(m_session.stop(), 0);
    EXPECT_EQ(pending(), "0");
}

TEST_F(SessionDelivery, BacklogOfEarlierSessionsIsSent)
{
    Session earlier;
    earlier.open(m_path);
    earlier.track("earlier");
    earlier.destroy();
    m_session.open(m_path, m_server.url());
    EXPECT_TRUE(m_server.waitForRequests(1));
    m_session.stop();
    EXPECT_EQ(pending(), "0");
}

TEST_F(SessionDelivery, StopWithFlagOneKeepsWhatIsLeft)
{
    // The server does not answer while the session goes on, so that something is left at its end.
    m_server.add({200, "", {}, Answer::Manner::Hang});
    m_session.open(m_path, m_server.url());
    m_session.track("text");
    ASSERT_TRUE(m_server.waitForRequests(1));
    EXPECT_EQ(m_session.stop(1), 0);
    EXPECT_EQ(pending(), "1");
}

TEST_F(SessionDelivery, StopSendsWhatIsLeftToAServerThatIsBack)
{
    m_server.setDown(true);
    m_session.open(m_path, m_server.url());
    m_session.track("text");
    m_server.setDown(false);
    EXPECT_EQ(m_session.stop(), 0);
    EXPECT_EQ(pending(), "0");
}

TEST_F(SessionDelivery, EmptyHostSendsNothing)
{
    m_session.open(m_path, "");
    m_session.track("text");
    EXPECT_EQ(m_session.stop(), 0);
    EXPECT_EQ(pending(), "1");
}

TEST_F(SessionDelivery, LocalOnlySendsNothingAlthoughThereIsAHost)
{
    EXPECT_EQ(ruiCreateConfig(m_session.handle(), m_path.c_str(), "1", "n", m_server.url().c_str(),
                              3, "", 1, 0),
              0);
    m_session.product();
    m_session.start();
    m_session.track("text");
    EXPECT_EQ(m_session.stop(), 0);
    EXPECT_EQ(m_server.requests().size(), 0U);
    EXPECT_EQ(pending(), "1");
}

TEST_F(SessionDelivery, PlainHttpToAnotherMachineIsUnsupported)
{
    EXPECT_EQ(m_session.config(m_path, "http://collector.example.com"), 4);
    EXPECT_EQ(m_session.config(m_path, "not an address"), 2);
}

// The bounds are the promise itself, not a measure of speed.
TEST_F(SessionDelivery, StopReturnsWithinTwoSecondsWhenTheServerHangs)
{
    m_server.add({200, {}, {}, Manner::Hang});
    m_session.open(m_path, m_server.url());
    m_session.track("kept");
    ASSERT_TRUE(m_server.waitForRequests(1));
    EXPECT_LT(timeOf([&] { EXPECT_EQ(m_session.stop(), 0); }), 2s);
    EXPECT_EQ(pending(), "1");
}

TEST_F(SessionDelivery, StopReturnsWithinFiveSecondsWithAnOptOutWhenTheServerHangs)
{
    m_server.add({200, {}, {}, Manner::Hang});
    Session().open(m_path, "");
    m_session.config(m_path, m_server.url());
    m_session.product();
    m_session.optOut();
    m_session.start();
    EXPECT_LT(timeOf([&] { EXPECT_EQ(m_session.stop(), 0); }), 5s);
    EXPECT_EQ(pending(), "1");
}

TEST_F(SessionDelivery, StopTriesAnOptOutAgainWithinItsTime)
{
    m_server.add({503, {}, {}, Manner::Reply});
    Session().open(m_path, "");
    m_session.config(m_path, m_server.url());
    m_session.product();
    m_session.optOut();
    m_session.start();
    EXPECT_EQ(m_session.stop(), 0);
    EXPECT_EQ(m_server.requests().size(), 2U);
    EXPECT_EQ(pending(), "0");
}

TEST_F(SessionDelivery, DestroyDoesNotWaitForAServerThatHangs)
{
    m_server.add({200, {}, {}, Manner::Hang});
    m_session.open(m_path, m_server.url());
    m_session.track("kept");
    ASSERT_TRUE(m_server.waitForRequests(1));
    EXPECT_LT(timeOf([&] { EXPECT_EQ(m_session.destroy(), 0); }), 2s);
    EXPECT_EQ(pending(), "1");
}

TEST_F(SessionDelivery, TrackDoesNotWaitForAServerThatHangs)
{
    m_server.add({200, {}, {}, Manner::Hang});
    m_session.open(m_path, m_server.url());
    m_session.track("first");
    ASSERT_TRUE(m_server.waitForRequests(1));
    for (int i = 0; i < 100; ++i) {
        EXPECT_EQ(m_session.track("more"), 0);
    }
    EXPECT_EQ(pending(), "101");
}

TEST_F(SessionDelivery, ProgramMayExitDuringASession)
{
    m_server.add({200, {}, {}, Manner::Hang});
    const Outcome outcome =
        runProgram({RUI_WRITER_PROGRAM, m_path, "w", "3", m_server.url(), "exit"});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.output, "w 1\nw 2\nw 3\n");
    EXPECT_EQ(pending(), "3");
}

TEST_F(SessionDelivery, PlainHttpIsNotSentThroughAProxy)
{
    const TestServer proxy;
    const Outcome outcome =
        runProgram({RUI_WRITER_PROGRAM, m_path, "w", "1", m_server.url()},
                   {{"http_proxy", proxy.url()}, {"ALL_PROXY", proxy.url()}, {"no_proxy", ""}});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(proxy.requests().size(), 0U);
    EXPECT_EQ(m_server.requests().size(), 1U);
}

TEST_F(SessionDelivery, CallsDoNotWaitForASessionThatIsBeingEnded)
{
    m_server.add({200, {}, {}, Manner::Hang});
    m_session.open(m_path, m_server.url());
    m_session.track("first");
    ASSERT_TRUE(m_server.waitForRequests(1));
    std::atomic<bool> isEnded{false};
    std::thread stopping([&] {
        m_session.stop();
        isEnded = true;
    });
    int32_t result = RUI_OK;
    while (result == RUI_OK) {
        result = m_session.track("more");
    }
    // The server hangs, so that the end takes nearly two seconds.
    EXPECT_FALSE(isEnded);
    EXPECT_EQ(result, RUI_WRONG_STATE);
    stopping.join();
}

TEST_F(SessionDelivery, SenderThatIsKilledIsReplacedByAnotherProcess)
{
    m_server.add({200, {}, {}, Manner::Hang});
    Child first({RUI_WRITER_PROGRAM, m_path, "w", "100", m_server.url(), "stay"});
    ASSERT_TRUE(m_server.waitForRequests(1));
    Session other;
    other.open(m_path, m_server.url());
    EXPECT_EQ(other.track("other"), 0);
    first.sendSignal(SIGKILL);
    first.wait();
    EXPECT_TRUE(m_server.waitForRequests(2));
    EXPECT_EQ(other.stop(), 0);
    EXPECT_EQ(pending(), "0");
}

TEST_F(SessionDelivery, SessionsInEveryOrderOfServersDeliverEachEventOnce)
{
    for (int i = 0; i < 5; ++i) {
        Session session;
        session.open(m_path, i % 2 == 0 ? m_server.url() : "");
        session.track(std::to_string(i));
        session.stop();
    }
    std::string all;
    for (const Request &request : m_server.requests()) {
        all += request.body;
    }
    for (int i = 0; i < 5; ++i) {
        const std::string text = "\"stringValue\":\"" + std::to_string(i) + "\"";
        EXPECT_NE(all.find(text), std::string::npos) << i;
        EXPECT_EQ(all.find(text), all.rfind(text)) << i;
    }
}

} // namespace
