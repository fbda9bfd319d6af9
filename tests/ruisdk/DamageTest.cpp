// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// Directories and databases that cannot be used.
#include "Session.h"
#include "StoredRecords.h"
#include "TemporaryDirectory.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace {

using namespace rui::test;

const std::string rubbish = "This is not a database, but a letter of some length to somebody.\n";

class Damage : public testing::Test
{
protected:
    std::string asideFile()
    {
        return fileBeginningWith(m_path, "usage-events.sqlite.damaged-");
    }

    TemporaryDirectory m_directory;
    const std::string m_path = m_directory.path();
    Session m_session;
};

TEST_F(Damage, FileThatIsNoDatabaseIsSetAsideUnderADatedName)
{
    writeFile(databasePath(m_path), rubbish);
    testing::internal::CaptureStderr();
    EXPECT_EQ(m_session.open(m_path), 0);
    const std::string said = testing::internal::GetCapturedStderr();
    EXPECT_EQ(m_session.track("text"), 0);
    EXPECT_EQ(readFile(asideFile()), rubbish);
    EXPECT_EQ(said, "ruiSDK: " + databasePath(m_path) + " is not a usable database; set aside as "
                        + asideFile() + ", a new one is begun with 0 events that could be read\n");
    EXPECT_EQ(storedTexts(m_path), std::vector<std::string>{"text"});
}

TEST_F(Damage, DatabaseThatWasSetAsideIsCounted)
{
    writeFile(databasePath(m_path), rubbish);
    m_session.open(m_path);
    EXPECT_EQ(query(m_path, "SELECT reason, lost FROM loss"),
              (std::vector<Row>{{"damagedDatabase", "1"}}));
}

TEST_F(Damage, IsSaidOnlyOnce)
{
    writeFile(databasePath(m_path), rubbish);
    m_session.open(m_path);
    testing::internal::CaptureStderr();
    Session second;
    EXPECT_EQ(second.open(m_path), 0);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST_F(Damage, DatabaseWithoutATableIsSetAside)
{
    m_session.open(m_path);
    m_session.destroy();
    change(m_path, "DROP TABLE notice");
    Session next;
    EXPECT_EQ(next.open(m_path), 0);
    EXPECT_NE(asideFile(), "");
}

TEST_F(Damage, PageThatIsOverwrittenDuringASessionIsSetAsideAndTheEventStored)
{
    m_session.open(m_path);
    for (int i = 0; i < 200; ++i) {
        m_session.track(std::string(1000, 'x'));
    }
    m_session.destroy();
    std::string content = readFile(databasePath(m_path));
    ASSERT_GT(content.size(), 100000U);
    std::fill(content.begin() + 4096, content.end(), '\xA5');
    writeFile(databasePath(m_path), content);
    Session next;
    ASSERT_EQ(next.open(m_path), 0);
    EXPECT_EQ(next.track("after"), 0);
    EXPECT_NE(asideFile(), "");
    EXPECT_EQ(storedTexts(m_path), std::vector<std::string>{"after"});
}

TEST_F(Damage, DatabaseThatIsReplacedDuringASessionIsFollowed)
{
    m_session.open(m_path);
    m_session.track("old");
    moveDatabase(m_path, m_directory.path("moved"));
    writeFile(databasePath(m_path), "");
    EXPECT_EQ(m_session.track("new"), 0);
    EXPECT_EQ(storedTexts(m_path), std::vector<std::string>{"new"});
}

TEST_F(Damage, DirectoryThatVanishesDuringASessionIsAStorageErrorAndStaysAway)
{
    const std::string path = m_directory.path("short-lived");
    m_session.open(path);
    EXPECT_EQ(m_session.track("text"), 0);
    // At once: the worker may make a file in a directory that is emptied one file after the other.
    std::filesystem::rename(path, path + "-gone");
    std::filesystem::remove_all(path + "-gone");
    EXPECT_EQ(m_session.track("text"), 5);
    EXPECT_EQ(m_session.track("text"), 5);
    EXPECT_FALSE(std::filesystem::exists(path));
    EXPECT_EQ(m_session.stop(), 0);
}

TEST_F(Damage, NewerDatabaseIsUnsupportedAndLeftAlone)
{
    m_session.open(m_path);
    m_session.destroy();
    change(m_path, "PRAGMA user_version = 1000");
    const std::string before = readFile(databasePath(m_path));
    Session next;
    EXPECT_EQ(next.open(m_path), 4);
    EXPECT_EQ(readFile(databasePath(m_path)), before);
    EXPECT_EQ(asideFile(), "");
}

TEST_F(Damage, DatabaseOfAnotherProgramIsUnsupportedAndLeftAlone)
{
    writeFile(databasePath(m_path), "");
    change(m_path, "CREATE TABLE addresses(name TEXT)");
    const std::string before = readFile(databasePath(m_path));
    EXPECT_EQ(m_session.open(m_path), 4);
    EXPECT_EQ(readFile(databasePath(m_path)), before);
    EXPECT_EQ(asideFile(), "");
}

TEST_F(Damage, FileInPlaceOfTheDirectoryIsAStorageError)
{
    writeFile(m_directory.path("file"), "content");
    EXPECT_EQ(m_session.open(m_directory.path("file")), 5);
    EXPECT_EQ(m_session.open(m_directory.path("file/below")), 5);
    EXPECT_EQ(readFile(m_directory.path("file")), "content");
}

TEST_F(Damage, DirectoryInPlaceOfTheDatabaseIsAStorageError)
{
    mkdir(databasePath(m_path).c_str(), 0700);
    EXPECT_EQ(m_session.open(m_path), 5);
}

TEST_F(Damage, DirectoryThatCannotBeCreatedIsAStorageError)
{
    EXPECT_EQ(m_session.open("/proc/ruisdk"), 5);
}

TEST_F(Damage, SymbolicLinkInPlaceOfAFileIsAStorageErrorAndItsTargetLeftAlone)
{
    for (const char *file :
         {"usage-events.sqlite", "usage-events.sqlite-wal", "usage-events.consent",
          "usage-events.opening", "usage-events.sender"}) {
        const TemporaryDirectory directory;
        writeFile(directory.path("target"), "somebody else's");
        std::filesystem::create_symlink(directory.path("target"), directory.path(file));
        Session session;
        EXPECT_EQ(session.config(directory.path()), 5) << file;
        EXPECT_EQ(readFile(directory.path("target")), "somebody else's") << file;
    }
}

TEST_F(Damage, RelativeDirectoryStaysTheSameWhenTheProgramGoesElsewhere)
{
    const std::filesystem::path before = std::filesystem::current_path();
    std::filesystem::current_path(m_path);
    EXPECT_EQ(m_session.open("below"), 0);
    std::filesystem::current_path("/");
    moveDatabase(m_path + "/below", m_directory.path("moved"));
    writeFile(databasePath(m_path + "/below"), "");
    EXPECT_EQ(m_session.track("text"), 0);
    std::filesystem::current_path(before);
    EXPECT_EQ(storedTexts(m_path + "/below"), std::vector<std::string>{"text"});
}

} // namespace
