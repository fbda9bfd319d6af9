// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// Deliveries that the database cannot be told of, because the disk is full or it is locked.
#include "delivery/Worker.h"
#include "DeliveryFixture.h"
#include "store/SqliteError.h"

#include <condition_variable>

namespace {

using namespace rui;
using namespace rui::test;
using Manner = Answer::Manner;
using Texts = std::vector<std::string>;

// The clock's seconds between two looks of a session's worker.
constexpr std::int64_t lookEvery = 5 * nanosecondsPerSecond;

class FullDisk : public DeliveryFixture
{
protected:
    // From now on the sender's connection cannot enlarge the file.
    void fill()
    {
        sender();
        m_database->execute("PRAGMA max_page_count = 1");
    }

    void makeRoom()
    {
        m_database->execute("PRAGMA max_page_count = 1000000");
    }

    // What a worker does in so many seconds: it looks, and opens everything again after an error.
    // Returns how often there was one.
    int look(int seconds)
    {
        int failures = 0;
        for (const std::int64_t end = m_clock.time + seconds * nanosecondsPerSecond;
             m_clock.time < end; m_clock.time += lookEvery) {
            try {
                deliver();
            } catch (const SqliteError &error) {
                EXPECT_EQ(error.result(), RUI_FULL);
                ++failures;
            }
        }
        return failures;
    }
};

TEST_F(FullDisk, WhatWasDeliveredIsNotSentAgainAndIsNotedOnceThereIsRoom)
{
    track(std::string(100000, 'x'));
    fill();
    EXPECT_GT(look(60), 2);
    EXPECT_EQ(m_server.requests().size(), 1U);
    EXPECT_EQ(pendingTexts().size(), 1U);
    makeRoom();
    EXPECT_EQ(look(600), 0);
    EXPECT_EQ(m_server.requests().size(), 1U);
    EXPECT_EQ(deliveredTexts().size(), 1U);
    EXPECT_EQ(queryValue(m_path, "SELECT delivered FROM state"), "1");
}

TEST_F(FullDisk, IsTriedAsRarelyAsAServerThatFails)
{
    track(std::string(100000, 'x'));
    fill();
    look(60);
    // 5, then every five minutes at the latest.
    EXPECT_LE(look(3600), 30);
}

TEST_F(FullDisk, SenderOfTheSameSessionRemembersWhatAnEarlierOneDelivered)
{
    track(std::string(100000, 'x'));
    fill();
    look(20);
    m_sender.reset();
    makeRoom();
    look(600);
    EXPECT_EQ(m_server.requests().size(), 1U);
    EXPECT_EQ(deliveredTexts().size(), 1U);
}

TEST_F(FullDisk, OtherEventsFollowOnceThereIsRoom)
{
    m_deliveryLimits.batchRecords = 1;
    track(std::string(100000, 'x'));
    track("second");
    fill();
    look(60);
    makeRoom();
    look(600);
    EXPECT_EQ(m_server.requests().size(), 2U);
    EXPECT_EQ(deliveredTexts().back(), "second");
}

// In a database that replaces a damaged one, another event may have the number of the one that
// was delivered.
TEST_F(FullDisk, WhatWasDeliveredIsNotTakenForAnotherEventOfItsNumber)
{
    track(std::string(100000, 'x'));
    fill();
    look(20);
    makeRoom();
    change(m_path, "UPDATE event SET uid = '01M7X3PKPZ0XS3T5BFDHPJZ4DJ', text = 'another'");
    look(600);
    EXPECT_EQ(m_server.requests().size(), 2U);
    EXPECT_EQ(deliveredTexts(), Texts{"another"});
    EXPECT_EQ(queryValue(m_path, "SELECT delivered FROM state"), "1");
}

// A clock that stands still and counts how often it is asked.
class CountedClock : public Clock
{
public:
    std::int64_t now() const override
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        ++m_asked;
        m_changed.notify_all();
        return startTime + m_asked * nanosecondsPerSecond;
    }

    std::int64_t sinceBoot() const override
    {
        return 0;
    }

    std::string boot() const override
    {
        return "1";
    }

    bool waitUntilAsked(int times)
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        const int end = m_asked + times;
        return m_changed.wait_for(lock, std::chrono::minutes(1), [&] { return m_asked >= end; });
    }

private:
    mutable std::mutex m_mutex;
    mutable std::condition_variable m_changed;
    mutable int m_asked = 0;
};

TEST_F(DeliveryFixture, WorkerDoesNotSendAgainWhatALockedDatabaseCannotNote)
{
    track("once");
    m_store.reset();
    CountedClock clock;
    WorkerOptions options;
    options.paths = StorePaths(m_path);
    options.clock = &clock;
    options.limits.callBusyLimit = std::chrono::milliseconds(5);
    options.lookEvery = std::chrono::milliseconds(1);
    options.collectTime = std::chrono::milliseconds(1);
    options.transport =
        std::make_shared<CurlTransport>(parseServerAddress(m_server.url()), m_deliveryLimits);
    Database other(databasePath(m_path), Database::Access::ReadWrite,
                   std::make_shared<BusyLimit>(std::chrono::seconds(5)));
    {
        const Transaction lock(other);
        const Worker worker(options);
        ASSERT_TRUE(m_server.waitForRequests(1));
        ASSERT_TRUE(clock.waitUntilAsked(100));
    }
    EXPECT_EQ(m_server.requests().size(), 1U);
}

} // namespace
