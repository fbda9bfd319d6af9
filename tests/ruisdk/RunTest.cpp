// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// The random id of a session, which the library makes at each start.
#include "DeliveryFixture.h"

#include <regex>

namespace {

using namespace rui;
using namespace rui::test;

class Run : public DeliveryFixture
{
protected:
    std::vector<Row> runs() const
    {
        return query(m_path, "SELECT DISTINCT run FROM record ORDER BY seq");
    }

    // Ends the session of before.
    void startAgain()
    {
        store().join({"2026110001", "nerixViewer", "Standard", "US English", "7.1.0", "11271"});
    }
};

TEST_F(Run, IsARandomIdentifierThatAllEventsOfASessionHave)
{
    track("1");
    track("2");
    ASSERT_EQ(runs().size(), 1U);
    const std::regex uuid("[0-9a-f]{8}-[0-9a-f]{4}-4[0-9a-f]{3}-[89ab][0-9a-f]{3}-[0-9a-f]{12}");
    EXPECT_TRUE(std::regex_match(runs()[0][0], uuid)) << runs()[0][0];
}

TEST_F(Run, IsAnotherOneAfterTheNextStart)
{
    track("1");
    startAgain();
    track("2");
    EXPECT_EQ(runs().size(), 2U);
}

TEST_F(Run, IsAnotherOneForASecondSessionThatIsOpenAtTheSameTime)
{
    track("1");
    m_store.reset();
    track("2");
    EXPECT_EQ(runs().size(), 2U);
}

TEST_F(Run, StaysTheSameWhenTheDatabaseIsReplaced)
{
    track("1");
    const auto before = runs();
    moveDatabase(m_path, m_directory.path("elsewhere"));
    openStore(StorePaths(m_path), {}, std::make_shared<BusyLimit>(std::chrono::seconds(5)));
    track("2");
    EXPECT_EQ(pendingTexts(), std::vector<std::string>{"2"});
    EXPECT_EQ(runs(), before);
}

TEST_F(Run, StaysWithAnEventThatWasDelivered)
{
    track("1");
    const auto before = runs();
    deliver();
    EXPECT_EQ(deliveredTexts(), std::vector<std::string>{"1"});
    EXPECT_EQ(runs(), before);
}

TEST_F(Run, IsNotThatOfTheLibrarysOwnRecords)
{
    m_limits.maxEvents = 1;
    track("1");
    track("2");
    deliver();
    EXPECT_EQ(queryValue(m_path, "SELECT run FROM record WHERE name = 'EventsLost'"), "");
    const std::string body = m_server.requests().at(0).body;
    EXPECT_EQ(body.find("rui.run.id"), body.rfind("rui.run.id"));
    EXPECT_NE(body.find("rui.run.id"), std::string::npos);
}

} // namespace
