// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "core/HandleTable.h"

#include "core/Instance.h"

#include <gtest/gtest.h>

#include <random>
#include <set>

namespace {

using rui::HandleTable;
using rui::Instance;

ruiInstance handleOf(std::uint64_t bits)
{
    return reinterpret_cast<ruiInstance>(static_cast<std::uintptr_t>(bits));
}

std::uint64_t bitsOf(ruiInstance handle)
{
    return reinterpret_cast<std::uintptr_t>(handle);
}

TEST(HandleTable, FindsWhatWasAdded)
{
    HandleTable table;
    const auto instance = std::make_shared<Instance>();
    const ruiInstance handle = table.add(instance);
    EXPECT_NE(handle, nullptr);
    EXPECT_EQ(table.find(handle), instance);
}

TEST(HandleTable, FindsNothingForNull)
{
    HandleTable table;
    table.add(std::make_shared<Instance>());
    EXPECT_EQ(table.find(nullptr), nullptr);
}

TEST(HandleTable, FindsNothingForARemovedHandleEvenWhenItsSlotIsUsedAgain)
{
    HandleTable table;
    const ruiInstance stale = table.add(std::make_shared<Instance>());
    EXPECT_NE(table.remove(stale), nullptr);
    EXPECT_EQ(table.find(stale), nullptr);
    const ruiInstance fresh = table.add(std::make_shared<Instance>());
    EXPECT_NE(fresh, stale);
    EXPECT_EQ(table.find(stale), nullptr);
    EXPECT_EQ(table.remove(stale), nullptr);
    EXPECT_NE(table.find(fresh), nullptr);
}

TEST(HandleTable, FindsNothingForNeighboursOfAHandle)
{
    HandleTable table;
    const std::uint64_t bits = bitsOf(table.add(std::make_shared<Instance>()));
    for (int bit = 0; bit < 64; ++bit) {
        EXPECT_EQ(table.find(handleOf(bits ^ (std::uint64_t{1} << bit))), nullptr) << bit;
    }
}

TEST(HandleTable, FindsNothingForPointersAndRandomNumbers)
{
    HandleTable table;
    table.add(std::make_shared<Instance>());
    int object = 0;
    EXPECT_EQ(table.find(reinterpret_cast<ruiInstance>(&object)), nullptr);
    std::mt19937_64 random(1);
    for (int i = 0; i < 100000; ++i) {
        EXPECT_EQ(table.find(handleOf(random())), nullptr);
    }
}

TEST(HandleTable, HandlesOfTwoTablesDoNotMatch)
{
    HandleTable here;
    HandleTable there;
    here.add(std::make_shared<Instance>());
    EXPECT_EQ(here.find(there.add(std::make_shared<Instance>())), nullptr);
}

TEST(HandleTable, HoldsSixtyFiveThousandInstancesAndThenGivesNull)
{
    HandleTable table;
    const auto instance = std::make_shared<Instance>();
    std::set<ruiInstance> handles;
    for (int i = 0; i < 65535; ++i) {
        handles.insert(table.add(instance));
    }
    EXPECT_EQ(handles.size(), 65535U);
    EXPECT_EQ(handles.count(nullptr), 0U);
    EXPECT_EQ(table.add(instance), nullptr);
    table.remove(*handles.begin());
    EXPECT_NE(table.add(instance), nullptr);
}

} // namespace
