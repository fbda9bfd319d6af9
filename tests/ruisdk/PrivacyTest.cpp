// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// Who may read what is stored.
#include "Session.h"
#include "TemporaryDirectory.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace {

using namespace rui::test;

class Privacy : public testing::Test
{
protected:
    // A mask that would let others read.
    void SetUp() override
    {
        m_mask = umask(0);
    }
    void TearDown() override
    {
        umask(m_mask);
    }

    TemporaryDirectory m_directory;
    mode_t m_mask = 0;
};

TEST_F(Privacy, NewDirectoryAndItsParentsAreForTheUserAlone)
{
    Session session;
    EXPECT_EQ(session.open(m_directory.path("a/b")), 0);
    EXPECT_EQ(modeOf(m_directory.path("a")), 0700U);
    EXPECT_EQ(modeOf(m_directory.path("a/b")), 0700U);
}

TEST_F(Privacy, EmptyDirectoryIsClosedToOthers)
{
    const std::string path = m_directory.path("made");
    mkdir(path.c_str(), 0755);
    Session session;
    EXPECT_EQ(session.open(path), 0);
    EXPECT_EQ(modeOf(path), 0700U);
}

TEST_F(Privacy, DirectoryWithOtherFilesIsLeftAsItIs)
{
    const std::string path = m_directory.path("shared");
    mkdir(path.c_str(), 0755);
    writeFile(path + "/file", "of somebody else");
    Session session;
    EXPECT_EQ(session.open(path), 0);
    EXPECT_EQ(modeOf(path), 0755U);
}

TEST_F(Privacy, DatabaseThatOthersMayReadIsClosedToThem)
{
    const std::string path = m_directory.path("new");
    Session().open(path);
    chmod((path + "/usage-events.sqlite").c_str(), 0644);
    Session session;
    EXPECT_EQ(session.open(path), 0);
    EXPECT_EQ(modeOf(path + "/usage-events.sqlite"), 0600U);
}

TEST_F(Privacy, EveryFileIsForTheUserAlone)
{
    const std::string path = m_directory.path("new");
    Session session;
    session.open(path);
    session.track("text");
    int files = 0;
    for (const auto &entry : std::filesystem::directory_iterator(path)) {
        EXPECT_EQ(modeOf(entry.path().string()), 0600U) << entry.path();
        ++files;
    }
    // The database, its journal and index, and a lock.
    EXPECT_GE(files, 4);
}

} // namespace
