// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// Withdrawals that cannot be carried out at once: they hold all the same.
#include "Child.h"
#include "ReceivedRecords.h"
#include "Session.h"
#include "StoredRecords.h"
#include "TemporaryDirectory.h"

#include <gtest/gtest.h>

#include <csignal>

namespace {

using namespace rui::test;

// What arrived of the texts of events; an opt-out has none.
std::vector<std::string> receivedTexts(const TestServer &server)
{
    std::vector<std::string> texts;
    for (const ReceivedRecord &record : receivedRecords(server)) {
        if (!record.text.empty()) {
            texts.push_back(record.text);
        }
    }
    return texts;
}

using Texts = std::vector<std::string>;

class Withdrawal : public testing::Test
{
protected:
    void store(int count)
    {
        ASSERT_EQ(runProgram({RUI_WRITER_PROGRAM, m_path, "w", std::to_string(count)}).status, 0);
    }

    // The sequence of a program, with what each call returned.
    std::string withdraw()
    {
        return runProgram({RUI_WITHDRAWER_PROGRAM, m_path, m_server.url()}).output;
    }

    TemporaryDirectory m_directory;
    const std::string m_path = m_directory.path("data");
    TestServer m_server;
};

// Keeps the database locked for writing.
class Locker
{
public:
    explicit Locker(const std::string &directory)
        : m_child({"python3", "-c",
                   "import signal, sqlite3, sys\n"
                   "database = sqlite3.connect(sys.argv[1], isolation_level=None)\n"
                   "database.execute('BEGIN IMMEDIATE')\n"
                   "print('locked', flush=True)\n"
                   "signal.pause()\n",
                   databasePath(directory)})
    {
        std::string line;
        EXPECT_TRUE(m_child.readLine(line));
    }

    void release()
    {
        m_child.sendSignal(SIGKILL);
        m_child.wait();
    }

private:
    Child m_child;
};

TEST_F(Withdrawal, ThatALockedDatabaseRefusesSendsNothing)
{
    store(3);
    Locker locker(m_path);
    Session session;
    ASSERT_EQ(session.config(m_path, m_server.url()), 0);
    ASSERT_EQ(session.product(), 0);
    EXPECT_EQ(session.optOut(), 9);
    locker.release();
    EXPECT_EQ(session.start(), 0);
    EXPECT_EQ(session.track("after the withdrawal"), 7);
    EXPECT_EQ(session.stop(), 0);
    EXPECT_EQ(receivedTexts(m_server), Texts{});
    EXPECT_EQ(m_server.requests().size(), 1U) << "the record of the opt-out";
}

TEST_F(Withdrawal, ThatALockedDatabaseRefusesIsDoneByTheNextSession)
{
    store(3);
    Locker locker(m_path);
    withdraw();
    locker.release();
    const Outcome next = runProgram({RUI_WRITER_PROGRAM, m_path, "next", "1", m_server.url()});
    EXPECT_EQ(next.status, 0);
    EXPECT_EQ(receivedTexts(m_server), Texts{"next 1"});
}

} // namespace
