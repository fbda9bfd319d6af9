// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// What rui-events makes of texts that a terminal or a spreadsheet would obey.
#include "Child.h"
#include "Session.h"
#include "StoredRecords.h"
#include "TemporaryDirectory.h"

#include <gtest/gtest.h>

namespace {

using namespace rui::test;

class ToolTexts : public testing::Test
{
protected:
    void storeText(const std::string &text)
    {
        Session session;
        session.open(m_path);
        session.track(text, "N", "C");
    }

    std::string print(std::vector<std::string> options) const
    {
        options.insert(options.begin(), RUI_EVENTS_PROGRAM);
        options.push_back(m_path);
        return runProgram(options).output;
    }

    TemporaryDirectory m_directory;
    const std::string m_path = m_directory.path();
};

struct Shown
{
    const char *rule;
    std::string text;
    std::string shown;
};

class TableText : public ToolTexts, public testing::WithParamInterface<Shown>
{};

TEST_P(TableText, ShowsWhatATerminalWouldObeyAsAnEscape)
{
    storeText(GetParam().text);
    const std::string output = print({});
    const std::string row = output.substr(output.find('\n') + 1);
    EXPECT_EQ(row.substr(row.find("N     ") + 6), GetParam().shown + "\n");
}

INSTANTIATE_TEST_SUITE_P(
    Characters, TableText,
    testing::Values(
        Shown{"Escape", "a\x1b[2Jb", R"(a\x1b[2Jb)"},
        Shown{"ControlsOfEightBits",
              "a\xC2\x9B"
              "2J\xC2\x80\xC2\x9F",
              R"(a\u009b2J\u0080\u009f)"},
        Shown{"MarksOfDirection", "\xE2\x80\x8E\xE2\x80\x8F\xD8\x9Cx", R"(\u200e\u200f\u061cx)"},
        Shown{"EmbeddingsAndOverrides", "\xE2\x80\xAAx\xE2\x80\xAE", R"(\u202ax\u202e)"},
        Shown{"Isolates", "\xE2\x81\xA6x\xE2\x81\xA9", R"(\u2066x\u2069)"},
        Shown{"SeparatorsOfLinesAndParagraphs", "\xE2\x80\xA8x\xE2\x80\xA9", R"(\u2028x\u2029)"},
        Shown{"CharactersWithoutAWidth",
              "a\xE2\x80\x8B"
              "b\xEF\xBB\xBF",
              R"(a\u200bb\ufeff)"},
        Shown{"LettersOfEveryScript", "\xC3\xA4\xE2\x82\xAC\xD7\xA9\xF0\x9F\x99\x82",
              "\xC3\xA4\xE2\x82\xAC\xD7\xA9\xF0\x9F\x99\x82"}),
    [](const auto &row) { return std::string(row.param.rule); });

TEST_F(ToolTexts, TableShowsBytesThatAreNoTextAsEscapes)
{
    storeText("x");
    change(m_path, "UPDATE event SET text = CAST(x'61ff62e280' AS TEXT)");
    EXPECT_NE(print({}).find("a\\xffb\\xe2\\x80\n"), std::string::npos);
}

struct Cell
{
    const char *rule;
    std::string text;
    std::string cell;
};

class CsvCell : public ToolTexts, public testing::WithParamInterface<Cell>
{};

TEST_P(CsvCell, IsNoFormulaForASpreadsheet)
{
    storeText(GetParam().text);
    const std::string output = print({"--csv"});
    EXPECT_EQ(output.substr(output.find(",C,N,,") + 6), GetParam().cell + "\r\n");
}

INSTANTIATE_TEST_SUITE_P(
    Beginnings, CsvCell,
    testing::Values(Cell{"EqualsSign", "=1+1", "'=1+1"},
                    Cell{"QuotedAsWell", "=HYPERLINK(\"x\",1)", "\"'=HYPERLINK(\"\"x\"\",1)\""},
                    Cell{"Plus", "+1", "'+1"}, Cell{"Minus", "-1", "'-1"},
                    Cell{"At", "@A1", "'@A1"}, Cell{"Tab", "\t=1", "'\t=1"},
                    Cell{"CarriageReturn", "\r=1", "\"'\r=1\""},
                    Cell{"LineFeed", "\n=1", "\"'\n=1\""}, Cell{"SpacesBeforeIt", "  =1", "'  =1"},
                    Cell{"FullWidthEqualsSign",
                         "\xEF\xBC\x9D"
                         "1",
                         "'\xEF\xBC\x9D"
                         "1"},
                    Cell{"FullWidthPlus",
                         "\xEF\xBC\x8B"
                         "1",
                         "'\xEF\xBC\x8B"
                         "1"},
                    Cell{"FullWidthMinus",
                         "\xEF\xBC\x8D"
                         "1",
                         "'\xEF\xBC\x8D"
                         "1"},
                    Cell{"FullWidthAt",
                         "\xEF\xBC\xA0"
                         "A",
                         "'\xEF\xBC\xA0"
                         "A"},
                    Cell{"NoFormulaIsLeftAlone", "1=1", "1=1"},
                    Cell{"RecordIsLeftAlone", "{a}", "{a}"}, Cell{"NothingIsLeftAlone", "", ""}),
    [](const auto &row) { return std::string(row.param.rule); });

TEST_F(ToolTexts, CsvGuardsEveryFieldThatAProgramFills)
{
    Session session;
    session.open(m_path);
    ruiTrackEventText(session.handle(), "=c", "=n", "=t", "=s");
    EXPECT_NE(print({"--csv"}).find(",'=c,'=n,'=s,'=t\r\n"), std::string::npos);
}

} // namespace
