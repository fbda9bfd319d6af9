// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// rui-events: --stats, send and purge.
#include "Child.h"
#include "Session.h"
#include "StoredRecords.h"
#include "TemporaryDirectory.h"
#include "TestServer.h"

#include <gtest/gtest.h>

namespace {

using namespace rui::test;
using Manner = Answer::Manner;

class ToolCommands : public testing::Test
{
protected:
    Outcome run(std::vector<std::string> arguments)
    {
        arguments.insert(arguments.begin(), RUI_EVENTS_PROGRAM);
        arguments.push_back(m_path);
        return runProgram(arguments);
    }

    void track(int count, const std::string &name = "Opened")
    {
        Session session;
        session.open(m_path);
        for (int i = 0; i < count; ++i) {
            session.track("secret text", name, "Camera");
        }
    }

    TemporaryDirectory m_directory;
    const std::string m_path = m_directory.path();
    TestServer m_server;
};

TEST_F(ToolCommands, StatisticsCountByStateReasonAndEvent)
{
    track(2, "Closed");
    EXPECT_EQ(run({"send", "--to", m_server.url()}).status, 0);
    track(3, "Opened");
    track(1, "Closed");
    Session session;
    session.open(m_path);
    session.track(std::string(2000000, 'x'));
    change(m_path, "UPDATE state SET client = 'f81d4fae-7dec-41d0-a765-00a0c91e6bf6'");
    EXPECT_EQ(run({"--stats"}).output, "client        f81d4fae-7dec-41d0-a765-00a0c91e6bf6\n"
                                       "server        none: nothing is sent\n"
                                       "last failure  none\n"
                                       "pending       4\n"
                                       "delivered     2\n"
                                       "exported      0\n"
                                       "lost          1\n"
                                       "  eventSize   1\n"
                                       "\n"
                                       "CATEGORY  NAME    PENDING  DELIVERED  EXPORTED\n"
                                       "Camera    Closed  1        2          0\n"
                                       "Camera    Opened  3        0          0\n");
    EXPECT_EQ(
        run({"--stats", "--json"}).output,
        R"({"client":"f81d4fae-7dec-41d0-a765-00a0c91e6bf6","server":"",)"
        R"("lastFailure":null,"pending":4,"delivered":2,"exported":0,"lost":{"eventSize":1},"events":[)"
        R"({"category":"Camera","name":"Closed","pending":1,"delivered":2,"exported":0},)"
        R"({"category":"Camera","name":"Opened","pending":3,"delivered":0,"exported":0}]})"
        "\n");
}

TEST_F(ToolCommands, StatisticsNameTheServerOfTheLastSession)
{
    track(1);
    Session session;
    session.open(m_path, "collector.example.com:4318");
    session.destroy();
    const std::string server = "https://collector.example.com:4318/v1/logs";
    EXPECT_NE(run({"--stats"}).output.find("server        " + server + "\n"), std::string::npos);
    EXPECT_NE(run({"--stats", "--json"}).output.find("\"server\":\"" + server + "\""),
              std::string::npos);
}

TEST_F(ToolCommands, StatisticsSayThatThereIsNoClientIdAfterAnOptOut)
{
    track(1);
    Session session;
    session.config(m_path);
    session.optOut();
    EXPECT_EQ(run({"--stats"}).output.rfind("client        none\n", 0), 0U);
    EXPECT_EQ(run({"--stats", "--json"}).output.rfind(R"({"client":null,)", 0), 0U);
}

TEST_F(ToolCommands, StatisticsTellTheLastFailureAndWhen)
{
    track(1);
    query(m_path, "UPDATE state SET failed_at = 1795199937042000000,"
                  " failure = 'the server answered 503' || char(27)");
    EXPECT_NE(
        run({"--stats"})
            .output.find("last failure  2026-11-20T18:38:57.042Z the server answered 503\\x1b\n"),
        std::string::npos)
        << run({"--stats"}).output;
    EXPECT_NE(run({"--stats", "--json"})
                  .output.find(R"("lastFailure":{"time":"2026-11-20T18:38:57.042Z",)"
                               R"("reason":"the server answered 503\u001b"})"),
              std::string::npos)
        << run({"--stats", "--json"}).output;
}

TEST_F(ToolCommands, SendDeliversEverythingWithProgress)
{
    track(150);
    const Outcome outcome = run({"send", "--to", m_server.url()});
    EXPECT_EQ(outcome.output, "sent 100, 50 left\nsent 150, 0 left\nnothing is left\n");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(m_server.requests().size(), 2U);
    EXPECT_EQ(queryValue(m_path, "SELECT count(*) FROM delivered"), "150");
}

TEST_F(ToolCommands, SendDoesNotWaitForTheScheduledTime)
{
    track(1);
    change(m_path, "UPDATE state SET not_before = 1e9 * (86000 + strftime('%s', 'now'))");
    EXPECT_EQ(run({"send", "--to", m_server.url()}).status, 0);
    EXPECT_EQ(m_server.requests().size(), 1U);
}

TEST_F(ToolCommands, SendThatFailsSaysWhyAndWhatIsLeft)
{
    track(2);
    m_server.add({503, {}, {}, Manner::Reply});
    const Outcome outcome = run({"send", "--to", m_server.url()});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.errors,
              "rui-events: " + m_server.url() + ": the server answered 503; 2 records are left\n");
}

