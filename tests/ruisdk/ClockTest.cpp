// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// A machine whose clock is set during a session.
#include "core/Instance.h"
#include "ReceivedRecords.h"
#include "SetClock.h"
#include "StoredRecords.h"
#include "TemporaryDirectory.h"

#include <gtest/gtest.h>

#include <atomic>

namespace {

using namespace rui;
using namespace rui::test;

constexpr std::int64_t start = 1795199937000000000;
constexpr std::int64_t day = 86400 * nanosecondsPerSecond;

class ClockSet : public testing::Test
{
protected:
    void open(const std::string &host)
    {
        Config config;
        config.directory = m_directory.path();
        if (!host.empty()) {
            config.server = parseServerAddress(host);
        }
        m_clock.time = start;
        m_instance.configure(config);
        m_instance.setProduct("", "", "1.0", "1");
        m_instance.start();
    }

    void trackAt(std::int64_t time, const std::string &text)
    {
        m_clock.jump(time - m_clock.time);
        m_instance.track({"C", "N", "", text});
    }

    static std::vector<std::string> sentTexts(const TestServer &server)
    {
        std::vector<std::string> texts;
        for (const ReceivedRecord &record : receivedRecords(server)) {
            texts.push_back(record.text);
        }
        return texts;
    }

    TemporaryDirectory m_directory;
    SetClock m_clock;
    Instance m_instance{{}, m_clock};
};

TEST_F(ClockSet, BackAndForwardLosesNothingAndKeepsTheOrderOfTheCalls)
{
    const TestServer server;
    open(server.url());
    trackAt(start, "1");
    trackAt(start - 20 * day, "2");
    trackAt(start + day, "3");
    trackAt(start - 25 * day, "4");
    m_instance.stop(true);
    EXPECT_EQ(sentTexts(server), (std::vector<std::string>{"1", "2", "3", "4"}));
}

TEST_F(ClockSet, BackDoesNotEndTheExpiry)
{
    TestServer server;
    std::atomic<int> requests{0};
    server.setRule([&](const Request &) {
        m_clock.step = nanosecondsPerSecond;
        ++requests;
        if (requests == 1) {
            m_clock.time += day;
        } else if (requests == 2) {
            m_clock.jump(-365 * day);
            m_clock.time += 31 * day;
            m_instance.track({"C", "N", "", "2"});
        }
        return Answer{requests < 3 ? 503 : 200, {}, {}, Answer::Manner::Reply};
    });
    open(server.url());
    trackAt(start, "1");
    ASSERT_TRUE(server.waitForRequests(3));
    m_instance.stop(true);
    EXPECT_EQ(
        sentTexts(server),
        (std::vector<std::string>{
            "1", "1", "2", R"({"EventCategory":"ruiSDK","EventName":"EventsLost","maxAge":1})"}));
}

TEST_F(ClockSet, BeforeNineteenSeventyIsStored)
{
    open("");
    trackAt(-day, "early");
    m_instance.stop(false);
    EXPECT_EQ(query(m_directory.path(), "SELECT time, substr(uid, 1, 10), text FROM event"),
              (std::vector<Row>{{"-86400000000000", "0000000000", "early"}}));
}

} // namespace
