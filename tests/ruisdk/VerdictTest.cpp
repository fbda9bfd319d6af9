// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// What each status means for the records of a request.
#include "delivery/Verdict.h"

#include <gtest/gtest.h>

#include <set>

namespace {

using namespace rui;
using Kind = Verdict::Kind;

Kind kindOf(int status)
{
    Response response;
    response.status = status;
    return verdictOf(response).kind;
}

struct Rule
{
    const char *words;
    int first;
    int last;
    std::set<int> except;
    Kind kind;
};

class VerdictOfStatus : public testing::TestWithParam<Rule>
{};

TEST_P(VerdictOfStatus, IsWhatItSaysOfTheRecords)
{
    for (int status = GetParam().first; status <= GetParam().last; ++status) {
        if (GetParam().except.count(status) == 0) {
            EXPECT_EQ(kindOf(status), GetParam().kind) << "status " << status;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(
    Statuses, VerdictOfStatus,
    testing::Values(
        Rule{"NoAnswerIsTriedAgain", 0, 0, {}, Kind::Retry},
        Rule{"InformationIsTriedAgain", 100, 199, {}, Kind::Retry},
        Rule{"SuccessIsADelivery", 200, 299, {}, Kind::Delivered},
        Rule{"RedirectIsTriedAgain", 300, 399, {}, Kind::Retry},
        Rule{"BadRequestSpeaksOfARecord", 400, 400, {}, Kind::Malformed},
        Rule{"TooLargeSpeaksOfTheRecords", 413, 413, {}, Kind::TooLarge},
        Rule{"TooManyRequestsIsTriedAgain", 429, 429, {}, Kind::Retry},
        Rule{"OtherMistakesOfTheClientSpeakOfThePlace", 401, 499, {413, 429}, Kind::WrongPlace},
        Rule{"InternalErrorSpeaksOfThePlace", 500, 500, {}, Kind::WrongPlace},
        Rule{"BadGatewayUnavailableAndTimeoutAreTriedAgain", 502, 504, {}, Kind::Retry},
        Rule{"OtherErrorsOfTheServerSpeakOfThePlace", 500, 599, {502, 503, 504}, Kind::WrongPlace}),
    [](const auto &row) { return std::string(row.param.words); });

} // namespace
