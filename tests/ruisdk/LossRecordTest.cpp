// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// How a collector learns of what was lost.
#include "core/Failure.h"
#include "DeliveryFixture.h"

namespace {

using namespace rui;
using namespace rui::test;
using Manner = Answer::Manner;
using Rows = std::vector<Row>;
using Requests = std::vector<std::vector<std::string>>;

class LossRecord : public DeliveryFixture
{
protected:
    // Pushes two events out.
    void loseTwo()
    {
        m_limits.maxEvents = 1;
        for (const char *text : {"1", "2", "3"}) {
            track(text);
        }
    }

    Rows counters()
    {
        return query(m_path, "SELECT reason, lost, told FROM loss ORDER BY reason");
    }
};

TEST_F(LossRecord, CountsByReasonAndGoesAlongWithEvents)
{
    loseTwo();
    try {
        track(std::string(2000000, 'x'));
    } catch (const Failure &) {
    }
    deliver();
    EXPECT_EQ(sentTexts(), (Requests{{"3", R"({"EventCategory":"ruiSDK","EventName":"EventsLost",)"
                                           R"("eventSize":1,"maxEvents":2})"}}));
    EXPECT_EQ(counters(), (Rows{{"eventSize", "0", "1"}, {"maxEvents", "0", "2"}}));
}

TEST_F(LossRecord, IsToldOnce)
{
    loseTwo();
    deliver();
    track("4");
    deliver();
    ASSERT_EQ(sentTexts().size(), 2U);
    EXPECT_EQ(sentTexts()[1], std::vector<std::string>{"4"});
}

TEST_F(LossRecord, IsRepeatedUnchangedUntilItArrives)
{
    loseTwo();
    m_server.add({503, {}, {}, Manner::Reply});
    deliver();
    track("4");
    EXPECT_EQ(counters(), (Rows{{"maxEvents", "1", "2"}}));
    m_clock.time += 3600 * nanosecondsPerSecond;
    deliver();
    const std::string first =
        R"({"EventCategory":"ruiSDK","EventName":"EventsLost","maxEvents":2})";
    EXPECT_EQ(sentTexts()[1], (std::vector<std::string>{first, "4"}));
}

TEST_F(LossRecord, ThatIsRefusedIsCountedAgainAndToldWithTheNextEvent)
{
    loseTwo();
    for (const int status : {400, 200, 400, 400, 400}) {
        m_server.add({status, {}, {}, Manner::Reply});
    }
    EXPECT_EQ(deliver().kind, Step::Kind::Failed);
    track("4");
    m_clock.time += 3600 * nanosecondsPerSecond;
    EXPECT_EQ(deliver().kind, Step::Kind::Idle);
    EXPECT_EQ(counters(), (Rows{{"maxEvents", "2", "0"}}));
    track("5");
    deliver();
    EXPECT_EQ(sentTexts().back(),
              (std::vector<std::string>{
                  "5", R"({"EventCategory":"ruiSDK","EventName":"EventsLost","maxEvents":2})"}));
}

TEST_F(LossRecord, ServerThatRefusesEverythingIsNotToldOfEachRefusal)
{
    loseTwo();
    m_server.setRule([](const Request &) { return Answer{400, {}, {}, Manner::Reply}; });
    for (int hour = 0; hour < 10; ++hour) {
        EXPECT_EQ(deliver().kind, Step::Kind::Failed);
        m_clock.time += 3600 * nanosecondsPerSecond;
    }
    EXPECT_EQ(counters(), (Rows{{"maxEvents", "0", "2"}}));
    EXPECT_EQ(queryValue(m_path, "SELECT count(*) FROM notice"), "1");
}

TEST_F(LossRecord, WaitsForAnEventToTravelWith)
{
    loseTwo();
    change(m_path, "DELETE FROM event");
    EXPECT_EQ(deliver().kind, Step::Kind::Idle);
    EXPECT_TRUE(Outbox(*m_database, m_limits).next(100, 1000000, m_clock.time).keys.empty());
    EXPECT_EQ(m_server.requests().size(), 0U);
    EXPECT_EQ(counters(), (Rows{{"maxEvents", "2", "0"}}));
}

TEST_F(LossRecord, IsNeverPushedOut)
{
    loseTwo();
    m_server.add({503, {}, {}, Manner::Reply});
    deliver();
    track("4");
    track("5");
    EXPECT_EQ(queryValue(m_path, "SELECT count(*) FROM notice"), "1");
    EXPECT_EQ(queryValue(m_path, "SELECT group_concat(text) FROM event"), "5");
}

TEST_F(LossRecord, EventsThatCouldNotBeStoredAreCountedWithTheNextOne)
{
    track("1");
    Database other(databasePath(m_path), Database::Access::ReadWrite,
                   std::make_shared<BusyLimit>(std::chrono::milliseconds(1)));
    m_store.reset();
    m_store.emplace(StorePaths(m_path), OpeningOptions{}, m_limits, m_clock,
                    std::make_shared<BusyLimit>(std::chrono::milliseconds(1)));
    m_store->join({"1", "app", "", "", "", ""});
    {
        const Transaction holding(other);
        EXPECT_THROW(track("lost"), Failure);
        EXPECT_THROW(track("lost"), Failure);
    }
    track("2");
    EXPECT_EQ(counters(), (Rows{{"storage", "2", "0"}}));
}

} // namespace
