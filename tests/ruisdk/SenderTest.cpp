// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// What becomes of the records after each kind of answer, and when the next try comes.
#include "DeliveryFixture.h"

namespace {

using namespace rui;
using namespace rui::test;
using Manner = Answer::Manner;
using Texts = std::vector<std::string>;
using Rows = std::vector<Row>;
using Requests = std::vector<std::vector<std::string>>;

class Sending : public DeliveryFixture
{
protected:
    // Lets the clock run to the next try.
    void waitForNextTry()
    {
        m_clock.time = std::stoll(queryValue(m_path, "SELECT not_before FROM state"));
    }
};

TEST_F(Sending, DeliveredEventsStayReadableAndAreMarked)
{
    track("1");
    track("2");
    EXPECT_EQ(deliver().kind, Step::Kind::Idle);
    EXPECT_EQ(query(m_path, "SELECT seq, state, text FROM record ORDER BY seq"),
              (Rows{{"1", "delivered", "1"}, {"2", "delivered", "2"}}));
    EXPECT_EQ(queryValue(m_path, "SELECT delivered FROM state"), "2");
    EXPECT_EQ(losses(), Rows{});
}

TEST_F(Sending, NothingWaitingIsNoRequest)
{
    EXPECT_EQ(deliver().kind, Step::Kind::Idle);
    EXPECT_EQ(m_server.requests().size(), 0U);
}

TEST_F(Sending, HundredRecordsGoInOneRequest)
{
    for (int i = 0; i < 250; ++i) {
        track(std::to_string(i));
    }
    deliver();
    const auto sent = sentTexts();
    ASSERT_EQ(sent.size(), 3U);
    EXPECT_EQ(sent[0].size(), 100U);
    EXPECT_EQ(sent[1].size(), 100U);
    EXPECT_EQ(sent[2].size(), 50U);
    EXPECT_EQ(sent[2].back(), "249");
}

TEST_F(Sending, RequestIsAtMostOneMebibyte)
{
    for (int i = 0; i < 5; ++i) {
        track(std::string(400000, static_cast<char>('a' + i)));
    }
    deliver();
    ASSERT_EQ(m_server.requests().size(), 3U);
    for (const Request &request : m_server.requests()) {
        EXPECT_LE(request.body.size(), 1048576U);
    }
}

TEST_F(Sending, LargestEventGoesAlone)
{
    track("small");
    track(std::string(1048574, '"'));
    track("small");
    deliver();
    ASSERT_EQ(m_server.requests().size(), 3U);
    EXPECT_EQ(deliveredTexts().size(), 3U);
}

TEST_F(Sending, LastThousandDeliveredEventsAreKept)
{
    m_limits.deliveredEvents = 3;
    for (const char *text : {"1", "2", "3", "4", "5"}) {
        track(text);
    }
    deliver();
    EXPECT_EQ(deliveredTexts(), (Texts{"3", "4", "5"}));
    EXPECT_EQ(queryValue(m_path, "SELECT delivered FROM state"), "5");
}

TEST_F(Sending, DeliveredEventsAreKeptUpToTheirBytes)
{
    m_limits.deliveredBytes = 10;
    for (const char *text : {"1111", "2222", "3333", "4444"}) {
        track(text);
    }
    deliver();
    EXPECT_EQ(deliveredTexts(), (Texts{"3333", "4444"}));
}

TEST_F(Sending, NumbersGoOnAfterEverythingWasDelivered)
{
    track("1");
    track("2");
    deliver();
    track("3");
    EXPECT_EQ(queryValue(m_path, "SELECT seq FROM event"), "3");
}

struct Temporary
{
    const char *rule;
    Answer answer;
};

class TemporaryFailure : public Sending, public testing::WithParamInterface<Temporary>
{};

TEST_P(TemporaryFailure, KeepsEverythingAndTriesAgainWithFullJitterUpToFiveMinutes)
{
    m_deliveryLimits.transferTimeout = std::chrono::milliseconds(100);
    track("kept");
    for (const double seconds : {0.5, 1.0, 2.0, 4.0, 8.0, 16.0, 32.0, 64.0, 128.0, 150.0, 150.0}) {
        m_server.add(GetParam().answer);
        EXPECT_EQ(deliver().kind, Step::Kind::Failed);
        EXPECT_EQ(secondsUntilNextTry(), seconds);
        m_clock.time += static_cast<std::int64_t>(seconds * 1e9) - 1;
        EXPECT_EQ(deliver().kind, Step::Kind::NotDue);
        m_clock.time += 1;
    }
    EXPECT_EQ(pendingTexts(), Texts{"kept"});
    EXPECT_EQ(losses(), Rows{});
    EXPECT_EQ(m_server.requests().size(), 11U);
    EXPECT_EQ(deliver().kind, Step::Kind::Idle);
    EXPECT_EQ(deliveredTexts(), Texts{"kept"});
    EXPECT_EQ(query(m_path, "SELECT not_before, failures FROM state"), (Rows{{"0", "0"}}));
}

INSTANTIATE_TEST_SUITE_P(
    Answers, TemporaryFailure,
    testing::Values(
        Temporary{"ConnectionIsReset", {0, {}, {}, Manner::Reset}},
        Temporary{"ServerHangs", {0, {}, {}, Manner::Hang}},
        Temporary{"Status429", {429, {}, {}, Manner::Reply}},
        Temporary{"Status502", {502, {}, {}, Manner::Reply}},
        Temporary{"Status503", {503, {}, {}, Manner::Reply}},
        Temporary{"Status504", {504, {}, {}, Manner::Reply}},
        Temporary{"RedirectToAnotherHost",
                  {307, "Location: http://127.0.0.2:1/v1/logs\r\n", {}, Manner::Reply}},
        Temporary{"RedirectThatDropsTheBody", {302, "Location: /elsewhere\r\n", {}, Manner::Reply}},
        Temporary{"RetryAfterThatIsRubbish", {503, "Retry-After: soon\r\n", {}, Manner::Reply}}),
    [](const auto &row) { return std::string(row.param.rule); });

TEST_F(Sending, ScheduleIsKeptAcrossARestart)
{
    track("kept");
    m_server.add({503, "Retry-After: 60\r\n", {}, Manner::Reply});
    deliver();
    m_sender.reset();
    EXPECT_EQ(deliver().kind, Step::Kind::NotDue);
    waitForNextTry();
    EXPECT_EQ(deliver().kind, Step::Kind::Idle);
    EXPECT_EQ(m_server.requests().size(), 2U);
}

TEST_F(Sending, ScheduleOfAClockThatWasSetBackIsForgotten)
{
    track("kept");
    m_server.add({503, "Retry-After: 60\r\n", {}, Manner::Reply});
    deliver();
    m_clock.time = startTime - 365 * 86400 * nanosecondsPerSecond;
    EXPECT_EQ(deliver().kind, Step::Kind::Idle);
    EXPECT_EQ(deliveredTexts(), Texts{"kept"});
}

TEST_F(Sending, ClockThatWasSetBackByAMinuteDoesNotHoldUpARetryForAsLong)
{
    track("kept");
    m_server.add({503, {}, {}, Manner::Reply});
    deliver();
    m_clock.jump(-60 * nanosecondsPerSecond);
    EXPECT_EQ(deliver().kind, Step::Kind::Idle);
    EXPECT_EQ(deliveredTexts(), Texts{"kept"});
}

struct PartialAnswer
{
    const char *rule;
    const char *body;
    int rejected;
};

class PartialSuccess : public Sending, public testing::WithParamInterface<PartialAnswer>
{};

TEST_P(PartialSuccess, IsNotRetriedAndItsRejectsAreCounted)
{
    track("1");
    track("2");
    m_server.add({200, {}, GetParam().body, Manner::Reply});
    EXPECT_EQ(deliver().kind, Step::Kind::Idle);
    EXPECT_EQ(m_server.requests().size(), 1U);
    EXPECT_EQ(pendingTexts(), Texts{});
    const int rejected = GetParam().rejected;
    EXPECT_EQ(losses(),
              rejected == 0 ? Rows{} : (Rows{{"partlyRejected", std::to_string(rejected)}}));
    EXPECT_EQ(queryValue(m_path, "SELECT delivered FROM state"), std::to_string(2 - rejected));
}

INSTANTIATE_TEST_SUITE_P(
    Bodies, PartialSuccess,
    testing::Values(
        PartialAnswer{"CountAsAString", R"({"partialSuccess":{"rejectedLogRecords":"1"}})", 1},
        PartialAnswer{"CountAsANumber", R"({"partialSuccess":{"rejectedLogRecords":2}})", 2},
        PartialAnswer{"MoreThanWereSent", R"({"partialSuccess":{"rejectedLogRecords":"99"}})", 2},
        PartialAnswer{"NegativeCount", R"({"partialSuccess":{"rejectedLogRecords":"-1"}})", 0},
        PartialAnswer{"MessageAlone", R"({"partialSuccess":{"errorMessage":"slow down"}})", 0},
        PartialAnswer{"EmptyObject", "{}", 0}, PartialAnswer{"EmptyBody", "", 0},
        PartialAnswer{"Rubbish", "<html>thank you</html>", 0},
        PartialAnswer{"AnotherType", R"({"partialSuccess":[1,2]})", 0}),
    [](const auto &row) { return std::string(row.param.rule); });

TEST_F(Sending, SlowAnswerIsWaitedFor)
{
    track("1");
    m_server.add({200, {}, "{}", Manner::Slow});
    EXPECT_EQ(deliver().kind, Step::Kind::Idle);
    EXPECT_EQ(deliveredTexts(), Texts{"1"});
}

TEST_F(Sending, EndlessAnswerIsReadInPartAndTakenByItsStatus)
{
    m_deliveryLimits.responseBytes = 1000;
    track("1");
    m_server.add({200, {}, std::string(10 * 1024 * 1024, 'x'), Manner::Reply});
    EXPECT_EQ(deliver().kind, Step::Kind::Idle);
    EXPECT_EQ(deliveredTexts(), Texts{"1"});
}

TEST_F(Sending, RedirectWithinTheServerIsFollowedWithTheBody)
{
    track("1");
    m_server.add({308, "Location: /moved/v1/logs\r\n", {}, Manner::Reply});
    EXPECT_EQ(deliver().kind, Step::Kind::Idle);
    ASSERT_EQ(m_server.requests().size(), 2U);
    EXPECT_EQ(m_server.requests()[1].line, "POST /moved/v1/logs HTTP/1.1");
    EXPECT_EQ(sentTexts(), (Requests{{"1"}, {"1"}}));
}

TEST_F(Sending, RedirectToAnotherServerIsNotFollowed)
{
    const TestServer other;
    track("1");
    for (const int status : {301, 302, 303, 307, 308}) {
        m_server.add({status, "Location: " + other.url() + "/v1/logs\r\n", {}, Manner::Reply});
        EXPECT_EQ(deliver().kind, Step::Kind::Failed);
        waitForNextTry();
    }
    EXPECT_EQ(other.requests().size(), 0U);
    EXPECT_EQ(pendingTexts(), Texts{"1"});
}

TEST_F(Sending, EndlessRedirectsAreGivenUpForNow)
{
    track("1");
    for (int i = 0; i < 4; ++i) {
        m_server.add({307, "Location: /again\r\n", {}, Manner::Reply});
    }
    EXPECT_EQ(deliver().kind, Step::Kind::Failed);
    EXPECT_EQ(m_server.requests().size(), 4U);
    EXPECT_EQ(pendingTexts(), Texts{"1"});
}

TEST_F(Sending, AnotherSenderIsLeftToItsWork)
{
    track("1");
    sender();
    FileLock other(StorePaths(m_path).senderLock());
    other.tryLock();
    const Step step = deliver();
    EXPECT_EQ(step.kind, Step::Kind::OtherSends);
    EXPECT_EQ(step.due, startTime + nanosecondsPerSecond);
    EXPECT_EQ(m_server.requests().size(), 0U);
    other.unlock();
    EXPECT_EQ(deliver().kind, Step::Kind::Idle);
    EXPECT_EQ(deliveredTexts(), Texts{"1"});
}

TEST_F(Sending, LockIsGivenBackAfterEveryStep)
{
    FileLock other(StorePaths(m_path).senderLock());
    for (const int status : {200, 503, 404}) {
        track("1");
        m_server.add({status, {}, {}, Manner::Reply});
        sender().step();
        EXPECT_TRUE(other.tryLock()) << status;
        other.unlock();
    }
}

TEST_F(Sending, DefaultTimesAreThePublishedOnes)
{
    const DeliveryLimits limits;
    EXPECT_EQ(limits.connectTimeout, std::chrono::seconds(10));
    EXPECT_EQ(limits.transferTimeout, std::chrono::seconds(60));
    EXPECT_EQ(limits.maxRetryAfter, std::chrono::hours(24));
    EXPECT_EQ(limits.backoff.max, std::chrono::minutes(5));
    EXPECT_EQ(limits.slowBackoff.max, std::chrono::hours(1));
}

TEST_F(Sending, CancelledRequestSaysNothingAboutTheServer)
{
    track("1");
    m_server.add({0, {}, {}, Manner::Hang});
    sender();
    std::thread canceller([this] {
        m_server.waitForRequests(1);
        m_transport->cancel();
    });
    EXPECT_EQ(deliver().kind, Step::Kind::Failed);
    canceller.join();
    EXPECT_EQ(query(m_path, "SELECT not_before, failures FROM state"), (Rows{{"0", "0"}}));
    EXPECT_EQ(pendingTexts(), Texts{"1"});
}

TEST_F(Sending, RepeatedRequestCarriesTheSameIds)
{
    track("1");
    m_server.add({0, {}, {}, Manner::Reset});
    deliver();
    waitForNextTry();
    deliver();
    ASSERT_EQ(m_server.requests().size(), 2U);
    EXPECT_EQ(m_server.requests()[0].body, m_server.requests()[1].body);
}

} // namespace
