// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// A machine whose clock is set during a session, by less than the age at which events are dropped.
#include "core/Instance.h"
#include "ReceivedRecords.h"
#include "SetClock.h"
#include "StoredRecords.h"
#include "TemporaryDirectory.h"

#include <gtest/gtest.h>

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
        m_clock.time = time;
        m_instance.track({"C", "N", "", text});
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
    std::vector<std::string> texts;
    for (const ReceivedRecord &record : receivedRecords(server)) {
        texts.push_back(record.text);
    }
    EXPECT_EQ(texts, (std::vector<std::string>{"1", "2", "3", "4"}));
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
