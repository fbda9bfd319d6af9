// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// The withdrawal of consent, without a server.
#include "Session.h"
#include "StoredRecords.h"
#include "TemporaryDirectory.h"

#include <gtest/gtest.h>

namespace {

using namespace rui::test;

class OptOut : public testing::Test
{
protected:
    // The sequence that withdraws consent.
    void withdraw()
    {
        Session session;
        ASSERT_EQ(session.config(m_path), 0);
        ASSERT_EQ(session.product(), 0);
        ASSERT_EQ(session.optOut(), 0);
        ASSERT_EQ(session.start(), 0);
        ASSERT_EQ(session.stop(), 0);
    }

    std::string clientId()
    {
        return queryValue(m_path, "SELECT client FROM state");
    }

    TemporaryDirectory m_directory;
    const std::string m_path = m_directory.path();
};

TEST_F(OptOut, DeletesWhatIsUndeliveredAndLeavesOneRecordUnderTheOldClientId)
{
    Session session;
    session.open(m_path);
    session.track("a");
    session.track("b");
    session.destroy();
    const std::string client = clientId();
    withdraw();
    EXPECT_EQ(query(m_path, "SELECT seq, category, name, text FROM record"),
              (std::vector<Row>{{"3", "ruiSDK", "OptOut", "(null)"}}));
    EXPECT_EQ(queryValue(m_path, "SELECT client FROM notice JOIN resource ON resource = id"),
              client);
}

TEST_F(OptOut, RetiresTheClientId)
{
    Session().open(m_path);
    withdraw();
    EXPECT_EQ(clientId(), "(null)");
}

TEST_F(OptOut, OverwritesWhatItDeletes)
{
    Session session;
    session.open(m_path);
    session.track("a text that must not stay readable");
    session.destroy();
    EXPECT_NE(readFile(databasePath(m_path)).find("must not stay"), std::string::npos);
    withdraw();
    EXPECT_EQ(readFile(databasePath(m_path)).find("must not stay"), std::string::npos);
    EXPECT_EQ(readFile(databasePath(m_path) + "-wal").find("must not stay"), std::string::npos);
}

TEST_F(OptOut, OpenSessionsAreOptedOutAtOnce)
{
    Session open;
    open.open(m_path);
    EXPECT_EQ(open.track("before"), 0);
    withdraw();
    EXPECT_EQ(open.track("after"), 7);
    EXPECT_EQ(storedTexts(m_path), std::vector<std::string>{"(null)"});
}

TEST_F(OptOut, InstanceThatOptedOutStartsButStoresNothing)
{
    Session().open(m_path);
    Session session;
    session.config(m_path);
    session.product();
    EXPECT_EQ(session.optOut(), 0);
    EXPECT_EQ(session.start(), 0);
    EXPECT_EQ(session.track("text"), 7);
    session.stop();
    EXPECT_EQ(session.start(), 0);
    EXPECT_EQ(session.track("text"), 7);
    EXPECT_EQ(clientId(), "(null)");
}

TEST_F(OptOut, RunningSessionMayOptOut)
{
    Session session;
    session.open(m_path);
    session.track("text");
    EXPECT_EQ(session.optOut(), 0);
    EXPECT_EQ(session.track("text"), 7);
    EXPECT_EQ(session.stop(), 0);
    EXPECT_EQ(queryValue(m_path, "SELECT count(*) FROM notice"), "1");
}

TEST_F(OptOut, FitsAnInstanceWithoutProductDataAndAStoppedOne)
{
    Session configured;
    configured.config(m_path);
    EXPECT_EQ(configured.optOut(), 0);
    Session stopped;
    stopped.open(m_path);
    stopped.stop();
    EXPECT_EQ(stopped.optOut(), 0);
}

TEST_F(OptOut, RepetitionChangesNothing)
{
    Session().open(m_path);
    withdraw();
    const auto state = query(m_path, "SELECT epoch, client, floor, delivered FROM state");
    withdraw();
    EXPECT_EQ(query(m_path, "SELECT epoch, client, floor, delivered FROM state"), state);
    EXPECT_EQ(queryValue(m_path, "SELECT count(*) FROM notice"), "1");
}

TEST_F(OptOut, WithoutAnEarlierSessionThereIsNothingToRecord)
{
    withdraw();
    EXPECT_EQ(queryValue(m_path, "SELECT count(*) FROM record"), "0");
}

TEST_F(OptOut, LaterSessionGetsANewClientId)
{
    Session().open(m_path);
    const std::string before = clientId();
    withdraw();
    Session later;
    EXPECT_EQ(later.open(m_path), 0);
    EXPECT_EQ(later.track("again"), 0);
    EXPECT_EQ(clientId().size(), 36U);
    EXPECT_NE(clientId(), before);
}

TEST_F(OptOut, SessionOfTheOldConsentStaysOutWhenConsentIsRenewed)
{
    Session old;
    old.open(m_path);
    withdraw();
    Session renewed;
    renewed.open(m_path);
    EXPECT_EQ(old.track("old"), 7);
    EXPECT_EQ(renewed.track("new"), 0);
}

TEST_F(OptOut, EveryConsentLeavesItsOwnOptOutRecord)
{
    for (int i = 0; i < 3; ++i) {
        Session().open(m_path);
        withdraw();
    }
    EXPECT_EQ(queryValue(m_path, "SELECT count(DISTINCT client) FROM notice"
                                 " JOIN resource ON resource = id"),
              "3");
}

TEST_F(OptOut, NumbersAreNotGivenAgain)
{
    Session first;
    first.open(m_path);
    first.track("1");
    first.track("2");
    withdraw();
    Session second;
    second.open(m_path);
    second.track("4");
    EXPECT_EQ(query(m_path, "SELECT seq, text FROM record ORDER BY seq"),
              (std::vector<Row>{{"3", "(null)"}, {"4", "4"}}));
}

TEST_F(OptOut, ForgetsLossesThatWereNotToldYet)
{
    Session session;
    session.open(m_path);
    session.track(std::string(2 * 1024 * 1024, 'x'));
    session.destroy();
    withdraw();
    EXPECT_EQ(queryValue(m_path, "SELECT count(*) FROM loss"), "0");
}

TEST_F(OptOut, RepeatedByTheSameInstanceLeavesANewConsentOfSomebodyElseAlone)
{
    Session first;
    first.open(m_path);
    EXPECT_EQ(first.optOut(), 0);
    Session renewed;
    EXPECT_EQ(renewed.open(m_path), 0);
    EXPECT_EQ(first.optOut(), 0);
    EXPECT_EQ(renewed.track("kept"), 0);
    EXPECT_EQ(clientId().size(), 36U);
}

TEST_F(OptOut, EventThatIsTooLargeIsOptedOutAfterTheOptOutOfAnotherInstance)
{
    Session open;
    open.open(m_path);
    withdraw();
    EXPECT_EQ(open.track(std::string(2 * 1024 * 1024, 'x')), 7);
    EXPECT_EQ(queryValue(m_path, "SELECT count(*) FROM loss"), "0");
}

TEST_F(OptOut, DatabaseThatIsDamagedDoesNotReviveASessionThatIsOut)
{
    Session out;
    out.open(m_path);
    withdraw();
    moveDatabase(m_path, m_directory.path("moved"));
    writeFile(databasePath(m_path), "This is no database, but a letter of some length.\n");
    EXPECT_EQ(out.track("text"), 7);
    Session next;
    EXPECT_EQ(next.open(m_path), 0);
    EXPECT_EQ(out.track("text"), 7);
}

TEST_F(OptOut, RecordOfTheConsentThatIsRemovedCountsAsAWithdrawal)
{
    Session session;
    session.open(m_path);
    session.track("text");
    session.destroy();
    const std::string client = clientId();
    std::filesystem::remove(m_path + "/usage-events.consent");
    Session next;
    EXPECT_EQ(next.open(m_path), 0);
    EXPECT_EQ(queryValue(m_path, "SELECT count(*) FROM event"), "0");
    EXPECT_NE(clientId(), client);
}

TEST_F(OptOut, RecordOfTheConsentThatIsOverwrittenCountsAsAWithdrawal)
{
    Session session;
    session.open(m_path);
    session.track("text");
    session.destroy();
    writeFile(m_path + "/usage-events.consent", "ruiSDK consent 1 rubbish");
    Session next;
    EXPECT_EQ(next.open(m_path), 0);
    EXPECT_EQ(queryValue(m_path, "SELECT count(*) FROM event"), "0");
    EXPECT_EQ(next.track("new"), 0);
}

} // namespace
