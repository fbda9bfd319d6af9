// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// rui-events, but for --follow.
#include "Child.h"
#include "Session.h"
#include "StoredRecords.h"
#include "TemporaryDirectory.h"

#include <gtest/gtest.h>

#include <fstream>

namespace {

using namespace rui::test;

class EventsTool : public testing::Test
{
protected:
    Outcome run(std::vector<std::string> arguments)
    {
        arguments.insert(arguments.begin(), RUI_EVENTS_PROGRAM);
        return runProgram(arguments);
    }

    // Two events whose times and ids are known.
    void storeTwo()
    {
        Session session;
        session.open(m_path);
        ruiTrackEventText(session.handle(), "Camera", "Opened", R"({"CameraNr":0})", "s1");
        ruiTrackEvent(session.handle(), "Model", "a2A*", "");
        session.destroy();
        change(m_path, "UPDATE event SET time = 1795199937042000000 + seq * 1000000000,"
                       " uid = '0000000000000000000000000' || seq,"
                       " run = '66666666-7777-4888-8999-000000000000'");
    }

    void storeText(const std::string &text)
    {
        Session session;
        session.open(m_path);
        session.track(text, "N", "C");
    }

    TemporaryDirectory m_directory;
    const std::string m_path = m_directory.path();
};

TEST_F(EventsTool, PrintsAnAlignedTable)
{
    storeTwo();
    const Outcome outcome = run({m_path});
    EXPECT_EQ(outcome.output,
              "TIME                      STATE    CATEGORY  NAME    TEXT\n"
              "2026-11-20T18:38:58.042Z  pending  Camera    Opened  {\"CameraNr\":0}\n"
              "2026-11-20T18:38:59.042Z  pending  Model     a2A*\n");
    EXPECT_EQ(outcome.status, 0);
}

TEST_F(EventsTool, TableShowsControlCharactersAsEscapesAndAlignsByCharacters)
{
    storeText("line\nnext\x7F");
    Session session;
    session.open(m_path);
    session.track("x", "\xC3\xA4\xC3\xB6", "C");
    // A session that goes on drops what is so old.
    session.destroy();
    change(m_path, "UPDATE event SET time = 0");
    EXPECT_EQ(run({m_path}).output,
              "TIME                      STATE    CATEGORY  NAME  TEXT\n"
              "1970-01-01T00:00:00.000Z  pending  C         N     line\\x0anext\\x7f\n"
              "1970-01-01T00:00:00.000Z  pending  C         \xC3\xA4\xC3\xB6    x\n");
}

TEST_F(EventsTool, PrintsJsonLinesWithEveryDetail)
{
    storeTwo();
    EXPECT_EQ(run({"--json", m_path}).output,
              "{\"seq\":1,\"state\":\"pending\",\"time\":\"2026-11-20T18:38:58.042Z\","
              "\"uid\":\"00000000000000000000000001\",\"category\":\"Camera\",\"name\":\"Opened\","
              "\"session\":\"s1\",\"run\":\"66666666-7777-4888-8999-000000000000\","
              "\"text\":\"{\\\"CameraNr\\\":0}\"}\n"
              "{\"seq\":2,\"state\":\"pending\",\"time\":\"2026-11-20T18:38:59.042Z\","
              "\"uid\":\"00000000000000000000000002\",\"category\":\"Model\",\"name\":\"a2A*\","
              "\"session\":\"\",\"run\":\"66666666-7777-4888-8999-000000000000\",\"text\":null}\n");
}

TEST_F(EventsTool, PrintsCsvWithQuotedFields)
{
    storeTwo();
    EXPECT_EQ(run({"--csv", m_path}).output,
              "seq,state,time,uid,category,name,session,text\r\n"
              "1,pending,2026-11-20T18:38:58.042Z,00000000000000000000000001,Camera,Opened,s1,"
              "\"{\"\"CameraNr\"\":0}\"\r\n"
              "2,pending,2026-11-20T18:38:59.042Z,00000000000000000000000002,Model,a2A*,,\r\n");
}

TEST_F(EventsTool, RawShowsTheVeryBytesThatWereTracked)
{
    const std::string text = "{\"not\" json\x01\t\xE2\x82\xAC\\u0041\"";
    storeText(text);
    EXPECT_EQ(run({"--raw", m_path}).output, "C\tN\t" + text + "\n");
}

TEST_F(EventsTool, ShowsEventsOfAnOpenSession)
{
    Session session;
    session.open(m_path);
    session.track("open", "N", "C");
    EXPECT_EQ(run({"--raw", m_path}).output, "C\tN\topen\n");
}

TEST_F(EventsTool, FiltersByCategoryAndName)
{
    storeTwo();
    EXPECT_EQ(run({"--raw", "--category", "Model", m_path}).output, "Model\ta2A*\t\n");
    EXPECT_EQ(run({"--raw", "--name", "Opened", m_path}).output,
              "Camera\tOpened\t{\"CameraNr\":0}\n");
    EXPECT_EQ(run({"--raw", "--category", "Model", "--name", "Opened", m_path}).output, "");
}

TEST_F(EventsTool, FiltersByTimeWithoutTheEnd)
{
    storeTwo();
    EXPECT_EQ(run({"--raw", "--since", "2026-11-20T18:38:59.042", m_path}).output,
              "Model\ta2A*\t\n");
    EXPECT_EQ(run({"--raw", "--until", "2026-11-20T18:38:59.042", m_path}).output,
              "Camera\tOpened\t{\"CameraNr\":0}\n");
}

TEST_F(EventsTool, LeavesTheDatabaseUnchanged)
{
    storeTwo();
    const std::string before = readFile(databasePath(m_path));
    run({m_path});
    EXPECT_EQ(readFile(databasePath(m_path)), before);
}

TEST_F(EventsTool, DirectoryWithoutEventsIsOneLineOfError)
{
    const Outcome outcome = run({m_path});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.output, "");
    EXPECT_EQ(outcome.errors, "rui-events: " + m_path
                                  + ": no usage events are stored here; name the directory"
                                    " that holds usage-events.sqlite\n");
}

