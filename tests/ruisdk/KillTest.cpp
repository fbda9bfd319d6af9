// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// What a killed process had been told is stored.
#include "Child.h"
#include "StoredRecords.h"
#include "TemporaryDirectory.h"

#include <gtest/gtest.h>

#include <csignal>
#include <random>
#include <set>
#include <sstream>

namespace {

using namespace rui::test;

constexpr int rounds = 20;
constexpr int eventsEach = 10000;
// Two writers: together they stay within the number of events that are kept. A writer is at most
// a pipe's content, 600 lines, ahead of what was read of it.
constexpr int latestMoment = 4000;

std::vector<std::string> writerCommand(const std::string &directory, const std::string &name)
{
    return {RUI_WRITER_PROGRAM, directory, name, std::to_string(eventsEach)};
}

void readLines(Child &child, int count, std::vector<std::string> &lines)
{
    std::string line;
    for (int i = 0; i < count && child.readLine(line); ++i) {
        lines.push_back(line);
    }
}

// What the writer had reported when it died.
void killAndReadRest(Child &child, std::vector<std::string> &lines)
{
    child.sendSignal(SIGKILL);
    std::istringstream rest(child.readAll());
    for (std::string line; std::getline(rest, line);) {
        lines.push_back(line);
    }
    EXPECT_EQ(child.wait(), -SIGKILL);
}

void expectStored(const std::string &directory, const std::vector<std::string> &acknowledged)
{
    const auto texts = storedTexts(directory);
    const std::set<std::string> stored(texts.begin(), texts.end());
    for (const std::string &line : acknowledged) {
        ASSERT_EQ(stored.count(line), 1U) << line;
    }
    EXPECT_EQ(queryValue(directory, "PRAGMA integrity_check"), "ok");
}

TEST(Kill, EveryCallThatReturned0IsInTheDatabase)
{
    std::mt19937 random(std::random_device{}());
    std::uniform_int_distribution<int> moment(1, latestMoment);
    std::size_t total = 0;
    for (int round = 0; round < rounds; ++round) {
        const TemporaryDirectory directory;
        std::vector<std::string> acknowledged;
        Child first(writerCommand(directory.path(), "first"));
        Child second(writerCommand(directory.path(), "second"));
        readLines(first, moment(random), acknowledged);
        killAndReadRest(first, acknowledged);
        readLines(second, moment(random), acknowledged);
        killAndReadRest(second, acknowledged);
        ASSERT_NO_FATAL_FAILURE(expectStored(directory.path(), acknowledged));
        total += acknowledged.size();
    }
    RecordProperty("acknowledged", static_cast<int>(total));
    EXPECT_GE(total, static_cast<std::size_t>(rounds) * 2);
}

} // namespace
