// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "core/Ulid.h"

#include <gtest/gtest.h>

#include <set>

namespace {

TEST(Ulid, ZeroIsAllZeros)
{
    EXPECT_EQ(rui::ulidText(0, {}), "00000000000000000000000000");
}

TEST(Ulid, LargestValueIsSevenAndZs)
{
    rui::UlidEntropy ones;
    ones.fill(0xFF);
    EXPECT_EQ(rui::ulidText(0xFFFFFFFFFFFF, ones), "7ZZZZZZZZZZZZZZZZZZZZZZZZZ");
}

TEST(Ulid, TimeOfThePublishedExampleIsItsFirstTenCharacters)
{
    EXPECT_EQ(rui::ulidText(1469918176385, {}).substr(0, 10), "01ARYZ6S41");
}

TEST(Ulid, EntropyIsTakenFromTheMostSignificantBit)
{
    EXPECT_EQ(rui::ulidText(0, {0x80, 0, 0, 0, 0, 0, 0, 0, 0, 0x01}), "0000000000G000000000000001");
}

TEST(Ulid, TimeBefore1970CountsAsZero)
{
    EXPECT_EQ(rui::makeUlid(-1).substr(0, 10), "0000000000");
}

TEST(Ulid, ManyOfOneTimeDiffer)
{
    std::set<std::string> seen;
    rui::UlidSource source;
    for (int i = 0; i < 10000; ++i) {
        seen.insert(rui::makeUlid(1469918176385000000));
        seen.insert(source.make(1469918176385000000));
    }
    EXPECT_EQ(seen.size(), 20000U);
}

} // namespace
