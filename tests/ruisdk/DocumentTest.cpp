// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// What docs/analytics.md says is so.
#include "Child.h"
#include "Session.h"
#include "StoredRecords.h"
#include "TemporaryDirectory.h"
#include "TestServer.h"

#include <gtest/gtest.h>

#include <sstream>

namespace {

using namespace rui::test;

std::string document()
{
    return readFile(RUI_DOCUMENT);
}

// The lines that show a command.
std::vector<std::string> commands()
{
    std::vector<std::string> found;
    std::istringstream lines(document());
    for (std::string line; std::getline(lines, line);) {
        if (line.rfind("    $ ", 0) == 0) {
            found.push_back(line.substr(6));
        }
    }
    return found;
}

std::string sample()
{
    const std::string text = document();
    const std::size_t begin = text.find("```json\n{\n  \"resourceLogs\"") + 8;
    return text.substr(begin, text.find("```", begin) - begin);
}

TEST(Document, EveryCommandWorks)
{
    const TemporaryDirectory directory;
    const TestServer server;
    Session session;
    session.open(directory.path("data"));
    session.track("text", "Opened", "Camera");
    session.destroy();
    const std::string tools = std::filesystem::path(RUI_EVENTS_PROGRAM).parent_path().string();
    ASSERT_GE(commands().size(), 8U);
    for (const std::string &command : commands()) {
        // What follows is ended from outside, as a user does.
        const bool follows = command.find("--follow") != std::string::npos;
        const std::string script =
            "cd " + directory.path() + " && " + (follows ? "timeout -s INT 0.3 " : "") + command;
        const Outcome outcome =
            runProgram({"sh", "-c", script}, {{"PATH", tools + ":/usr/bin:/bin"},
                                              {"DIRECTORY", directory.path("data")},
                                              {"COLLECTOR", server.url()}});
        EXPECT_EQ(outcome.status, follows ? 124 : 0) << command << "\n" << outcome.errors;
    }
    EXPECT_EQ(server.requests().size(), 1U);
}

// The request is what the library sends for this event, but for spaces and random identifiers.
TEST(Document, ShowsARealRequest)
{
    const TemporaryDirectory directory;
    const TestServer server;
    Session session;
    session.open(directory.path());
    session.track(R"({"CameraNr":0,"EventCategory":"Camera","EventName":"Connected"})", "Connected",
                  "Camera");
    session.destroy();
    change(directory.path(),
           "UPDATE event SET time = 1795199937000000000, uid = '01M7X3PKPZ0XS3T5BFDHPJZ4DJ',"
           " run = 'a1d7c1f2-44ab-4b8e-9a55-0c2f5b8f7e31';"
           "UPDATE resource SET client = 'f81d4fae-7dec-41d0-a765-00a0c91e6bf6'");
    runProgram({RUI_EVENTS_PROGRAM, "send", "--to", server.url(), directory.path()});
    ASSERT_EQ(server.requests().size(), 1U);
    EXPECT_EQ(server.requests()[0].body,
              queryValue(directory.path(), "SELECT json('" + sample() + "')"));
}

TEST(Document, NamesEveryResult)
{
    for (int32_t result = 0; result <= 20; ++result) {
        if (ruiResultText(result) == std::string("unknown result")) {
            continue;
        }
        const std::string row =
            "| " + std::to_string(result) + " | " + ruiResultText(result) + " |";
        EXPECT_NE(document().find(row), std::string::npos) << row;
    }
}

} // namespace
