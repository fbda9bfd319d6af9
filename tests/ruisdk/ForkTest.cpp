// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// Processes that fork while they use the library.
#include "Child.h"
#include "Session.h"
#include "store/FileLock.h"
#include "StoredRecords.h"
#include "TemporaryDirectory.h"
#include "TestServer.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <fstream>
#include <functional>
#include <set>

namespace {

using namespace rui::test;

// Runs the body in a forked process, and returns what it returned; up to 255.
int inFork(const std::function<int()> &body)
{
    const pid_t child = fork();
    if (child == 0) {
        _exit(body());
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
}

// A forked process that lives until the end of the test.
class Survivor
{
public:
    Survivor()
        : m_process(fork())
    {
        while (m_process == 0) {
            pause();
        }
    }
    ~Survivor()
    {
        kill(m_process, SIGKILL);
        waitpid(m_process, nullptr, 0);
    }
    Survivor(const Survivor &) = delete;
    Survivor &operator=(const Survivor &) = delete;

private:
    pid_t m_process;
};

int acknowledged(Session &session, int count)
{
    int stored = 0;
    for (int i = 0; i < count; ++i) {
        stored += session.track("text") == RUI_OK ? 1 : 0;
    }
    return stored;
}

class Fork : public testing::Test
{
protected:
    std::string storedCount()
    {
        return queryValue(m_path, "SELECT count(*) FROM event");
    }

    // How many events were acknowledged, before and after another process has come and gone.
    int sessionBesideAnotherProcess()
    {
        Session own;
        own.open(m_path);
        const int before = acknowledged(own, 20);
        runProgram({RUI_WRITER_PROGRAM, m_path, "third", "5"});
        return before + acknowledged(own, 30);
    }

    TemporaryDirectory m_directory;
    const std::string m_path = m_directory.path("data");
};

TEST_F(Fork, HandleIsABadHandleInTheChild)
{
    Session session;
    ASSERT_EQ(session.open(m_path), 0);
    EXPECT_EQ(inFork([&] { return session.track("text"); }), 1);
    EXPECT_EQ(inFork([&] { return session.destroy(); }), 1);
    EXPECT_EQ(session.track("still here"), 0);
    EXPECT_EQ(storedTexts(m_path), std::vector<std::string>{"still here"});
}

TEST_F(Fork, ChildOfAnOpenSessionIsRefusedASessionOfItsOwn)
{
    Session session;
    ASSERT_EQ(session.open(m_path), 0);
    EXPECT_EQ(inFork([&] { return Session().config(m_path); }), 11);
    EXPECT_EQ(inFork([&] { return Session().config(m_directory.path("elsewhere")); }), 11);
    EXPECT_FALSE(std::filesystem::exists(m_directory.path("elsewhere")));
}

TEST_F(Fork, SoIsAChildOfTheChild)
{
    Session session;
    ASSERT_EQ(session.open(m_path), 0);
    EXPECT_EQ(inFork([&] { return inFork([&] { return Session().config(m_path); }); }), 11);
}

TEST_F(Fork, ChildThatExecutesAProgramMayUseTheLibrary)
{
    Session session;
    ASSERT_EQ(session.open(m_path), 0);
    EXPECT_EQ(runProgram({RUI_WRITER_PROGRAM, m_path, "w", "1"}).status, 0);
    EXPECT_EQ(storedTexts(m_path), std::vector<std::string>{"w 1"});
}

TEST_F(Fork, ChildOfAProcessWithoutAnInstanceMayUseTheLibrary)
{
    Session session;
    ASSERT_EQ(session.open(m_path), 0);
    ASSERT_EQ(session.destroy(), 0);
    EXPECT_EQ(inFork([&] { return Session().open(m_path); }), 0);
}

TEST_F(Fork, NobodyLosesAnAcknowledgedEvent)
{
    Session session;
    ASSERT_EQ(session.open(m_path), 0);
    Child third({RUI_WRITER_PROGRAM, m_path, "third", "500"});
    int stored = 0;
    for (int round = 0; round < 10; ++round) {
        stored += acknowledged(session, 5);
        stored += inFork([&] {
            Session own;
            own.open(m_path);
            const int events = acknowledged(own, 20);
            own.destroy();
            return events;
        });
    }
    std::string line;
    while (third.readLine(line)) {
        stored += line.find("failed") == std::string::npos ? 1 : 0;
    }
    EXPECT_EQ(third.wait(), 0);
    EXPECT_EQ(storedCount(), std::to_string(stored));
    EXPECT_EQ(queryValue(m_path, "PRAGMA integrity_check"), "ok");
}

// The child's SQLite believes that it holds the locks of its parent.
TEST_F(Fork, ChildLosesNoAcknowledgedEventWhenItsParentEnds)
{
    Session session;
    ASSERT_EQ(session.open(m_path), 0);
    int ends[2];
    ASSERT_EQ(pipe(ends), 0);
    const pid_t child = fork();
    if (child == 0) {
        close(ends[1]);
        char end = 0;
        _exit(read(ends[0], &end, 1) == 0 ? sessionBesideAnotherProcess() : 255);
    }
    EXPECT_EQ(session.destroy(), 0);
    close(ends[0]);
    close(ends[1]);
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_EQ(queryValue(m_path, "SELECT count(*) FROM event WHERE text = 'text'"),
              std::to_string(WEXITSTATUS(status)));
}

TEST_F(Fork, ChildThatLivesOnKeepsNoLock)
{
    const std::string path = m_directory.path("lock");
    auto lock = std::make_unique<rui::FileLock>(path);
    ASSERT_TRUE(lock->tryLock());
    const Survivor survivor;
    lock.reset();
    EXPECT_TRUE(rui::FileLock(path).tryLock());
}

TEST_F(Fork, ChildThatOutlivesAKilledHolderKeepsNoLock)
{
    const std::string path = m_directory.path("lock");
    int ends[2];
    ASSERT_EQ(pipe(ends), 0);
    EXPECT_EQ(inFork([&]() -> int {
                  rui::FileLock lock(path);
                  if (!lock.tryLock()) {
                      return 1;
                  }
                  if (fork() == 0) {
                      close(ends[1]);
                      char end = 0;
                      // Until the test closes its end.
                      _exit(read(ends[0], &end, 1) == 0 ? 0 : 1);
                  }
                  raise(SIGKILL);
                  return 2;
              }),
              -SIGKILL);
    // The child has it until it runs for the first time.
    const rui::BusyLimit aMinute(std::chrono::minutes(1));
    EXPECT_NO_THROW(rui::FileLock(path).lock(aMinute));
    close(ends[0]);
    close(ends[1]);
}

bool closesOnExec(const std::filesystem::path &info)
{
    std::ifstream file(info);
    for (std::string word; file >> word;) {
        if (word == "flags:") {
            file >> word;
            return (std::stoi(word, nullptr, 8) & O_CLOEXEC) != 0;
        }
    }
    return true;
}

// What a program that the child executes would inherit, beside its input and output.
std::set<std::string> inheritable(pid_t process)
{
    const std::filesystem::path base = "/proc/" + std::to_string(process);
    std::set<std::string> files;
    for (const auto &entry : std::filesystem::directory_iterator(base / "fdinfo")) {
        const std::string number = entry.path().filename();
        if (std::stoi(number) > 2 && !closesOnExec(entry.path())) {
            files.insert(std::filesystem::read_symlink(base / "fd" / number));
        }
    }
    return files;
}

TEST_F(Fork, NoDescriptorPassesToAnExecutedProgramNotEvenDuringARequest)
{
    TestServer server;
    server.add({200, {}, {}, Answer::Manner::Hang});
    Child writer({RUI_WRITER_PROGRAM, m_path, "w", "1", server.url(), "stay"});
    ASSERT_TRUE(server.waitForRequests(1));
    std::set<std::string> passed = inheritable(writer.id());
    // What the writer itself was given, by whoever runs this test.
    for (const std::string &file : inheritable(getpid())) {
        passed.erase(file);
    }
    EXPECT_EQ(passed, std::set<std::string>{});
}

} // namespace
