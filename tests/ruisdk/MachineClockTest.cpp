// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// A machine whose clock is set, as a whole process sees it.
#include "Child.h"
#include "ReceivedRecords.h"
#include "StoredRecords.h"
#include "TemporaryDirectory.h"
#include "Tracing.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace {

using namespace rui::test;
using Texts = std::vector<std::string>;

// The path of the library that fakes the clock; empty where it cannot be used.
std::string fakeClock()
{
    const Outcome outcome = runProgram({"faketime", "2026-11-21 12:00:00", "sh", "-c",
                                        "date +%Y-%m-%d; printf %s \"$LD_PRELOAD\""});
    const std::string date = "2026-11-21\n";
    return outcome.output.rfind(date, 0) == 0 ? outcome.output.substr(date.size()) : "";
}

class MachineClock : public testing::Test
{
protected:
    void SetUp() override
    {
#ifdef __SANITIZE_THREAD__
        GTEST_SKIP() << "faketime and the thread sanitizer wait for each other";
#endif
        m_library = fakeClock();
        if (m_library.empty()) {
            GTEST_SKIP() << "faketime is missing";
        }
    }

    // The clock is set whenever the file changes. What counts durations goes on.
    std::map<std::string, std::string> environment() const
    {
        return {{"LD_PRELOAD", m_library},
                {"FAKETIME_TIMESTAMP_FILE", m_clockFile},
                {"FAKETIME_NO_CACHE", "1"},
                {"FAKETIME_DONT_FAKE_MONOTONIC", "1"},
                {"TZ", "UTC"},
                {"ASAN_OPTIONS", "verify_asan_link_order=0:detect_leaks=0"}};
    }

    void setClock(const std::string &time) const
    {
        // In one step: a reader never finds half a line.
        writeFile(m_clockFile + ".new", "@" + time + "\n");
        std::filesystem::rename(m_clockFile + ".new", m_clockFile);
    }

    Outcome runWriter(const std::string &name, const std::string &host = "") const
    {
        return runProgram({RUI_WRITER_PROGRAM, m_data, name, "2", host}, environment());
    }

    TemporaryDirectory m_directory;
    const std::string m_data = m_directory.path("data");
    const std::string m_clockFile = m_directory.path("clock");
    std::string m_library;
};

TEST_F(MachineClock, SetBackBetweenSessionsLosesNothingAndKeepsTheOrderOfTheCalls)
{
    setClock("2026-11-21 12:00:00");
    EXPECT_EQ(runWriter("today").status, 0);
    setClock("2001-01-01 00:00:00");
    EXPECT_EQ(runWriter("back").status, 0);
    setClock("1969-12-31 23:00:00");
    EXPECT_EQ(runWriter("before1970").status, 0);
    EXPECT_EQ(storedTexts(m_data),
              (Texts{"today 1", "today 2", "back 1", "back 2", "before1970 1", "before1970 2"}));
    EXPECT_EQ(queryValue(m_data, "SELECT time / 1000000000 FROM record WHERE text = 'back 1'"),
              "978307200");
}

TEST_F(MachineClock, SetForwardByLessThanThirtyDaysLosesNothing)
{
    setClock("2026-11-21 12:00:00");
    EXPECT_EQ(runWriter("today").status, 0);
    setClock("2026-12-21 11:00:00");
    EXPECT_EQ(runWriter("later").status, 0);
    EXPECT_EQ(storedTexts(m_data), (Texts{"today 1", "today 2", "later 1", "later 2"}));
}

TEST_F(MachineClock, SetForwardByAYearLosesNothingThatIsYounger)
{
    setClock("2026-11-21 12:00:00");
    EXPECT_EQ(runWriter("today").status, 0);
    setClock("2027-11-21 12:00:00");
    EXPECT_EQ(runWriter("later").status, 0);
    EXPECT_EQ(storedTexts(m_data), (Texts{"today 1", "today 2", "later 1", "later 2"}));
}

TEST_F(MachineClock, StartedAgainAYearLaterDropsAndCountsWhatIsTooOld)
{
    setClock("2026-11-21 12:00:00");
    EXPECT_EQ(runWriter("today").status, 0);
    change(m_data, "UPDATE clock_mark SET boot = 'an earlier one'");
    setClock("2027-11-21 12:00:00");
    EXPECT_EQ(runWriter("later").status, 0);
    EXPECT_EQ(storedTexts(m_data), (Texts{"later 1", "later 2"}));
    EXPECT_EQ(query(m_data, "SELECT reason, lost FROM loss"), (std::vector<Row>{{"maxAge", "2"}}));
}

TEST_F(MachineClock, SetBackAfterAFailedTryDoesNotHoldUpTheDelivery)
{
    TestServer server;
    server.add({503, "Retry-After: 3600\r\n", {}, Answer::Manner::Reply});
    setClock("2026-11-21 12:00:00");
    EXPECT_EQ(runWriter("today", server.url()).status, 0);
    EXPECT_FALSE(receivedRecords(server).empty()); // the second may come too late for that try
    setClock("2016-11-21 12:00:00");
    EXPECT_EQ(runWriter("back", server.url()).status, 0);
    std::set<std::string> texts;
    for (const ReceivedRecord &record : receivedRecords(server)) {
        texts.insert(record.text);
    }
    EXPECT_EQ(texts, (std::set<std::string>{"today 1", "today 2", "back 1", "back 2"}));
}

TEST_F(MachineClock, SetToAndFroDuringASessionLosesNothing)
{
    setClock("2026-11-21 12:00:00");
    Child writer({RUI_WRITER_PROGRAM, m_data, "w", "6000"}, environment());
    Texts acknowledged;
    for (const char *time : {"2026-11-11 12:00:00", "2026-12-01 12:00:00", "2026-11-05 12:00:00",
                             "2026-11-21 12:00:00"}) {
        std::string line;
        for (int i = 0; i < 1000 && writer.readLine(line); ++i) {
            acknowledged.push_back(line);
        }
        setClock(time);
    }
    for (std::string line; writer.readLine(line);) {
        acknowledged.push_back(line);
    }
    EXPECT_EQ(writer.wait(), 0);
    EXPECT_EQ(acknowledged.size(), 6000U);
    EXPECT_EQ(storedTexts(m_data), acknowledged);
    // The clock was really set: each of the four days has events. Others are not counted: faketime
    // reads its file into one buffer for all threads, so that a time may be that of neither.
    EXPECT_EQ(queryValue(m_data, "SELECT count(DISTINCT time / 86400000000000) FROM record WHERE "
                                 "time / 86400000000000 IN (20778, 20768, 20788, 20762)"),
              "4");
}

} // namespace
