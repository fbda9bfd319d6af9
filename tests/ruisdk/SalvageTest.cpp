// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// A page of the database is damaged, whichever it is: what can be read arrives, the rest is
// counted, and nothing stops for good.
#include "ReceivedRecords.h"
#include "Session.h"
#include "StoredRecords.h"
#include "TemporaryDirectory.h"
#include "TestServer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace {

using namespace rui::test;

constexpr std::size_t pageSize = 4096;
constexpr int small = 300;
constexpr int large = 5;

// Some texts need several pages.
std::vector<std::string> originalTexts()
{
    std::vector<std::string> texts;
    for (int i = 0; i < small; ++i) {
        texts.push_back("event " + std::to_string(i));
        if (i % (small / large) == 0) {
            texts.push_back(std::string(10000, static_cast<char>('a' + i % 26)));
        }
    }
    return texts;
}

struct Kind
{
    const char *name;
    char byte; // what the page is overwritten with
};

class Salvage : public testing::TestWithParam<Kind>
{
protected:
    // A database with all events waiting, without a journal.
    std::string makeDatabase()
    {
        Session session;
        EXPECT_EQ(session.open(m_directory.path("made")), 0);
        for (const std::string &text : m_texts) {
            EXPECT_EQ(session.track(text), 0);
        }
        session.stop();
        session.destroy();
        EXPECT_FALSE(std::filesystem::exists(databasePath(m_directory.path("made")) + "-wal"));
        return readFile(databasePath(m_directory.path("made")));
    }

    // The directory with this page overwritten.
    std::string damaged(std::string content, std::size_t page, char byte)
    {
        const std::string path = m_directory.path("page" + std::to_string(page));
        std::filesystem::copy(m_directory.path("made"), path);
        std::fill_n(content.begin() + static_cast<std::ptrdiff_t>(page * pageSize), pageSize, byte);
        writeFile(databasePath(path), content);
        return path;
    }

    TemporaryDirectory m_directory{TemporaryDirectory::Where::Memory};
    const std::vector<std::string> m_texts = originalTexts();
};

// Sessions until nothing waits any more; a few suffice.
void deliverAll(const std::string &path, TestServer &server)
{
    for (int i = 0; i < 4; ++i) {
        Session session;
        ASSERT_EQ(session.open(path, server.url()), 0);
        ASSERT_EQ(session.track("after " + std::to_string(i)), 0);
        ASSERT_EQ(session.stop(), 0);
    }
    EXPECT_EQ(queryValue(path, "SELECT count(*) FROM event"), "0");
}

int lostIn(const std::string &path)
{
    return std::stoi(queryValue(path, "SELECT coalesce(sum(lost + told), 0) FROM loss"));
}

TEST_P(Salvage, OfEveryPageInTurnSavesWhatCanBeReadAndCountsTheRest)
{
    const std::string content = makeDatabase();
    const std::set<std::string> originals(m_texts.begin(), m_texts.end());
    std::size_t saved = 0;
    for (std::size_t page = 0; page < content.size() / pageSize; ++page) {
        SCOPED_TRACE("page " + std::to_string(page + 1));
        TestServer server;
        const std::string path = damaged(content, page, GetParam().byte);
        ASSERT_NO_FATAL_FAILURE(deliverAll(path, server));
        std::set<std::string> arrived;
        std::size_t after = 0;
        for (const ReceivedRecord &record : receivedRecords(server)) {
            const bool isAfter = record.text.rfind("after ", 0) == 0;
            after += isAfter ? 1 : 0;
            if (!isAfter && record.eventName == "rui.Category.Name") {
                EXPECT_EQ(originals.count(record.text), 1U) << "altered: " << record.text.size();
                EXPECT_TRUE(arrived.insert(record.text).second) << "twice: " << record.text;
            }
        }
        EXPECT_EQ(after, 4U);
        const std::size_t missing = originals.size() - arrived.size();
        EXPECT_EQ(lostIn(path) > 0, missing > 0) << missing;
        // One that had arrived when the damage was come upon may count as lost all the same.
        EXPECT_LE(static_cast<std::size_t>(lostIn(path)), missing + large);
        saved += arrived.size();
    }
    EXPECT_GT(saved, originals.size() * (content.size() / pageSize) * 8 / 10);
}

INSTANTIATE_TEST_SUITE_P(Overwritten, Salvage,
                         testing::Values(Kind{"WithRubbish", '\xA5'}, Kind{"WithNothing", '\0'}),
                         [](const auto &row) { return std::string(row.param.name); });

} // namespace
