// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "core/Utf8.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

struct Case
{
    const char *rule;
    std::string text;
    bool valid;
};

const std::vector<Case> cases = {
    {"EmptyTextIsValid", "", true},
    {"AsciiIsValid", "The quick brown fox jumps over the lazy dog", true},
    {"TwoByteFormIsValid", "\xC2\x80\xDF\xBF", true},
    {"ThreeByteFormIsValid", "\xE0\xA0\x80\xEF\xBF\xBF", true},
    {"FourByteFormIsValid", "\xF0\x90\x80\x80\xF4\x8F\xBF\xBF", true},
    {"LastBeforeSurrogatesIsValid", "\xED\x9F\xBF", true},
    {"FirstAfterSurrogatesIsValid", "\xEE\x80\x80", true},
    {"FormsAcrossAWordBoundaryAreValid",
     "1234567\xC3\xA4"
     "1234567\xE2\x82\xAC",
     true},
    {"LoneContinuationIsRefused", "\x80", false},
    {"OverlongTwoByteFormIsRefused", "\xC0\xAF", false},
    {"OverlongC1IsRefused", "\xC1\xBF", false},
    {"OverlongThreeByteFormIsRefused", "\xE0\x9F\xBF", false},
    {"OverlongFourByteFormIsRefused", "\xF0\x8F\xBF\xBF", false},
    {"FirstSurrogateIsRefused", "\xED\xA0\x80", false},
    {"LastSurrogateIsRefused", "\xED\xBF\xBF", false},
    {"AboveTheLastCodePointIsRefused", "\xF4\x90\x80\x80", false},
    {"F5IsRefused", "\xF5\x80\x80\x80", false},
    {"FFIsRefused", "\xFF", false},
    {"CutTwoByteFormIsRefused", "abc\xC3", false},
    {"CutThreeByteFormIsRefused", "abc\xE2\x82", false},
    {"CutFourByteFormIsRefused", "abc\xF0\x9F\x98", false},
    {"MissingContinuationIsRefused", "\xE2\x82 1", false},
    {"LatinOneIsRefused",
     "Gr\xFC\xDF"
     "e aus K\xF6ln",
     false},
    {"ErrorAfterLongAsciiIsRefused", std::string(1000, 'x') + "\xFF", false},
};

class Utf8 : public testing::TestWithParam<Case>
{};

TEST_P(Utf8, IsChecked)
{
    EXPECT_EQ(rui::isUtf8(GetParam().text), GetParam().valid);
}

INSTANTIATE_TEST_SUITE_P(Rules, Utf8, testing::ValuesIn(cases),
                         [](const auto &row) { return std::string(row.param.rule); });

TEST(OneLine, HasNoControlCharacterAndNoByteThatIsNotUtf8)
{
    EXPECT_EQ(rui::oneLine("a\r\nb\x1b\x7f\xff\xe2\x82|\xe2\x82\xac"), "a??b?????|\xe2\x82\xac");
    EXPECT_EQ(rui::oneLine(""), "");
}

} // namespace
