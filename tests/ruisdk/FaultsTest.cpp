// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// A device that fails. Errors are put into the system calls of a session on its files, one call of
// each thread at a time; RUI_FAULTS=all does every call instead of a selection.
#include "Session.h"
#include "StoredRecords.h"
#include "TemporaryDirectory.h"
#include "Tracing.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

using namespace rui::test;

const std::vector<std::string> writer = {"w", "5"};

const std::set<std::string> none = {};
const std::set<std::string> storage = {"5"};
const std::set<std::string> full = {"6"};
// SQLite takes a quota that is used up for a failing device, and a file that cannot be created for
// one that may only be read; not all of that can be told apart afterwards.
const std::set<std::string> fullOrStorage = {"5", "6"};
// SQLite takes a lock that cannot be had for one that somebody else holds.
const std::set<std::string> storageOrBusy = {"5", "9"};

const std::vector<Fault> faults = {
    {"pwrite64", "EIO", "error=EIO", storage},
    {"pwrite64", "EROFS", "error=EROFS", storage},
    {"pwrite64", "ENOSPC", "error=ENOSPC", full},
    {"pwrite64", "EDQUOT", "error=EDQUOT", fullOrStorage},
    {"pwrite64", "EINTR", "error=EINTR", none},
    {"pwrite64", "WritesNothing", "retval=0", fullOrStorage},
    {"pread64", "EIO", "error=EIO", storage},
    {"pread64", "EINTR", "error=EINTR", none},
    {"pread64", "ReadsNothing", "retval=0", storage},
    {"fdatasync", "EIO", "error=EIO", storage},
    {"ftruncate", "EIO", "error=EIO", storage},
    {"ftruncate", "ENOSPC", "error=ENOSPC", full},
    {"openat", "EIO", "error=EIO", storage},
    {"openat", "EMFILE", "error=EMFILE", storage},
    {"openat", "EACCES", "error=EACCES", storage},
    {"openat", "EROFS", "error=EROFS", storage},
    {"openat", "ENOSPC", "error=ENOSPC", fullOrStorage},
    {"close", "EIO", "error=EIO", none},
    {"fcntl", "EIO", "error=EIO", storageOrBusy, 3},
    {"fcntl", "ENOLCK", "error=ENOLCK", storageOrBusy, 3},
    {"flock", "EIO", "error=EIO", storage},
    {"flock", "ENOLCK", "error=ENOLCK", storage},
    {"flock", "EINTR", "error=EINTR", none},
    {"newfstatat", "EIO", "error=EIO", storage},
    {"newfstatat", "EACCES", "error=EACCES", storage},
    {"unlink", "EIO", "error=EIO", none},
    {"fchown", "EPERM", "error=EPERM", none},
    {"mmap", "ENOMEM", "error=ENOMEM", storage},
    {"mkdir", "EACCES", "error=EACCES", storage},
    {"mkdir", "ENOSPC", "error=ENOSPC", full},
};

class Faults : public testing::TestWithParam<Fault>
{
protected:
    void SetUp() override
    {
        if (!canTrace()) {
            GTEST_SKIP() << "strace may not trace here";
        }
    }

    // The device works again.
    static void expectUnharmed(const std::string &data, const WriterRun &run)
    {
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
    const TemporaryDirectory whole;
    int runs = 0;
    for (const int call :
         callsToFail(GetParam(), countCalls(whole.path("log"), whole.path("data"), writer))) {
        const TemporaryDirectory directory;
        const std::string data = directory.path("data");
        const WriterRun run = runWithFault(directory.path("log"), GetParam(), call, data, writer);
        for (const std::string &result : run.results) {
            EXPECT_EQ(GetParam().results.count(result), 1U)
                << "result " << result << " at call " << call;
        }
        ASSERT_NO_FATAL_FAILURE(expectUnharmed(data, run)) << "at call " << call;
        runs += run.injected ? 1 : 0;
    }
    if (runs == 0) {
        GTEST_SKIP() << "the library makes no such call here";
    }
    std::printf("%d runs\n", runs);
}

INSTANTIATE_TEST_SUITE_P(Calls, Faults, testing::ValuesIn(faults), [](const auto &row) {
    return std::string(row.param.call) + "_" + row.param.word;
});

TEST(Fault, IsPutIntoEveryCallThatASessionMakesOnItsFiles)
{
    if (!canTrace()) {
        GTEST_SKIP() << "strace may not trace here";
    }
    const TemporaryDirectory directory;
    EXPECT_EQ(callsWithoutFault(faults,
                                countCalls(directory.path("log"), directory.path("data"), writer)),
              std::set<std::string>{});
}

} // namespace
