// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "store/Quota.h"

#include "SetClock.h"
#include "store/Notices.h"
#include "store/Store.h"
#include "StoredRecords.h"
#include "TemporaryDirectory.h"

#include <gtest/gtest.h>

namespace {

using namespace rui;
using namespace rui::test;

constexpr std::int64_t day = 24 * 3600 * nanosecondsPerSecond;

class Quota : public testing::Test
{
protected:
    void SetUp() override
    {
        m_limits.maxEvents = 3;
        m_limits.maxBytes = 100;
    }

    Store &store()
    {
        if (!m_store) {
            m_store.emplace(StorePaths(m_directory.path()), OpeningOptions{}, m_limits, m_clock,
                            std::make_shared<BusyLimit>(std::chrono::seconds(5)));
            m_store->join({"1", "app", "", "", "", ""});
        }
        return *m_store;
    }

    void add(const std::string &text)
    {
        store().add({"", "", "", text});
    }

    void drop()
    {
        Database database(databasePath(m_directory.path()), Database::Access::ReadWrite,
                          std::make_shared<BusyLimit>(std::chrono::milliseconds(1000)));
        dropExpired(database, m_limits, m_clock);
    }

    std::vector<std::string> texts()
    {
        return storedTexts(m_directory.path());
    }

    std::vector<Row> losses()
    {
        return query(m_directory.path(), "SELECT reason, lost FROM loss ORDER BY reason");
    }

