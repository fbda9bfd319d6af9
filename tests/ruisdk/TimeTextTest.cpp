// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "core/TimeText.h"

#include <gtest/gtest.h>

namespace {

TEST(TimeText, IsUtcWithMilliseconds)
{
    EXPECT_EQ(rui::timeText(1795199937042999999), "2026-11-20T18:38:57.042Z");
}

TEST(TimeText, TimeBefore1970IsRoundedDown)
{
    EXPECT_EQ(rui::timeText(-1), "1969-12-31T23:59:59.999Z");
}

TEST(ParseTime, DateIsItsMidnight)
{
    EXPECT_EQ(rui::parseTime("2026-11-20"), 1795132800000000000);
}

TEST(ParseTime, TimeMayEndWithZ)
{
    EXPECT_EQ(rui::parseTime("2026-11-20T18:38:57"), 1795199937000000000);
    EXPECT_EQ(rui::parseTime("2026-11-20T18:38:57Z"), 1795199937000000000);
}

TEST(ParseTime, FractionIsKeptToTheNanosecond)
{
    EXPECT_EQ(rui::parseTime("2026-11-20T18:38:57.042Z"), 1795199937042000000);
    EXPECT_EQ(rui::parseTime("2026-11-20T18:38:57.1234567899"), 1795199937123456789);
}

class NoTime : public testing::TestWithParam<const char *>
{};

TEST_P(NoTime, IsRefused)
{
    EXPECT_EQ(rui::parseTime(GetParam()), std::nullopt);
}

INSTANTIATE_TEST_SUITE_P(Texts, NoTime,
                         testing::Values("", "yesterday", "2026-02-30", "2026-13-01",
                                         "2026-11-20T25:00:00", "2026-11-20T18:38:57+01:00",
                                         "2026-11-20 and more"));

} // namespace
