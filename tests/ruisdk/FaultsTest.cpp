// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// A device that fails. Errors are put into the system calls on the database, one call at a time;
// RUI_FAULTS=all does every call instead of a selection.
#include "Child.h"
#include "Session.h"
#include "StoredRecords.h"
#include "TemporaryDirectory.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <set>
#include <sstream>

namespace {

using namespace rui::test;

struct Fault
{
    const char *call;
    const char *error;
    // SQLite tries a failed lock again for seconds: fewer of them by default.
    int runs = 12;
};

// Calls without a fault put in: more than a session makes.
constexpr int lastCall = 400;

bool wantsAll()
{
    const char *wanted = std::getenv("RUI_FAULTS");
    return wanted != nullptr && std::string(wanted) == "all";
}

int nextCall(int call)
{
    return wantsAll() ? call + 1 : call + std::max(1, call / 2);
}

bool canTrace()
{
    return runProgram({"strace", "-o", "/dev/null", "true"}).status == 0;
}

class Faults : public testing::TestWithParam<Fault>
{
protected:
    struct Run
    {
        Outcome outcome;
        bool injected = false;
        std::vector<std::string> acknowledged;
        std::set<std::string> results;
    };

    Run runWriter(const TemporaryDirectory &directory, int call)
    {
        const std::string data = directory.path("data");
        const std::string fault = std::string("inject=") + GetParam().call
                                  + ":error=" + GetParam().error + ":when=" + std::to_string(call);
        Run run;
        run.outcome =
            runProgram({"strace", "-f", "-qq", "-o", directory.path("log"), "-e", fault, "-P", data,
                        "-P", databasePath(data), "-P", databasePath(data) + "-wal", "-P",
                        databasePath(data) + "-shm", RUI_WRITER_PROGRAM, data, "w", "5"},
                       {{"ASAN_OPTIONS", "detect_leaks=0"}});
        run.injected = readFile(directory.path("log")).find("INJECTED") != std::string::npos;
        readReport(run);
        return run;
    }

    static void readReport(Run &run)
    {
        std::istringstream lines(run.outcome.output);
        for (std::string line; std::getline(lines, line);) {
            const std::size_t failed = line.find(" failed ");
            if (failed == std::string::npos) {
                run.acknowledged.push_back(line);
            } else {
                run.results.insert(line.substr(failed + 8));
            }
        }
        if (run.outcome.status != 0) {
            run.results.insert(std::to_string(run.outcome.status));
        }
    }

    // The device works again.
    static void expectUnharmed(const TemporaryDirectory &directory, const Run &run)
    {
        const std::string data = directory.path("data");
        Session session;
        ASSERT_EQ(session.open(data), 0);
        EXPECT_EQ(session.track("afterwards"), 0);
        EXPECT_EQ(fileBeginningWith(data, "usage-events.sqlite.damaged"), "");
        const auto texts = storedTexts(data);
        for (const std::string &text : run.acknowledged) {
            EXPECT_EQ(std::count(texts.begin(), texts.end(), text), 1) << text;
        }
        EXPECT_EQ(queryValue(data, "PRAGMA integrity_check"), "ok");
    }
};

TEST_P(Faults, LoseNothingThatWasAcknowledgedAndGiveTheRightCode)
{
    if (!canTrace()) {
        GTEST_SKIP() << "strace may not trace here";
    }
    const std::set<std::string> allowed = std::string(GetParam().error) == "ENOSPC"
                                              ? std::set<std::string>{"5", "6"}
                                              : std::set<std::string>{"5", "9"};
    int runs = 0;
    for (int call = 1; call < lastCall; call = nextCall(call), ++runs) {
        if (runs == GetParam().runs && !wantsAll()) {
            break;
        }
        const TemporaryDirectory directory;
        const Run run = runWriter(directory, call);
        if (!run.injected) {
            break;
        }
        for (const std::string &result : run.results) {
            EXPECT_EQ(allowed.count(result), 1U) << "result " << result << " at call " << call;
        }
        ASSERT_NO_FATAL_FAILURE(expectUnharmed(directory, run)) << "at call " << call;
    }
    EXPECT_GT(runs, 0);
    std::printf("%d runs\n", runs);
}

INSTANTIATE_TEST_SUITE_P(
    Calls, Faults,
    testing::Values(Fault{"pwrite64", "EIO"}, Fault{"pwrite64", "ENOSPC"}, Fault{"pread64", "EIO"},
                    Fault{"fdatasync", "EIO"}, Fault{"ftruncate", "EIO"},
                    Fault{"ftruncate", "ENOSPC"}, Fault{"openat", "EIO"}, Fault{"openat", "EMFILE"},
                    Fault{"openat", "EACCES"}, Fault{"openat", "EROFS"}, Fault{"fcntl", "EIO", 3},
                    Fault{"fcntl", "ENOLCK", 3}, Fault{"newfstatat", "EIO"}, Fault{"unlink", "EIO"},
                    Fault{"mmap", "ENOMEM"}, Fault{"mkdir", "EACCES"}),
    [](const auto &row) { return std::string(row.param.call) + "_" + row.param.error; });

// A file system of 300 KiB in a name space of its own.
TEST(DiskFull, IsItsOwnCodeAndKeepsWhatWasAcknowledged)
{
    const TemporaryDirectory directory;
    const std::string script = "mount -t tmpfs -o size=300k none '" + directory.path() + "' && '"
                               + RUI_WRITER_PROGRAM + "' '" + directory.path() + "/data' w 2000 > '"
                               + directory.path() + ".out'; tail -n 1 '" + directory.path()
                               + ".out'; grep -vc failed '" + directory.path() + ".out'; '"
                               + RUI_EVENTS_PROGRAM + "' --raw '" + directory.path()
                               + "/data' | wc -l; rm '" + directory.path() + ".out'";
    const Outcome outcome = runProgram({"unshare", "-Urm", "sh", "-c", script});
    if (outcome.status != 0 || outcome.output.empty()) {
        GTEST_SKIP() << "no name space of its own here: " << outcome.errors;
    }
    std::istringstream lines(outcome.output);
    std::string last;
    int acknowledged = 0;
    int stored = 0;
    std::getline(lines, last);
    lines >> acknowledged >> stored;
    EXPECT_EQ(last, "w 2000 failed 6");
    EXPECT_GT(acknowledged, 10);
    EXPECT_EQ(stored, acknowledged);
}

} // namespace
