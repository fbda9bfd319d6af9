// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// The space of events that are gone is given back to the file system.
#include "store/Shrinking.h"

#include "delivery/Worker.h"
#include "DeliveryFixture.h"

#include <filesystem>

namespace {

using namespace rui;
using namespace rui::test;

constexpr std::uintmax_t mebibyte = 1024 * 1024;

class Shrinking : public DeliveryFixture
{
protected:
    void SetUp() override
    {
        m_deliveryLimits.batchBytes = 8 * mebibyte;
        m_limits.deliveredBytes = 100000;
    }

    void trackMebibytes(std::size_t count)
    {
        for (std::size_t i = 0; i < 10 * count; ++i) {
            track(std::string(100000, 'x'));
        }
    }

    std::uintmax_t fileSize() const
    {
        return std::filesystem::file_size(databasePath(m_path));
    }

    std::uintmax_t journalSize() const
    {
        return std::filesystem::file_size(databasePath(m_path) + "-wal");
    }

    // How many steps it took.
    int shrinkWholly()
    {
        int steps = 1;
        while (shrinkByOneStep(*m_database, m_limits)) {
            ++steps;
        }
        m_database->execute("PRAGMA wal_checkpoint");
        return steps;
    }
};

TEST_F(Shrinking, FileBecomesSmallAgainAfterALargeBacklogWasDelivered)
{
    trackMebibytes(20);
    deliver();
    m_database->execute("PRAGMA wal_checkpoint");
    EXPECT_GT(fileSize(), 15 * mebibyte);
    shrinkWholly();
    EXPECT_LT(fileSize(), 2 * mebibyte);
    EXPECT_EQ(queryValue(m_path, "PRAGMA integrity_check"), "ok");
    EXPECT_EQ(deliveredTexts().size(), 1U);
}

TEST_F(Shrinking, OneStepMovesNoMoreThanAMebibyteSoThatNobodyWaitsForLong)
{
    trackMebibytes(20);
    deliver();
    const std::int64_t before = m_database->integer("PRAGMA page_count");
    EXPECT_TRUE(shrinkByOneStep(*m_database, m_limits));
    EXPECT_EQ(m_database->integer("PRAGMA page_count"), before - 256);
    EXPECT_GT(shrinkWholly(), 10);
}

TEST_F(Shrinking, KeepsAReserveForTheNextEvents)
{
    trackMebibytes(20);
    deliver();
    shrinkWholly();
    EXPECT_EQ(m_database->integer("PRAGMA freelist_count"), 256);
    EXPECT_FALSE(shrinkByOneStep(*m_database, m_limits));
}

TEST_F(Shrinking, DatabaseOfAnEarlierVersionIsRebuiltOnceLittleIsLeftInIt)
{
    sender();
    m_database->execute("PRAGMA auto_vacuum = NONE; VACUUM");
    ASSERT_EQ(m_database->integer("PRAGMA auto_vacuum"), 0);
    m_limits.quickRebuildPages = 500;
    trackMebibytes(5);
    change(m_path, "DELETE FROM event WHERE seq <= 20");
    EXPECT_FALSE(shrinkByOneStep(*m_database, m_limits));
    EXPECT_EQ(m_database->integer("PRAGMA auto_vacuum"), 0);
    deliver();
    EXPECT_FALSE(shrinkByOneStep(*m_database, m_limits));
    m_database->execute("PRAGMA wal_checkpoint");
    EXPECT_EQ(m_database->integer("PRAGMA auto_vacuum"), 2);
    EXPECT_LT(fileSize(), mebibyte);
}

TEST_F(Shrinking, JournalOfAnIdleSessionIsCutOff)
{
    trackMebibytes(6);
    sender();
    EXPECT_GT(journalSize(), 5 * mebibyte);
    shrinkJournal(*m_database, m_limits);
    EXPECT_EQ(journalSize(), 0U);
    EXPECT_EQ(pendingTexts().size(), 60U);
}

TEST_F(Shrinking, JournalThatSomebodyReadsIsLeftAloneWithoutWaiting)
{
    trackMebibytes(6);
    sender();
    Database reader(databasePath(m_path), Database::Access::ReadOnly,
                    std::make_shared<BusyLimit>(std::chrono::seconds(5)));
    reader.execute("BEGIN; SELECT count(*) FROM event");
    track("more");
    const auto start = std::chrono::steady_clock::now();
    shrinkJournal(*m_database, m_limits);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(2));
    EXPECT_GT(journalSize(), 5 * mebibyte);
}

TEST_F(Shrinking, WorkerGivesTheSpaceBackAtTheLatestWhenItsSessionEnds)
{
    trackMebibytes(20);
    m_store.reset();
    WorkerOptions options;
    options.paths = StorePaths(m_path);
    options.clock = &m_clock;
    options.limits = m_limits;
    options.transport =
        std::make_shared<CurlTransport>(parseServerAddress(m_server.url()), m_deliveryLimits);
    {
        Worker worker(options);
        worker.stop(true, std::chrono::minutes(1));
    }
    EXPECT_LT(fileSize(), 2 * mebibyte);
    EXPECT_FALSE(std::filesystem::exists(databasePath(m_path) + "-wal"));
}

} // namespace