    TemporaryDirectory m_directory;
    Limits m_limits;
    SetClock m_clock;
    std::optional<Store> m_store;
};

using Texts = std::vector<std::string>;
using Rows = std::vector<Row>;

TEST_F(Quota, AllowedNumberIsKept)
{
    add("1");
    add("2");
    add("3");
    EXPECT_EQ(texts(), (Texts{"1", "2", "3"}));
    EXPECT_EQ(losses(), Rows{});
}

TEST_F(Quota, OldestGoesFirstAndIsCounted)
{
    for (const char *text : {"1", "2", "3", "4", "5"}) {
        add(text);
    }
    EXPECT_EQ(texts(), (Texts{"3", "4", "5"}));
    EXPECT_EQ(losses(), (Rows{{"maxEvents", "2"}}));
}

TEST_F(Quota, BytesCountTheTextsOfAnEvent)
{
    add(std::string(60, 'a'));
    add(std::string(40, 'b'));
    EXPECT_EQ(losses(), Rows{});
    add("c");
    EXPECT_EQ(texts(), (Texts{std::string(40, 'b'), "c"}));
    EXPECT_EQ(losses(), (Rows{{"maxBytes", "1"}}));
}

TEST_F(Quota, OneLargeEventMayPushOutSeveral)
{
    add("1");
    add("2");
    add(std::string(99, 'x'));
    EXPECT_EQ(texts(), (Texts{"2", std::string(99, 'x')}));
    add(std::string(100, 'y'));
    EXPECT_EQ(texts(), (Texts{std::string(100, 'y')}));
    EXPECT_EQ(losses(), (Rows{{"maxBytes", "3"}}));
}

TEST_F(Quota, NumbersGoOnWhenEverythingWasPushedOut)
{
    m_limits.maxEvents = 0;
    add("1");
    add("2");
    EXPECT_EQ(texts(), Texts{});
    m_store.reset();
    m_limits.maxEvents = 3;
    add("3");
    EXPECT_EQ(queryValue(m_directory.path(), "SELECT seq FROM event"), "3");
}

TEST_F(Quota, EventIsTooOldAfterThirtyDays)
{
    m_clock.time = 1000 * day;
    add("old");
    m_clock.time += 1;
    add("young");
    m_clock.time = 1030 * day;
    drop();
    EXPECT_EQ(texts(), (Texts{"old", "young"}));
    m_clock.time += 1;
    drop();
    EXPECT_EQ(texts(), (Texts{"young"}));
    EXPECT_EQ(losses(), (Rows{{"maxAge", "1"}}));
}

TEST_F(Quota, ClockThatJumpsForwardDropsNothingThatIsYoungerByTheTimeSinceTheStart)
{
    m_clock.time = 1000 * day;
    add("1");
    m_clock.time += 29 * day;
    drop();
    add("2");
    m_clock.jump(365 * day);
    drop();
    EXPECT_EQ(texts(), (Texts{"1", "2"}));
    m_clock.time += 2 * day;
    add("3");
    drop();
    EXPECT_EQ(texts(), (Texts{"2", "3"}));
    EXPECT_EQ(losses(), (Rows{{"maxAge", "1"}}));
}

TEST_F(Quota, ClockThatJumpsForwardAtTheStartOfALaterSessionDropsNothingThatIsYounger)
{
    m_clock.time = 1000 * day;
    add("1");
    m_store.reset();
    m_clock.jump(365 * day);
    drop();
    add("2");
    drop();
    EXPECT_EQ(texts(), (Texts{"1", "2"}));
    EXPECT_EQ(losses(), Rows{});
}

TEST_F(Quota, ClockThatJumpsBackKeepsNothingForLonger)
{
    m_clock.time = 1000 * day;
    add("1");
    m_clock.time += day / 24;
    drop();
    m_clock.jump(-365 * day);
    drop();
    m_clock.time += 29 * day;
    add("2");
    drop();
    EXPECT_EQ(texts(), (Texts{"1", "2"}));
    m_clock.time += 2 * day;
    drop();
    EXPECT_EQ(texts(), (Texts{"2"}));
    EXPECT_EQ(losses(), (Rows{{"maxAge", "1"}}));
}

TEST_F(Quota, EventOfAClockThatWasAheadGoesAfterThirtyDaysOfUseInSpiteOfRestarts)
{
    m_clock.time = 5000 * day;
    add("1");
    for (int days = 0; days < 30; ++days) {
        EXPECT_EQ(texts(), (Texts{"1"})) << days;
        m_store.reset();
        m_clock.restart();
        m_clock.jump(1000 * day - m_clock.time);
        drop();
        m_clock.time += day + 1;
        drop();
    }
    EXPECT_EQ(texts(), Texts{});
}

TEST_F(Quota, AgeOfWhatIsFromBeforeARestartIsByTheClock)
{
    m_clock.time = 1000 * day;
    add("1");
    m_store.reset();
    m_clock.restart();
    m_clock.time += 20 * day;
    add("2");
    m_store.reset();
    m_clock.restart();
    m_clock.jump(15 * day);
    drop();
    EXPECT_EQ(texts(), (Texts{"2"}));
}

TEST_F(Quota, ClockIsMarkedOnceAnHourAndForThirtyDays)
{
    m_clock.time = 1000 * day;
    add("1");
    for (int minutes = 0; minutes < 120; ++minutes) {
        m_clock.time += day / 1440;
        drop();
    }
    EXPECT_EQ(queryValue(m_directory.path(), "SELECT count(*) FROM clock_mark"), "3");
    for (int days = 0; days < 100; ++days) {
        m_clock.time += day;
        drop();
    }
    EXPECT_EQ(queryValue(m_directory.path(), "SELECT count(*) FROM clock_mark"), "32");
}

TEST_F(Quota, GapsThatExpiryLeavesAreNotCountedAsEvents)
{
    m_clock.time = 100 * day;
    add("new");
    m_clock.jump(-99 * day);
    add("old by a clock that was set back");
    m_clock.restart();
    m_clock.jump(99 * day);
    m_store.reset();
    add("newer");
    drop();
    add("newest");
    EXPECT_EQ(texts(), (Texts{"new", "newer", "newest"}));
    EXPECT_EQ(losses(), (Rows{{"maxAge", "1"}}));
    add("last");
    EXPECT_EQ(texts(), (Texts{"newer", "newest", "last"}));
}

// Steps of SQLite's machine for pushing out one event of many, with the number of a record of the
// library's own between them or without.
std::int64_t stepsToPushOutOne(bool withGap)
{
    constexpr int half = 1000;
    const TemporaryDirectory directory;
    const SetClock clock;
    const auto busyLimit = std::make_shared<BusyLimit>(std::chrono::seconds(5));
    Store store(StorePaths(directory.path()), OpeningOptions{}, {}, clock, busyLimit);
    store.join({"1", "app", "", "", "", ""});
    Database database(databasePath(directory.path()), Database::Access::ReadWrite, busyLimit);
    for (int i = 0; i < 2 * half; ++i) {
        if (i == half && withGap) {
            addNotice(database, {nextSequence(database), NoticeKind::Loss, 0, 1, "{}"});
        }
        store.add({"", "", "", "text"});
    }
    std::int64_t steps = 0;
    const auto count = [](void *sum) { return ++*static_cast<std::int64_t *>(sum) < 0 ? 1 : 0; };
    sqlite3_progress_handler(database.handle(), 1, count, &steps);
    Limits limits;
    limits.maxEvents = 2 * half - 1;
    enforceQuota(database, limits);
    EXPECT_EQ(database.integer("SELECT count(*) FROM event"), limits.maxEvents);
    return steps;
}

TEST(QuotaCost, OfAnEventThatIsPushedOutIsTheSameWithGapsInTheNumbersAsWithout)
{
    const std::int64_t without = stepsToPushOutOne(false);
    const std::int64_t with = stepsToPushOutOne(true);
    EXPECT_LE(with, without * 11 / 10);
    EXPECT_LE(without, 1000);
}

TEST_F(Quota, NumbersGoOnWhenEverythingWasTooOld)
{
    add("1");
    add("2");
    m_clock.time = 1000 * day;
    drop();
    EXPECT_EQ(texts(), Texts{});
    m_store.reset();
    add("3");
    EXPECT_EQ(queryValue(m_directory.path(), "SELECT seq FROM event"), "3");
}

TEST_F(Quota, LossesAreCountedOnlyWithTheDeletion)
{
    add("1");
    m_clock.time = 1000 * day;
    change(m_directory.path(), "CREATE TRIGGER refuse BEFORE DELETE ON event"
                               " BEGIN SELECT RAISE(ABORT, 'refused'); END");
    EXPECT_THROW(drop(), Failure);
    EXPECT_EQ(losses(), Rows{});
    EXPECT_EQ(texts(), Texts{"1"});
}

TEST_F(Quota, EventsAfterAnOptOutAreNoLosses)
{
    add("1");
    // In the moment between the look at the consent and the storing.
    change(m_directory.path(), "UPDATE state SET epoch = epoch + 1");
    EXPECT_THROW(add("2"), Failure);
    EXPECT_THROW(add("3"), Failure);
    store().join({"1", "app", "", "", "", ""});
    add("4");
    EXPECT_EQ(losses(), Rows{});
}

TEST_F(Quota, OptOutRecordsAreNeverPushedOutAndNotCounted)
{
    add("1");
    store().withdraw({"1", "app", "", "", "", ""});
    store().join({"1", "app", "", "", "", ""});
    for (const char *text : {"2", "3", "4", "5"}) {
        add(text);
    }
    m_clock.time = 1000 * day;
    drop();
    EXPECT_EQ(query(m_directory.path(), "SELECT name FROM record"), (Rows{{"OptOut"}}));
}

TEST_F(Quota, WhatIsWaitingIsKnownExactlyAfterEveryKindOfDeletion)
{
    m_limits.maxEvents = 8;
    add("first");
    Database database(databasePath(m_directory.path()), Database::Access::ReadWrite,
                      std::make_shared<BusyLimit>(std::chrono::milliseconds(1000)));
    const std::vector<const char *> deletions = {
        "DELETE FROM event WHERE seq = (SELECT min(seq) FROM event)",
        "DELETE FROM event WHERE seq = (SELECT max(seq) FROM event)",
        "DELETE FROM event WHERE seq % 3 = 0",
        "DELETE FROM event",
    };
    for (std::size_t i = 0; i < 40; ++i) {
        add(std::string(i % 7, 'x'));
        if (i % 5 == 0) {
            addNotice(database, {nextSequence(database), NoticeKind::Loss, 0, 1, "{}"});
        }
        if (i % 3 == 0) {
            database.execute("UPDATE state SET floor = max(floor, coalesce((SELECT max(seq) FROM"
                             " event), 0))");
            database.execute(deletions[i / 3 % deletions.size()]);
        }
        const Occupancy occupancy = occupancyOf(database);
        EXPECT_EQ(occupancy.events, database.integer("SELECT count(*) FROM event")) << i;
        EXPECT_EQ(occupancy.bytes, database.integer("SELECT total(size) FROM event")) << i;
    }
}

TEST_F(Quota, DefaultsAreThePublishedOnes)
{
    const Limits limits;
    EXPECT_EQ(limits.maxEvents, 10000);
    EXPECT_EQ(limits.maxBytes, 52428800);
    EXPECT_EQ(limits.maxAge, std::chrono::hours(720));
    EXPECT_EQ(limits.maxEventBytes, 1048576);
    EXPECT_EQ(limits.deliveredEvents, 1000);
}

} // namespace
