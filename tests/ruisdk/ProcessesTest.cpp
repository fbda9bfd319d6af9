// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// Several processes at one directory.
#include "Child.h"
#include "Session.h"
#include "StoredRecords.h"
#include "TemporaryDirectory.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <memory>

namespace {

using namespace rui::test;

TEST(Processes, FourWritersThatStartTogetherLoseNothing)
{
    const TemporaryDirectory directory;
    std::vector<std::unique_ptr<Child>> writers;
    for (const char *name : {"a", "b", "c", "d"}) {
        writers.push_back(std::make_unique<Child>(
            std::vector<std::string>{RUI_WRITER_PROGRAM, directory.path(), name, "500"}));
    }
    for (const auto &writer : writers) {
        EXPECT_EQ(writer->readAll().find("failed"), std::string::npos);
        EXPECT_EQ(writer->wait(), 0) << writer->readErrors();
    }
    EXPECT_EQ(queryValue(directory.path(), "SELECT count(DISTINCT text) FROM event"), "2000");
    EXPECT_EQ(queryValue(directory.path(), "SELECT count(*) FROM event"), "2000");
    EXPECT_EQ(queryValue(directory.path(), "PRAGMA integrity_check"), "ok");
}

// Another process that takes itself for the last one removes the journal, and what is in it.
TEST(Processes, OpeningAgainKeepsTheLocksOfAnOpenSession)
{
    const TemporaryDirectory directory;
    Session session;
    ASSERT_EQ(session.open(directory.path()), 0);
    Session again;
    ASSERT_EQ(again.open(directory.path()), 0);
    again.destroy();
    EXPECT_EQ(session.track("before"), 0);
    EXPECT_EQ(runProgram({RUI_WRITER_PROGRAM, directory.path(), "w", "1"}).status, 0);
    EXPECT_TRUE(std::filesystem::exists(databasePath(directory.path()) + "-wal"));
    EXPECT_EQ(session.track("after"), 0);
    EXPECT_EQ(storedTexts(directory.path()), (std::vector<std::string>{"before", "w 1", "after"}));
}

TEST(Processes, OptOutReachesASessionInAnotherProcess)
{
    const TemporaryDirectory directory;
    Child writer({RUI_WRITER_PROGRAM, directory.path(), "w", "100000000"});
    std::string line;
    ASSERT_TRUE(writer.readLine(line));
    EXPECT_EQ(line, "w 1");
    Session session;
    session.config(directory.path());
    session.product();
    EXPECT_EQ(session.optOut(), 0);
    while (writer.readLine(line) && line.find("failed") == std::string::npos) {
    }
    EXPECT_NE(line.find(" failed 7"), std::string::npos) << line;
    EXPECT_EQ(storedTexts(directory.path()), std::vector<std::string>{"(null)"});
}

} // namespace
