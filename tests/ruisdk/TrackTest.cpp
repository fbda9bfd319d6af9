// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// What is stored of an event.
#include "Session.h"
#include "StoredRecords.h"
#include "TemporaryDirectory.h"

#include <gtest/gtest.h>

namespace {

using namespace rui::test;

class Track : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_EQ(m_session.open(m_path), 0);
    }

    TemporaryDirectory m_directory;
    const std::string m_path = m_directory.path();
    Session m_session;
};

TEST_F(Track, EveryPartOfAnEventIsKept)
{
    EXPECT_EQ(ruiTrackEventText(m_session.handle(), "Camera", "Opened", R"({"CameraNr":0})", "s1"),
              0);
    EXPECT_EQ(query(m_path, "SELECT seq, category, name, text, session FROM record"),
              (std::vector<Row>{{"1", "Camera", "Opened", R"({"CameraNr":0})", "s1"}}));
}

TEST_F(Track, PlainEventHasNoText)
{
    EXPECT_EQ(ruiTrackEvent(m_session.handle(), "Model", "a2A*", ""), 0);
    EXPECT_EQ(query(m_path, "SELECT category, name, text FROM record"),
              (std::vector<Row>{{"Model", "a2A*", "(null)"}}));
}

TEST_F(Track, EmptyTextIsNotTheSameAsNoText)
{
    EXPECT_EQ(ruiTrackEventText(m_session.handle(), "", "", "", ""), 0);
    EXPECT_EQ(query(m_path, "SELECT category, name, text, session FROM record"),
              (std::vector<Row>{{"", "", "", ""}}));
}

TEST_F(Track, TextThatIsNotJsonIsKeptByteForByte)
{
    const std::string text = "{\"broken\": \"\x01\t\n\"} \xE2\x82\xAC '\"\\";
    EXPECT_EQ(m_session.track(text), 0);
    EXPECT_EQ(storedTexts(m_path), std::vector<std::string>{text});
}

TEST_F(Track, EventIsReadByAnotherConnectionWhenTheCallReturns)
{
    for (int i = 1; i <= 20; ++i) {
        ASSERT_EQ(m_session.track("text"), 0);
        ASSERT_EQ(queryValue(m_path, "SELECT count(*) FROM event"), std::to_string(i));
    }
}

TEST_F(Track, EventsAreNumberedInTheOrderOfTheCalls)
{
    m_session.track("a");
    m_session.track("b");
    m_session.track("c");
    EXPECT_EQ(query(m_path, "SELECT seq, text FROM record ORDER BY seq"),
              (std::vector<Row>{{"1", "a"}, {"2", "b"}, {"3", "c"}}));
}

TEST_F(Track, EveryEventHasAnIdOfItsOwn)
{
    for (int i = 0; i < 100; ++i) {
        m_session.track("same");
    }
    EXPECT_EQ(queryValue(m_path, "SELECT count(DISTINCT uid) FROM event WHERE length(uid) = 26"),
              "100");
}

TEST_F(Track, EventOfOneMebibyteIsStored)
{
    const std::string text(1024 * 1024 - 2, 'x');
    EXPECT_EQ(m_session.track(text, "n", "c"), 0);
    EXPECT_EQ(storedTexts(m_path), std::vector<std::string>{text});
}

TEST_F(Track, LargerEventIsRefusedAndCounted)
{
    EXPECT_EQ(m_session.track(std::string(1024 * 1024 - 1, 'x'), "n", "c"), 8);
    EXPECT_EQ(queryValue(m_path, "SELECT count(*) FROM record"), "0");
    EXPECT_EQ(query(m_path, "SELECT reason, lost FROM loss"),
              (std::vector<Row>{{"eventSize", "1"}}));
}

TEST_F(Track, DescriptionOfTheProductIsKeptOnce)
{
    m_session.track("a");
    m_session.track("b");
    EXPECT_EQ(query(m_path, "SELECT product, application, edition, language, version, build"
                            " FROM resource"),
              (std::vector<Row>{
                  {"2026110001", "nerixViewer", "Standard", "US English", "7.1.0", "11271"}}));
    EXPECT_EQ(queryValue(m_path, "SELECT count(DISTINCT resource) FROM event"), "1");
}

TEST_F(Track, ClientIdIsARandomUuidThatLaterSessionsKeep)
{
    const std::string sql = "SELECT client FROM state";
    const std::string client = queryValue(m_path, sql);
    EXPECT_EQ(client.size(), 36U);
    EXPECT_EQ(client[14], '4');
    m_session.destroy();
    Session next;
    next.open(m_path);
    EXPECT_EQ(queryValue(m_path, sql), client);
}

} // namespace