TEST_F(EventsTool, DirectoryAfterTwoDashesMayBeginWithOne)
{
    const Outcome outcome = run({"--", "-folder"});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.errors, "rui-events: -folder: no usage events are stored here; name the"
                              " directory that holds usage-events.sqlite\n");
}

TEST_F(EventsTool, OutputThatCannotBeWrittenIsOneLineOfError)
{
    storeTwo();
    for (const char *option : {"--json", "--csv", "--raw", "--stats", "--follow", "--help"}) {
        const Outcome outcome = runProgram(
            {"/bin/sh", "-c", "exec \"$@\" >/dev/full", "sh", RUI_EVENTS_PROGRAM, option, m_path});
        EXPECT_EQ(outcome.status, 1) << option;
        EXPECT_EQ(outcome.errors,
                  "rui-events: the output cannot be written; make room where it goes\n");
    }
}

TEST_F(EventsTool, DamagedDatabaseIsOneLineOfError)
{
    storeTwo();
    std::ofstream(databasePath(m_path)) << "junk that is long enough to be no database at all";
    const Outcome outcome = run({m_path});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.errors, "rui-events: " + databasePath(m_path)
                                  + ": is damaged, or no database of usage events; the next session"
                                    " sets it aside and begins a new one\n");
}

TEST_F(EventsTool, NewerDatabaseIsOneLineOfError)
{
    storeTwo();
    change(m_path, "PRAGMA user_version = 1000");
    const Outcome outcome = run({m_path});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.errors,
              "rui-events: the database has the newer version 1000; update the program\n");
}

TEST_F(EventsTool, HelpNamesEveryOption)
{
    const Outcome outcome = run({"--help"});
    EXPECT_EQ(outcome.status, 0);
    for (const char *option :
         {"--json", "--csv", "--raw", "--follow", "--category", "--name", "--since", "--until",
          "--stats", "send --to", "export --otlp", "purge", "--help", "--version"}) {
        EXPECT_NE(outcome.output.find(option), std::string::npos) << option;
    }
}

TEST_F(EventsTool, VersionIsThatOfTheProject)
{
    EXPECT_EQ(run({"--version"}).output, "rui-events 7.1.0\n");
}

struct BadLine
{
    std::vector<std::string> arguments;
    const char *error;
};

class BadCommandLine : public testing::TestWithParam<BadLine>
{};

TEST_P(BadCommandLine, IsOneLineOfErrorAndStatus2)
{
    std::vector<std::string> arguments = GetParam().arguments;
    arguments.insert(arguments.begin(), RUI_EVENTS_PROGRAM);
    const Outcome outcome = runProgram(arguments);
    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.output, "");
    EXPECT_EQ(outcome.errors, GetParam().error);
}

INSTANTIATE_TEST_SUITE_P(
    Lines, BadCommandLine,
    testing::Values(
        BadLine{{}, "rui-events: name the configuration directory; see --help\n"},
        BadLine{{""}, "rui-events: the directory is empty; name the configuration directory\n"},
        BadLine{{"a", "b"}, "rui-events: 'b': one directory is enough\n"},
        BadLine{{"--colour", "a"}, "rui-events: unknown option '--colour'; see --help\n"},
        BadLine{{"a", "--name"}, "rui-events: --name needs a value\n"},
        BadLine{{"--name", "A", "--name", "B", "a"},
                "rui-events: --name is given twice; once is enough\n"},
        BadLine{{"--json", "--csv", "a"}, "rui-events: choose one of --json, --csv and --raw\n"},
        BadLine{{"--json", "--raw", "a"}, "rui-events: choose one of --json, --csv and --raw\n"},
        BadLine{{"purge", "--category", "Camera", "a"},
                "rui-events: --category does not go with purge; see --help\n"},
        BadLine{{"purge", "--until", "2020-01-01", "a"},
                "rui-events: --until does not go with purge; see --help\n"},
        BadLine{{"send", "--name", "A", "--to", "http://127.0.0.1:1", "a"},
                "rui-events: --name does not go with send; see --help\n"},
        BadLine{{"--stats", "--category", "A", "a"},
                "rui-events: --category does not go with --stats; see --help\n"},
        BadLine{{"--stats", "--csv", "a"},
                "rui-events: --csv does not go with --stats; see --help\n"},
        BadLine{{"--stats", "--follow", "a"},
                "rui-events: --follow does not go with --stats; see --help\n"},
        BadLine{{"--since", "noon", "a"},
                "rui-events: --since 'noon': write a UTC time as"
                " 2026-11-20 or 2026-11-20T18:30:00\n"}));

} // namespace
