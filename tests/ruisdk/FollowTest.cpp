// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// rui-events --follow.
#include "Child.h"
#include "Session.h"
#include "StoredRecords.h"
#include "TemporaryDirectory.h"

#include <gtest/gtest.h>

#include <csignal>
#include <filesystem>

namespace {

using namespace rui::test;

class Follow : public testing::Test
{
protected:
    std::vector<std::string> command() const
    {
        return {RUI_EVENTS_PROGRAM, "--raw", "--follow", m_path};
    }

    static std::string nextLine(Child &tool)
    {
        std::string line;
        return tool.readLine(line) ? line : "(end)";
    }

    TemporaryDirectory m_directory;
    const std::string m_path = m_directory.path();
};

TEST_F(Follow, ShowsWhatIsThereAndThenWhatIsAdded)
{
    Session session;
    session.open(m_path);
    session.track("first", "N", "C");
    Child tool(command());
    EXPECT_EQ(nextLine(tool), "C\tN\tfirst");
    session.track("second", "N", "C");
    EXPECT_EQ(nextLine(tool), "C\tN\tsecond");
    session.track("third", "N", "C");
    EXPECT_EQ(nextLine(tool), "C\tN\tthird");
}

TEST_F(Follow, WaitsForADirectoryThatDoesNotExistYet)
{
    Child tool({RUI_EVENTS_PROGRAM, "--raw", "--follow", m_directory.path("later")});
    Session session;
    session.open(m_directory.path("later"));
    session.track("text", "N", "C");
    EXPECT_EQ(nextLine(tool), "C\tN\ttext");
}

TEST_F(Follow, GoesOnAcrossSessions)
{
    Child tool(command());
    for (const char *text : {"one", "two", "three"}) {
        Session session;
        session.open(m_path);
        session.track(text, "N", "C");
        session.destroy();
        EXPECT_EQ(nextLine(tool), std::string("C\tN\t") + text);
    }
}

TEST_F(Follow, GoesOnWithADatabaseThatReplacesTheOldOne)
{
    Session session;
    session.open(m_path);
    session.track("old", "N", "C");
    Child tool(command());
    EXPECT_EQ(nextLine(tool), "C\tN\told");
    moveDatabase(m_path, m_directory.path("moved"));
    Session next;
    next.open(m_path);
    next.track("new", "N", "C");
    EXPECT_EQ(nextLine(tool), "C\tN\tnew");
}

// As with "rui-events DIRECTORY | less": nobody reads on.
TEST_F(Follow, ThatNobodyReadsDoesNotLetTheJournalGrow)
{
    const std::string text(500000, 'x');
    Session session;
    session.open(m_path);
    for (int i = 0; i < 4; ++i) {
        session.track(text, "N", "C");
    }
    Child tool(command());
    nextLine(tool);
    for (int i = 0; i < 600; ++i) {
        session.track(text, "N", "C");
    }
    // 300 MB were written; a caller moves the journal from 64 MB on, as soon as no page is read.
    const auto journal = std::filesystem::file_size(databasePath(m_path) + "-wal");
    EXPECT_LT(journal, 160U * 1000 * 1000);
}

TEST_F(Follow, EndsWellWhenItIsInterrupted)
{
    Session session;
    session.open(m_path);
    session.track("first", "N", "C");
    for (const int signal : {SIGINT, SIGTERM}) {
        Child tool(command());
        EXPECT_EQ(nextLine(tool), "C\tN\tfirst");
        tool.sendSignal(signal);
        EXPECT_EQ(tool.wait(), 0);
    }
}

} // namespace
