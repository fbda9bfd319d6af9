// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// Deleted is deleted: a search through all bytes of the directory finds nothing.
#include "Child.h"
#include "Session.h"
#include "StoredRecords.h"
#include "TemporaryDirectory.h"
#include "TestServer.h"

#include <gtest/gtest.h>

#include <csignal>

namespace {

using namespace rui::test;
using Names = std::vector<std::string>;

class Erasure : public testing::Test
{
protected:
    // Delivered events, waiting ones on many pages, and a database that was set aside.
    void fill()
    {
        Session session;
        ASSERT_EQ(session.open(m_path, m_server.url()), 0);
        ASSERT_EQ(session.track("secret, delivered"), 0);
        ASSERT_EQ(session.stop(), 0);
        m_client = queryValue(m_path, "SELECT client FROM state");
        m_server.setDown(true);
        ASSERT_EQ(session.start(), 0);
        for (int i = 0; i < 200; ++i) {
            ASSERT_EQ(session.track("secret, waiting " + std::string(400, 'x')), 0);
        }
        ASSERT_EQ(session.stop(1), 0);
        m_server.setDown(false);
        change(m_path, "UPDATE state SET not_before = 0");
        writeFile(databasePath(m_path) + ".damaged-20260101T000000Z", "a secret " + m_client);
    }

    void withdraw()
    {
        EXPECT_NE(runProgram({RUI_WITHDRAWER_PROGRAM, m_path, m_server.url()})
                      .output.find("optOut 0\nstart 0\n"),
                  std::string::npos);
    }

    // The files in which a text stands.
    Names filesWith(const std::string &text)
    {
        Names names;
        for (const auto &entry : std::filesystem::directory_iterator(m_path)) {
            if (readFile(entry.path()).find(text) != std::string::npos) {
                names.push_back(entry.path().filename());
            }
        }
        return names;
    }

    TemporaryDirectory m_directory;
    const std::string m_path = m_directory.path("data");
    TestServer m_server;
    std::string m_client;
};

// Holds on to what the database was when it began to read.
class Reader
{
public:
    explicit Reader(const std::string &directory)
        : m_child({"python3", "-c",
                   "import signal, sqlite3, sys\n"
                   "database = sqlite3.connect(sys.argv[1], isolation_level=None)\n"
                   "database.execute('BEGIN')\n"
                   "database.execute('SELECT count(*) FROM event').fetchall()\n"
                   "print('reading', flush=True)\n"
                   "signal.pause()\n",
                   databasePath(directory)})
    {
        std::string line;
        EXPECT_TRUE(m_child.readLine(line));
    }

    void end()
    {
        m_child.sendSignal(SIGKILL);
        m_child.wait();
    }

private:
    Child m_child;
};

TEST_F(Erasure, OptOutLeavesNoTextAndNoClientIdInAnyFile)
{
    fill();
    ASSERT_NE(filesWith("secret"), Names{});
    withdraw();
    EXPECT_EQ(filesWith("secret"), Names{});
    EXPECT_EQ(filesWith(m_client), Names{});
}

TEST_F(Erasure, ClientIdStaysWithTheRecordOfTheOptOutUntilThatIsDelivered)
{
    fill();
    m_server.setDown(true);
    withdraw();
    EXPECT_EQ(filesWith("secret"), Names{});
    EXPECT_NE(filesWith(m_client), Names{});
    m_server.setDown(false);
    ASSERT_EQ(runProgram({RUI_EVENTS_PROGRAM, "send", "--to", m_server.url(), m_path}).status, 0);
    // What the tool has left to do, the next session does before anything else.
    EXPECT_EQ(runProgram({RUI_WRITER_PROGRAM, m_path, "next", "1"}).status, 0);
    EXPECT_EQ(filesWith(m_client), Names{});
}

TEST_F(Erasure, PurgeLeavesNoTextInAnyFile)
{
    fill();
    EXPECT_EQ(runProgram({RUI_EVENTS_PROGRAM, "purge", m_path}).output,
              "deleted 200 pending and 1 delivered events\n");
    EXPECT_EQ(filesWith("secret"), Names{});
}

TEST_F(Erasure, IsFinishedByTheNextSessionWhenAReaderHeldItUp)
{
    fill();
    Reader reader(m_path);
    withdraw();
    EXPECT_NE(filesWith("secret"), Names{});
    reader.end();
    EXPECT_EQ(runProgram({RUI_WRITER_PROGRAM, m_path, "next", "1"}).status, 0);
    EXPECT_EQ(filesWith("secret"), Names{});
    EXPECT_EQ(filesWith(m_client), Names{});
}

TEST_F(Erasure, IsFinishedByAnOpenSessionWhenTheReaderEnds)
{
    fill();
    Reader reader(m_path);
    Session session;
    ASSERT_EQ(session.open(m_path, m_server.url()), 0);
    ASSERT_EQ(session.optOut(), 0);
    EXPECT_NE(filesWith("secret"), Names{});
    reader.end();
    while (queryValue(m_path, "SELECT erase FROM state") != "0") {
    }
    EXPECT_EQ(filesWith("secret"), Names{});
}

// As after a crash between the deletion and what follows it, with an SQLite that overwrites
// nothing.
TEST_F(Erasure, IsFinishedByTheNextOpeningAfterACrash)
{
    fill();
    change(m_path, "PRAGMA secure_delete = OFF; DELETE FROM event; DELETE FROM delivered;"
                   "UPDATE state SET erase = 1");
    ASSERT_NE(filesWith("secret"), Names{});
    Session session;
    ASSERT_EQ(session.config(m_path), 0);
    EXPECT_EQ(filesWith("secret"), Names{});
}

} // namespace
