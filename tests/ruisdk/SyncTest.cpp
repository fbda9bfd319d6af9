// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// What reaches the device before a call returns: counted in the system calls of a whole session of
// twenty events.
#include "StoredRecords.h"
#include "TemporaryDirectory.h"
#include "Tracing.h"

#include <gtest/gtest.h>

namespace {

using namespace rui::test;

int flushesOfJournal(const std::string &writer)
{
    const TemporaryDirectory directory;
    const std::string data = directory.path("data");
    const Outcome outcome = runProgram({"strace", "-f", "-qq", "-e", "trace=fdatasync,fsync", "-P",
                                        databasePath(data) + "-wal", "-o", directory.path("log"),
                                        writer, data, "w", "20"},
                                       {{"ASAN_OPTIONS", "detect_leaks=0"}});
    EXPECT_EQ(outcome.status, 0) << outcome.errors;
    EXPECT_EQ(storedTexts(data).size(), 20U);
    const std::string log = readFile(directory.path("log"));
    int flushes = 0;
    for (std::size_t at = log.find("sync("); at != std::string::npos; at = log.find("sync(", at)) {
        ++flushes;
        ++at;
    }
    return flushes;
}

class EveryCommit : public testing::Test
{
protected:
    void SetUp() override
    {
        if (!canTrace()) {
            GTEST_SKIP() << "strace may not trace here";
        }
    }
};

TEST_F(EveryCommit, IsNotFlushedToTheDeviceByDefault)
{
#ifdef RUI_SYNC_EVERY_COMMIT
    GTEST_SKIP() << "this build flushes every commit";
#endif
    EXPECT_LT(flushesOfJournal(RUI_WRITER_PROGRAM), 20);
}

TEST_F(EveryCommit, IsFlushedToTheDeviceByABuildThatIsSetSo)
{
    EXPECT_GE(flushesOfJournal(RUI_SYNCING_WRITER_PROGRAM), 20);
}

} // namespace
