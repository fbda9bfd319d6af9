// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// Databases of earlier versions.
#include "SetClock.h"
#include "store/Migrations.h"
#include "store/Quota.h"
#include "store/RecordReader.h"
#include "store/Store.h"
#include "StoredRecords.h"
#include "TemporaryDirectory.h"

#include <gtest/gtest.h>

namespace {

using namespace rui;
using namespace rui::test;
using Texts = std::vector<std::string>;

// A database of version 1, as it was left by a session: events 2, 3 and 5, the first one delivered,
// and number 4 a record of the library's own.
constexpr const char *versionOne = R"(
    PRAGMA journal_mode = WAL;
    CREATE TABLE state(id INTEGER PRIMARY KEY CHECK(id = 1), epoch INTEGER NOT NULL, client TEXT,
        floor INTEGER NOT NULL, gaps INTEGER NOT NULL, not_before INTEGER NOT NULL,
        failures INTEGER NOT NULL, delivered INTEGER NOT NULL) STRICT;
    INSERT INTO state VALUES(1, 1, 'f81d4fae-7dec-41d0-a765-00a0c91e6bf6', 4, 1, 0, 0, 1);
    CREATE TABLE resource(id INTEGER PRIMARY KEY, client TEXT NOT NULL, product TEXT NOT NULL,
        application TEXT NOT NULL, edition TEXT NOT NULL, language TEXT NOT NULL,
        version TEXT NOT NULL, build TEXT NOT NULL,
        UNIQUE(client, product, application, edition, language, version, build)) STRICT;
    INSERT INTO resource
        VALUES(1, 'f81d4fae-7dec-41d0-a765-00a0c91e6bf6', '1', 'app', '', '', '', '');
    CREATE TABLE loss(reason TEXT PRIMARY KEY, lost INTEGER NOT NULL, told INTEGER NOT NULL) STRICT;
    CREATE TABLE event(seq INTEGER PRIMARY KEY, size INTEGER NOT NULL, total INTEGER NOT NULL,
        time INTEGER NOT NULL, uid TEXT NOT NULL, resource INTEGER NOT NULL, category TEXT NOT NULL,
        name TEXT NOT NULL, session TEXT NOT NULL, text TEXT) STRICT;
    INSERT INTO event VALUES(2, 3, 103, 0, 'B', 1, '', '', '', 'two'),
        (3, 5, 108, 0, 'C', 1, '', '', '', 'three'), (5, 4, 112, 0, 'E', 1, '', '', '', 'five');
    CREATE TABLE notice(seq INTEGER PRIMARY KEY, kind TEXT NOT NULL, time INTEGER NOT NULL,
        uid TEXT NOT NULL, resource INTEGER NOT NULL, category TEXT NOT NULL, name TEXT NOT NULL,
        session TEXT NOT NULL, text TEXT) STRICT;
    INSERT INTO notice VALUES(4, 'loss', 0, 'D', 1, 'ruiSDK', 'EventsLost', '', '{}');
    CREATE TABLE delivered(seq INTEGER PRIMARY KEY, delivered INTEGER NOT NULL,
        size INTEGER NOT NULL, time INTEGER NOT NULL, uid TEXT NOT NULL, resource INTEGER NOT NULL,
        category TEXT NOT NULL, name TEXT NOT NULL, session TEXT NOT NULL, text TEXT) STRICT;
    INSERT INTO delivered VALUES(1, 0, 3, 0, 'A', 1, '', '', '', 'one');
    CREATE VIEW record AS
        SELECT seq, 'pending' AS state, time, uid, resource, category, name, session, text
        FROM event UNION ALL
        SELECT seq, 'pending', time, uid, resource, category, name, session, text
        FROM notice UNION ALL
        SELECT seq, 'delivered', time, uid, resource, category, name, session, text FROM delivered;
    PRAGMA application_id = 0x52554931;
    PRAGMA user_version = 1;
)";

class OldDatabase : public testing::Test
{
protected:
    void SetUp() override
    {
        sqlite3 *database = nullptr;
        sqlite3_open(databasePath(m_path).c_str(), &database);
        EXPECT_EQ(sqlite3_exec(database, versionOne, nullptr, nullptr, nullptr), SQLITE_OK);
        sqlite3_close(database);
    }

    Database open() const
    {
        return openStore(StorePaths(m_path), {}, m_busyLimit);
    }

    TemporaryDirectory m_directory;
    const std::string m_path = m_directory.path();
    const std::shared_ptr<BusyLimit> m_busyLimit =
        std::make_shared<BusyLimit>(std::chrono::seconds(5));
};

TEST_F(OldDatabase, IsBroughtToTheNewestVersionWithItsRecords)
{
    const Database database = open();
    EXPECT_EQ(database.integer("PRAGMA user_version"), newestSchemaVersion());
    EXPECT_EQ(storedTexts(m_path), (Texts{"one", "two", "three", "{}", "five"}));
}

TEST_F(OldDatabase, TellsWhatIsWaitingInSpiteOfItsGaps)
{
    const Database database = open();
    EXPECT_EQ(occupancyOf(database).events, 3);
    EXPECT_EQ(occupancyOf(database).bytes, 12);
}

TEST_F(OldDatabase, KeepsToTheQuotaFromThereOn)
{
    const SetClock clock;
    Limits limits;
    limits.maxEvents = 3;
    Store store(StorePaths(m_path), {}, limits, clock, m_busyLimit);
    store.join({"1", "app", "", "", "", ""});
    store.add({"", "", "", "six"});
    EXPECT_EQ(storedTexts(m_path), (Texts{"one", "three", "{}", "five", "six"}));
}

TEST_F(OldDatabase, KnowsNoRunOfWhatItHolds)
{
    open();
    EXPECT_EQ(query(m_path, "SELECT DISTINCT run FROM record"), (std::vector<Row>{{""}}));
}

TEST_F(OldDatabase, IsReadBeforeItKnowsAnyRun)
{
    Texts texts;
    const RecordReader reader{StorePaths(m_path)};
    reader.read({}, 0, [&](const Record &record) { texts.push_back(*record.text + record.run); });
    EXPECT_EQ(texts, (Texts{"one", "two", "three", "{}", "five"}));
}

TEST_F(OldDatabase, IsReadWithoutBeingChanged)
{
    const RecordReader reader{StorePaths(m_path)};
    EXPECT_EQ(reader.database().integer("SELECT count(*) FROM record"), 5);
    EXPECT_EQ(reader.database().integer("PRAGMA user_version"), 1);
}

TEST_F(OldDatabase, ThatIsAlreadyNewIsLeftAlone)
{
    Database database = open();
    const std::int64_t before = database.integer("PRAGMA schema_version");
    migrateSchema(database);
    open();
    EXPECT_EQ(database.integer("PRAGMA schema_version"), before);
}

} // namespace
