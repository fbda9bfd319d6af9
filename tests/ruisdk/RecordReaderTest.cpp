// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// Reading what is stored while others write, by one who takes his time.
#include "store/RecordReader.h"

#include "SetClock.h"
#include "store/Store.h"
#include "StoredRecords.h"
#include "TemporaryDirectory.h"

#include <gtest/gtest.h>

namespace {

using namespace rui;
using namespace rui::test;

class Reading : public testing::Test
{
protected:
    void SetUp() override
    {
        m_store.emplace(StorePaths(m_path), OpeningOptions{}, m_limits, m_clock, m_busyLimit);
        m_store->join({"1", "app", "", "", "", ""});
    }

    void add(std::size_t count, const std::string &text = "text")
    {
        for (std::size_t i = 0; i < count; ++i) {
            m_store->add({"C", "N", "", text});
        }
    }

    static std::vector<std::int64_t> numbers(std::int64_t first, std::int64_t last)
    {
        std::vector<std::int64_t> all;
        for (std::int64_t number = first; number <= last; ++number) {
            all.push_back(number);
        }
        return all;
    }

    // 0 when the journal could be begun anew, because nobody reads from it.
    int truncateJournal() const
    {
        const Database other(databasePath(m_path), Database::Access::ReadWrite,
                             std::make_shared<BusyLimit>(std::chrono::milliseconds(0)));
        return static_cast<int>(other.integer("PRAGMA wal_checkpoint(TRUNCATE)"));
    }

    std::vector<std::int64_t> read(
        const std::function<void()> &meanwhile = [] {}, const RecordFilter &filter = {})
    {
        const RecordReader reader{StorePaths(m_path)};
        std::vector<std::int64_t> seqs;
        reader.read(filter, 0, [&](const Record &record) {
            seqs.push_back(record.seq);
            meanwhile();
        });
        return seqs;
    }

    TemporaryDirectory m_directory;
    const std::string m_path = m_directory.path();
    Limits m_limits;
    SetClock m_clock;
    const std::shared_ptr<BusyLimit> m_busyLimit =
        std::make_shared<BusyLimit>(std::chrono::seconds(5));
    std::optional<Store> m_store;
};

TEST_F(Reading, GivesEveryRecordOnceAndInOrder)
{
    for (const std::int64_t count : {0, 1, 99, 100, 101, 250}) {
        add(static_cast<std::size_t>(count) - read().size());
        EXPECT_EQ(read(), numbers(1, count));
    }
}

TEST_F(Reading, DoesNotHoldTheJournalWhileARecordIsTaken)
{
    add(10);
    int held = 0;
    EXPECT_EQ(read([&] { held += truncateJournal(); }).size(), 10U);
    EXPECT_EQ(held, 0);
}

TEST_F(Reading, LeavesOutWhatIsDeletedBeforeItsTurn)
{
    add(300);
    int taken = 0;
    const auto seqs = read([&] {
        if (++taken == 50) {
            change(m_path, "DELETE FROM event WHERE seq BETWEEN 101 AND 290");
        }
    });
    EXPECT_EQ(seqs.size(), 110U);
    EXPECT_EQ(seqs.back(), 300);
}

TEST_F(Reading, EndsAlthoughMoreIsAddedAllTheTime)
{
    add(150);
    EXPECT_EQ(read([&] { add(2); }), numbers(1, 150));
}

TEST_F(Reading, TakesNoMoreThanAMebibyteIntoMemoryAtATime)
{
    add(20, std::string(600000, 'x'));
    std::vector<std::string> seen;
    const RecordReader reader{StorePaths(m_path)};
    // What has been read already stays as it was; two events are more than a mebibyte.
    reader.read({}, 0, [&](const Record &record) {
        change(m_path, "UPDATE event SET name = 'changed at " + std::to_string(record.seq)
                           + "' WHERE seq > " + std::to_string(record.seq));
        seen.push_back(record.name);
    });
    ASSERT_EQ(seen.size(), 20U);
    EXPECT_EQ(seen[1], "N");
    EXPECT_EQ(seen[2], "changed at 2");
    EXPECT_EQ(seen[3], "changed at 2");
    EXPECT_EQ(seen[4], "changed at 4");
}

TEST_F(Reading, KeepsToTheFilterAcrossManyPages)
{
    for (int i = 0; i < 300; ++i) {
        m_store->add({"C", i % 150 == 149 ? "Rare" : "N", "", "text"});
    }
    RecordFilter filter;
    filter.name = "Rare";
    EXPECT_EQ(read([] {}, filter), (std::vector<std::int64_t>{150, 300}));
}

} // namespace
