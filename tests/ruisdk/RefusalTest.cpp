// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// Servers that refuse: what says something about a record, and what only about the place.
#include "DeliveryFixture.h"

namespace {

using namespace rui;
using namespace rui::test;
using Manner = Answer::Manner;
using Texts = std::vector<std::string>;
using Rows = std::vector<Row>;
using Requests = std::vector<std::vector<std::string>>;

class Refusal : public DeliveryFixture
{
protected:
    void trackNumbers(int count)
    {
        for (int i = 1; i <= count; ++i) {
            track(std::to_string(i));
        }
    }

    void answer(std::initializer_list<int> statuses)
    {
        for (const int status : statuses) {
            m_server.add({status, {}, {}, Manner::Reply});
        }
    }

    // Answers so to every request that carries this text, and takes the others.
    void refuseText(const std::string &text, int status)
    {
        m_server.setRule([=](const Request &request) {
            const bool isIn = request.body.find("\"" + text + "\"") != std::string::npos;
            return Answer{isIn ? status : 200, {}, "{}", Manner::Reply};
        });
    }

    void refuseAll(int status)
    {
        m_server.setRule([=](const Request &) { return Answer{status, {}, {}, Manner::Reply}; });
    }
};

class WrongPlace : public Refusal, public testing::WithParamInterface<int>
{};

TEST_P(WrongPlace, KeepsTheBacklogAndIsTriedAgainSlowly)
{
    trackNumbers(2);
    for (const double seconds : {30.0, 60.0, 120.0, 240.0, 480.0, 960.0, 1800.0, 1800.0}) {
        answer({GetParam()});
        EXPECT_EQ(deliver().kind, Step::Kind::Failed);
        EXPECT_EQ(secondsUntilNextTry(), seconds);
        m_clock.time += static_cast<std::int64_t>(seconds * 1e9) - 1;
        EXPECT_EQ(deliver().kind, Step::Kind::NotDue);
        m_clock.time += 1;
    }
    EXPECT_EQ(m_server.requests().size(), 8U);
    EXPECT_EQ(pendingTexts(), (Texts{"1", "2"}));
    EXPECT_EQ(losses(), Rows{});
    EXPECT_EQ(deliver().kind, Step::Kind::Idle);
    EXPECT_EQ(deliveredTexts(), (Texts{"1", "2"}));
}

INSTANTIATE_TEST_SUITE_P(Statuses, WrongPlace,
                         testing::Values(401, 402, 403, 404, 405, 406, 407, 408, 409, 410, 411, 412,
                                         414, 415, 421, 422, 426, 431, 451, 499, 500, 501, 505, 511,
                                         599));

class BadRecord : public Refusal, public testing::WithParamInterface<int>
{
protected:
    Rows lost(int count) const
    {
        return {{GetParam() == 413 ? "requestSize" : "rejected", std::to_string(count)}};
    }
};

TEST_P(BadRecord, IsFoundByHalvingAndDroppedAlone)
{
    for (const int bad : {1, 2, 37, 99, 100, 101, 250}) {
        refuseText("bad", GetParam());
        for (int i = 1; i <= 250; ++i) {
            track(i == bad ? "bad" : std::to_string(i));
        }
        deliver();
        // When the last one is the bad one, the next one shows that the server takes others.
        track("next");
        m_clock.time += 3600 * nanosecondsPerSecond;
        EXPECT_EQ(deliver().kind, Step::Kind::Idle) << bad;
        EXPECT_EQ(pendingTexts(), Texts{}) << bad;
        EXPECT_EQ(losses(), lost(1)) << bad;
        EXPECT_EQ(queryValue(m_path, "SELECT delivered FROM state"), "250") << bad;
        change(m_path, "DELETE FROM loss; UPDATE state SET delivered = 0");
    }
}

TEST_P(BadRecord, IsFoundWithFewRequests)
{
    refuseText("bad", GetParam());
    for (int i = 1; i <= 1000; ++i) {
        track(i == 500 ? "bad" : std::to_string(i));
    }
    deliver();
    // 10 without the bad one; a halving of 100 takes 7, and its parts grow again afterwards.
    EXPECT_LE(m_server.requests().size(), 40U);
    EXPECT_EQ(losses(), lost(1));
}

TEST_P(BadRecord, NeighboursAreAllDroppedAndNobodyElse)
{
    refuseText("bad", GetParam());
    for (const char *text : {"1", "bad", "bad", "bad", "2", "bad", "3"}) {
        track(text);
    }
    deliver();
    EXPECT_EQ(query(m_path, "SELECT text FROM delivered WHERE name = 'N'"),
              (Rows{{"1"}, {"2"}, {"3"}}));
    EXPECT_EQ(losses(), lost(4));
    EXPECT_EQ(pendingTexts(), Texts{});
}

TEST_P(BadRecord, ThatComesFirstIsDroppedOnceTheServerHasTakenAnother)
{
    refuseText("bad", GetParam());
    track("bad");
    EXPECT_EQ(deliver().kind, Step::Kind::Failed);
    EXPECT_EQ(pendingTexts(), Texts{"bad"});
    track("good");
    m_clock.time += 3600 * nanosecondsPerSecond;
    EXPECT_EQ(deliver().kind, Step::Kind::Idle);
    EXPECT_EQ(deliveredTexts(), Texts{"good"});
    EXPECT_EQ(losses(), lost(1));
}

TEST_P(BadRecord, IsNotToldFromAServerThatRefusesEverything)
{
    trackNumbers(300);
    refuseAll(GetParam());
    for (int hour = 0; hour < 20; ++hour) {
        EXPECT_EQ(deliver().kind, Step::Kind::Failed);
        m_clock.time += 3600 * nanosecondsPerSecond;
    }
    EXPECT_EQ(pendingTexts().size(), 300U);
    EXPECT_EQ(losses(), Rows{});
    EXPECT_LE(m_server.requests().size(), 20U * 100U);
    m_server.setRule({});
    EXPECT_EQ(deliver().kind, Step::Kind::Idle);
    EXPECT_EQ(queryValue(m_path, "SELECT delivered FROM state"), "300");
    EXPECT_EQ(losses(), Rows{});
}

INSTANTIATE_TEST_SUITE_P(Statuses, BadRecord, testing::Values(400, 413));

TEST_F(Refusal, OptOutThatIsRefusedForGoodIsKeptAndLetsOthersPass)
{
    refuseText("rui.ruiSDK.OptOut", 400);
    store().withdraw({"1", "app", "", "", "", ""});
    m_store.reset();
    track("new consent");
    deliver();
    EXPECT_EQ(deliveredTexts(), Texts{"new consent"});
    EXPECT_EQ(query(m_path, "SELECT kind FROM notice"), (Rows{{"optOut"}}));
    m_clock.time += 3600 * nanosecondsPerSecond;
    track("later");
    deliver();
    EXPECT_EQ(deliveredTexts(), (Texts{"new consent", "later"}));
    m_server.setRule({});
    m_clock.time += 3600 * nanosecondsPerSecond;
    EXPECT_EQ(deliver().kind, Step::Kind::Idle);
    EXPECT_EQ(query(m_path, "SELECT kind FROM notice"), Rows{});
    EXPECT_EQ(losses(), Rows{});
}

TEST_F(Refusal, OptOutThatIsRefusedIsNotAskedForInEveryRequest)
{
    refuseText("rui.ruiSDK.OptOut", 400);
    store().withdraw({"1", "app", "", "", "", ""});
    m_store.reset();
    for (int i = 0; i < 20; ++i) {
        track(std::to_string(i));
        deliver();
        m_clock.time += nanosecondsPerSecond;
    }
    EXPECT_LE(m_server.requests().size(), 22U);
}

TEST_F(Refusal, TooLargeRequestIsHalvedUntilItPasses)
{
    for (const char *text : {"1", "2", "3", "4", "5"}) {
        track(text);
    }
    m_server.add({413, {}, {}, Manner::Reply});
    m_server.add({413, {}, {}, Manner::Reply});
    EXPECT_EQ(deliver().kind, Step::Kind::Idle);
    EXPECT_EQ(sentTexts(),
              (Requests{{"1", "2", "3", "4", "5"}, {"1", "2"}, {"1"}, {"2", "3"}, {"4", "5"}}));
    EXPECT_EQ(losses(), Rows{});
}

TEST_F(Refusal, SingleEventThatIsTooLargeIsDroppedAndCounted)
{
    track("1");
    track("2");
    m_server.add({413, {}, {}, Manner::Reply});
    m_server.add({413, {}, {}, Manner::Reply});
    deliver();
    EXPECT_EQ(deliveredTexts().front(), "2");
    EXPECT_EQ(losses(), (Rows{{"requestSize", "1"}}));
}

} // namespace