// An address that is tried by hand may be wrong.
TEST_F(ToolCommands, SendKeepsWhatTheServerRefuses)
{
    for (const int status : {400, 401, 404, 500}) {
        track(1);
        m_server.add({status, {}, {}, Manner::Reply});
        const Outcome outcome = run({"send", "--to", m_server.url()});
        EXPECT_EQ(outcome.status, 1);
        EXPECT_NE(outcome.errors.find(": the server answered " + std::to_string(status) + "; "),
                  std::string::npos);
    }
    EXPECT_EQ(queryValue(m_path, "SELECT count(*) FROM event"), "4");
    EXPECT_EQ(queryValue(m_path, "SELECT count(*) FROM loss"), "0");
    EXPECT_EQ(run({"send", "--to", m_server.url()}).status, 0);
    EXPECT_EQ(queryValue(m_path, "SELECT count(*) FROM delivered"), "4");
}

TEST_F(ToolCommands, SendToAnAddressThatAsksForAPauseDoesNotHoldUpTheSessions)
{
    track(1);
    m_server.add({503, "Retry-After: 3600\r\n", {}, Manner::Reply});
    EXPECT_EQ(run({"send", "--to", m_server.url()}).status, 1);
    EXPECT_EQ(query(m_path, "SELECT not_before, failures FROM state"),
              (std::vector<Row>{{"0", "0"}}));
}

TEST_F(ToolCommands, SendKeepsTheOneEventThatIsTooLargeForTheServerAndSendsTheOthers)
{
    track(3);
    for (int i = 0; i < 2; ++i) {
        m_server.add({413, {}, {}, Manner::Reply});
    }
    const Outcome outcome = run({"send", "--to", m_server.url()});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.output, "sent 0, 3 left (the server answered 413)\n"
                              "sent 0, 3 left (the server answered 413)\n"
                              "sent 1, 2 left\nsent 2, 1 left\n");
    EXPECT_EQ(outcome.errors,
              "rui-events: " + m_server.url() + ": the server answered 413; 1 records are left\n");
}

TEST_F(ToolCommands, SendSaysWhatTheServerRejected)
{
    track(2);
    m_server.add({200, {}, R"({"partialSuccess":{"rejectedLogRecords":"1"}})", Manner::Reply});
    EXPECT_EQ(run({"send", "--to", m_server.url()}).output,
              "sent 2, 0 left (the server rejected 1)\nnothing is left\n");
}

TEST_F(ToolCommands, SendRefusesPlainHttpToAnotherMachine)
{
    track(1);
    const Outcome outcome = run({"send", "--to", "http://collector.example.com"});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.errors, "rui-events: http://collector.example.com: use https; http is for"
                              " the loopback alone\n");
}

TEST_F(ToolCommands, SendNeedsAServer)
{
    const Outcome outcome = run({"send"});
    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.errors, "rui-events: 'send' and '--to' with the address of the server belong"
                              " together\n");
}

TEST_F(ToolCommands, PurgeDeletesEventsAndTheirBytes)
{
    track(2);
    run({"send", "--to", m_server.url()});
    track(3);
    EXPECT_EQ(run({"purge"}).output, "deleted 3 pending and 2 delivered events\n");
    EXPECT_EQ(queryValue(m_path, "SELECT count(*) FROM record"), "0");
    EXPECT_EQ(readFile(databasePath(m_path)).find("secret"), std::string::npos);
    EXPECT_EQ(query(m_path, "SELECT reason, lost FROM loss"), (std::vector<Row>{{"purged", "3"}}));
}

TEST_F(ToolCommands, PurgeThatFailsInItsMiddleDeletesAndCountsNothing)
{
    track(3);
    change(m_path, "CREATE TRIGGER refuse BEFORE UPDATE OF erase ON state"
                   " BEGIN SELECT RAISE(ABORT, 'refused'); END");
    EXPECT_EQ(run({"purge"}).status, 1);
    EXPECT_EQ(queryValue(m_path, "SELECT count(*) FROM event"), "3");
    EXPECT_EQ(queryValue(m_path, "SELECT count(*) FROM loss"), "0");
}

TEST_F(ToolCommands, PurgeKeepsAnOptOutAndTheNumbers)
{
    track(2);
    Session optOut;
    optOut.config(m_path);
    optOut.optOut();
    optOut.destroy();
    track(1);
    run({"purge"});
    track(1);
    EXPECT_EQ(query(m_path, "SELECT seq, name FROM record ORDER BY seq"),
              (std::vector<Row>{{"3", "OptOut"}, {"5", "Opened"}}));
}

TEST_F(ToolCommands, PurgeAndSendDoNotCreateADirectory)
{
    const std::string missing = m_directory.path("missing");
    for (const auto &arguments : std::vector<std::vector<std::string>>{
             {RUI_EVENTS_PROGRAM, "purge", missing},
             {RUI_EVENTS_PROGRAM, "send", "--to", m_server.url(), missing}}) {
        const Outcome outcome = runProgram(arguments);
        EXPECT_EQ(outcome.status, 1);
        EXPECT_EQ(outcome.errors, "rui-events: " + missing
                                      + ": no usage events are stored here; name the"
                                        " directory that holds usage-events.sqlite\n");
        EXPECT_FALSE(std::filesystem::exists(missing));
    }
}

} // namespace
