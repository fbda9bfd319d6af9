// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// A server that asks for a pause: how long it is, and that a fleet does not come back at once.
#include "delivery/Backoff.h"
#include "DeliveryFixture.h"

#include <algorithm>

namespace {

using namespace rui;
using namespace rui::test;
using Manner = Answer::Manner;
using Texts = std::vector<std::string>;

struct After
{
    const char *rule;
    const char *header;
    double seconds; // with a jitter of one half
};

class RetryAfter : public DeliveryFixture, public testing::WithParamInterface<After>
{};

TEST_P(RetryAfter, IsKeptToAndSpreadOverHalfOfItselfAndAtLeastOneSecond)
{
    track("kept");
    for (const int status : {429, 503}) {
        m_server.add(
            {status, std::string("Retry-After: ") + GetParam().header + "\r\n", {}, Manner::Reply});
        EXPECT_EQ(deliver().kind, Step::Kind::Failed);
        EXPECT_EQ(secondsUntilNextTry(), GetParam().seconds);
        EXPECT_EQ(deliver().kind, Step::Kind::NotDue);
        change(m_path, "UPDATE state SET not_before = 0, failures = 0");
    }
    EXPECT_EQ(pendingTexts(), Texts{"kept"});
}

INSTANTIATE_TEST_SUITE_P(
    Forms, RetryAfter,
    testing::Values(After{"Seconds", "120", 120 + 30}, After{"OneSecond", "1", 1 + 0.5},
                    After{"ZeroSecondsIsTheOrdinaryWait", "0", 0.5},
                    After{"Date", "Fri, 20 Nov 2026 18:40:57 GMT", 120 + 30},
                    After{"DateThatHasPassedIsTheOrdinaryWait", "Fri, 20 Nov 2026 18:00:00 GMT",
                          0.5},
                    After{"MoreSecondsThanADay", "90000", 86400 + 21600},
                    After{"DateAfterADay", "Mon, 23 Nov 2026 18:40:57 GMT", 86400 + 21600},
                    After{"MoreSecondsThanANumberHolds", "99999999999999999999999", 86400 + 21600}),
    [](const auto &row) { return std::string(row.param.rule); });

class RetryAfterOfAFleet : public DeliveryFixture
{
protected:
    // When each of so many clients comes back, in seconds from now.
    std::vector<double> comeBack(std::size_t clients, const std::string &header)
    {
        m_jitter = randomJitter;
        track("kept");
        std::vector<double> times;
        while (times.size() < clients) {
            m_server.add({503, "Retry-After: " + header + "\r\n", {}, Manner::Reply});
            deliver();
            times.push_back(secondsUntilNextTry());
            change(m_path, "UPDATE state SET not_before = 0, failures = 0");
        }
        std::sort(times.begin(), times.end());
        return times;
    }
};

TEST_F(RetryAfterOfAFleet, IsSpreadAndNobodyComesEarly)
{
    const std::vector<double> times = comeBack(30, "60");
    EXPECT_GE(times.front(), 60);
    EXPECT_LE(times.back(), 90);
    // Thirty random times in thirty seconds: all of them within ten is one in ten million million.
    EXPECT_GE(times.back() - times.front(), 10);
}

TEST_F(RetryAfterOfAFleet, IsSpreadForADateThatIsTheSameForAll)
{
    const std::vector<double> times = comeBack(30, "Fri, 20 Nov 2026 18:39:57 GMT");
    EXPECT_GE(times.front(), 60);
    EXPECT_GE(times.back() - times.front(), 10);
}

} // namespace
