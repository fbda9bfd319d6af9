// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "core/Failure.h"
#include "store/FileLock.h"
#include "store/Store.h"
#include "store/StoreOpening.h"
#include "StoredRecords.h"
#include "TemporaryDirectory.h"

#include <gtest/gtest.h>

#include <functional>
#include <thread>

namespace {

using namespace rui;
using namespace rui::test;
using namespace std::chrono_literals;

std::shared_ptr<BusyLimit> waiting(std::chrono::milliseconds limit)
{
    return std::make_shared<BusyLimit>(limit);
}

const Product product{"1", "app", "", "", "", ""};
const Event event{"c", "n", "", "text"};

ruiResult resultOf(const std::function<void()> &call)
{
    try {
        call();
        return RUI_OK;
    } catch (const Failure &failure) {
        return failure.result();
    }
}

class Opening : public testing::Test
{
protected:
    TemporaryDirectory m_directory;
    StorePaths m_paths{m_directory.path()};
};

TEST_F(Opening, UsesAWriteAheadLogWithoutCheckpointsInTheCaller)
{
    const Database database = openStore(m_paths, {}, std::make_shared<BusyLimit>(20ms));
    Statement mode = database.prepare("PRAGMA journal_mode");
    mode.step();
    EXPECT_EQ(mode.text(0), "wal");
    EXPECT_EQ(database.integer("PRAGMA wal_autocheckpoint"), 0);
}

TEST_F(Opening, FlushesTheJournalOnlyAtCheckpointsUnlessTheBuildSaysOtherwise)
{
#ifdef RUI_SYNC_EVERY_COMMIT
    constexpr int expected = 2;
#else
    constexpr int expected = 1;
#endif
    const Database database = openStore(m_paths, {}, std::make_shared<BusyLimit>(20ms));
    EXPECT_EQ(database.integer("PRAGMA synchronous"), expected);
}

TEST_F(Opening, MayFlushEveryCommit)
{
    const Database database =
        openStore(m_paths, {true, false, true}, std::make_shared<BusyLimit>(20ms));
    EXPECT_EQ(database.integer("PRAGMA synchronous"), 2);
}

TEST_F(Opening, IsBusyWhileAnotherProcessOpens)
{
    FileLock other(m_paths.openingLock());
    other.tryLock();
    EXPECT_EQ(resultOf([&] { Store(m_paths, {}, {}, systemClock(), waiting(20ms)); }), RUI_BUSY);
}

TEST_F(Opening, WaitingForAnotherProcessThatOpensEndsWhenTheOwnerSaysSo)
{
    FileLock other(m_paths.openingLock());
    other.tryLock();
    const auto limit = waiting(1h);
    ruiResult result = RUI_OK;
    std::thread caller(
        [&] { result = resultOf([&] { Store(m_paths, {}, {}, systemClock(), limit); }); });
    limit->giveUp = true;
    caller.join();
    EXPECT_EQ(result, RUI_BUSY);
}

TEST_F(Opening, LockExcludesInOneProcessUntilItIsReleased)
{
    FileLock first(m_paths.openingLock());
    FileLock second(m_paths.openingLock());
    EXPECT_TRUE(first.tryLock());
    EXPECT_FALSE(second.tryLock());
    first.unlock();
    EXPECT_TRUE(second.tryLock());
}

TEST_F(Opening, LockedDatabaseIsBusyForAnEventAndDeletesNothing)
{
    Store store(m_paths, {}, {}, systemClock(), waiting(20ms));
    store.join(product);
    store.add(event);
    Database other(m_paths.database(), Database::Access::ReadWrite,
                   std::make_shared<BusyLimit>(20ms));
    {
        const Transaction holding(other);
        EXPECT_EQ(resultOf([&] { store.add(event); }), RUI_BUSY);
    }
    store.add(event);
    EXPECT_EQ(storedTexts(m_directory.path()), (std::vector<std::string>{"text", "text"}));
}

TEST_F(Opening, WaitingForALockEndsWhenTheOwnerSaysSo)
{
    const auto limit = waiting(1h);
    Store store(m_paths, {}, {}, systemClock(), limit);
    store.join(product);
    Database other(m_paths.database(), Database::Access::ReadWrite,
                   std::make_shared<BusyLimit>(20ms));
    const Transaction holding(other);
    ruiResult result = RUI_OK;
    std::thread caller([&] { result = resultOf([&] { store.add(event); }); });
    limit->giveUp = true;
    caller.join();
    EXPECT_EQ(result, RUI_BUSY);
}

} // namespace
