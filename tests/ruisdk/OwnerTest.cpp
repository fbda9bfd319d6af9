// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// Files that belong to somebody else than the user whose events they hold.
#include "Child.h"
#include "ReceivedRecords.h"
#include "StoredRecords.h"
#include "TemporaryDirectory.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using namespace rui::test;
using Words = std::vector<std::string>;

class Owner : public testing::Test
{
protected:
    // The user's writer: three events and the end of the session.
    Outcome write(const std::string &name, const std::string &host = "") const
    {
        Words command = m_asUser;
        command.insert(command.end(), {RUI_WRITER_PROGRAM, m_data, name, "3", host});
        return runProgram(command, {{"ASAN_OPTIONS", "detect_leaks=0"}});
    }

    std::size_t received() const
    {
        return receivedRecords(m_server).size();
    }

    TemporaryDirectory m_directory;
    const std::string m_data = m_directory.path("data");
    TestServer m_server;
    Words m_asUser;
};

// Runs the user's part under another id.
class RootsCommand : public Owner
{
protected:
    static constexpr uid_t user = 12345;

    void SetUp() override
    {
        const std::string id = std::to_string(user);
        m_asUser = {"setpriv", "--reuid=" + id, "--regid=" + id, "--clear-groups"};
        if (geteuid() != 0) {
            GTEST_SKIP() << "only root can be two users";
        }
        ASSERT_EQ(chown(m_directory.path().c_str(), user, user), 0);
        if (write("w").status != 0) {
            GTEST_SKIP() << "another user may not run the programs here";
        }
    }

    void run(Words arguments) const
    {
        arguments.insert(arguments.begin(), RUI_EVENTS_PROGRAM);
        arguments.push_back(m_data);
        const Outcome outcome = runProgram(arguments);
        EXPECT_EQ(outcome.status, 0) << outcome.errors;
    }

    void expectAllOfTheUser() const
    {
        for (const auto &entry : std::filesystem::directory_iterator(m_data)) {
            struct stat status = {};
            ASSERT_EQ(stat(entry.path().c_str(), &status), 0);
            EXPECT_EQ(status.st_uid, user) << entry.path();
            EXPECT_EQ(status.st_gid, user) << entry.path();
        }
    }
};

TEST_F(RootsCommand, SendDoesNotLockTheUserOut)
{
    run({"send", "--to", m_server.url()});
    expectAllOfTheUser();
    EXPECT_EQ(received(), 3U);
    EXPECT_EQ(write("v", m_server.url()).status, 0);
    EXPECT_EQ(received(), 6U);
}

TEST_F(RootsCommand, PurgeDoesNotLockTheUserOut)
{
    std::filesystem::remove(m_data + "/usage-events.opening");
    run({"purge"});
    expectAllOfTheUser();
    EXPECT_EQ(write("v", m_server.url()).status, 0);
    EXPECT_EQ(received(), 4U); // and one record that tells of the purge
}

TEST_F(RootsCommand, GivesBackALockThatRootHasLeftEarlier)
{
    writeFile(m_data + "/usage-events.sender", "");
    run({"send", "--to", m_server.url()});
    expectAllOfTheUser();
}

// An ordinary user, or root without its privileges.
class LockOfSomebodyElse : public Owner
{
protected:
    void SetUp() override
    {
        if (geteuid() == 0) {
            m_asUser = {"setpriv", "--bounding-set=-all", "--inh-caps=-all"};
        }
        ASSERT_EQ(write("w").status, 0);
        writeFile(m_lock, "");
        chmod(m_lock.c_str(), 0000);
    }

    const std::string m_lock = m_data + "/usage-events.sender";
};

TEST_F(LockOfSomebodyElse, IsSaidOnceAndKeepsTheEvents)
{
    const Outcome outcome = write("v", m_server.url());
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.output, "v 1\nv 2\nv 3\n");
    EXPECT_EQ(outcome.errors, "ruiSDK: " + m_lock
                                  + ": Permission denied; nothing is delivered until this user may"
                                    " open it\n");
    EXPECT_EQ(received(), 0U);
    chmod(m_lock.c_str(), 0600);
    EXPECT_EQ(write("u", m_server.url()).errors, "");
    EXPECT_EQ(received(), 9U);
}

TEST_F(LockOfSomebodyElse, IsSaidByTheTool)
{
    Words command = m_asUser;
    command.insert(command.end(), {RUI_EVENTS_PROGRAM, "send", "--to", m_server.url(), m_data});
    const Outcome outcome = runProgram(command);
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.errors, "rui-events: " + m_server.url() + ": " + m_lock
                                  + ": Permission denied; 3 records are left\n");
}

} // namespace
