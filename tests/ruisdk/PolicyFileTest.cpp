// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// What the file of the machine's administrator says.
#include "store/Policy.h"
#include "TemporaryDirectory.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace {

using namespace rui;
using namespace rui::test;

class PolicyFile : public testing::Test
{
protected:
    Policy read(const std::string &text, const std::string &product = "2026110001") const
    {
        writeFile(m_path, text);
        return readPolicyFile(m_path, product);
    }

    TemporaryDirectory m_directory;
    const std::string m_path = m_directory.path("policy.json");
};

TEST_F(PolicyFile, ThatIsMissingForbidsNothing)
{
    const Policy policy = readPolicyFile(m_directory.path("none/policy.json"), "1");
    EXPECT_FALSE(policy.forbidsStoring);
    EXPECT_FALSE(policy.forbidsDelivery);
    EXPECT_FALSE(policy.problem);
}

struct Verdict
{
    const char *rule;
    const char *text;
    bool storing;
    bool delivery;
};

class PolicyVerdict : public PolicyFile, public testing::WithParamInterface<Verdict>
{};

TEST_P(PolicyVerdict, IsThat)
{
    const Policy policy = read(GetParam().text);
    EXPECT_EQ(policy.forbidsStoring, GetParam().storing);
    EXPECT_EQ(policy.forbidsDelivery, GetParam().delivery);
    EXPECT_EQ(policy.problem.value_or(""), "");
    EXPECT_EQ(policy.isProhibitedByAdministrator(), GetParam().storing);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, PolicyVerdict,
    testing::Values(
        Verdict{"NothingSaidForbidsNothing", "{}", false, false},
        Verdict{"ForbiddenStoringForbidsDelivery", R"({"storing":"forbidden"})", true, true},
        Verdict{"ForbiddenStoringForbidsDeliveryThatIsAllowed",
                R"({"storing":"forbidden","delivery":"allowed"})", true, true},
        Verdict{"ForbiddenDeliveryAllowsStoring", R"({"delivery":"forbidden"})", false, true},
        Verdict{"ForThisProduct", R"({"products":{"2026110001":{"storing":"forbidden"}}})", true,
                true},
        Verdict{"ForAnotherProduct", R"({"products":{"1":{"storing":"forbidden"}}})", false, false},
        Verdict{"AProductIsExcepted",
                R"({"storing":"forbidden","products":{"2026110001":{"storing":"allowed"}}})", false,
                false},
        Verdict{"AProductSaysNothingOfStoring",
                R"({"storing":"forbidden","products":{"2026110001":{"delivery":"allowed"}}})", true,
                true},
        Verdict{"OrderDoesNotMatter",
                R"({"products":{"2026110001":{"delivery":"allowed"}},"delivery":"forbidden"})",
                false, false}),
    [](const auto &row) { return std::string(row.param.rule); });

struct Mistake
{
    const char *rule;
    const char *text;
    const char *problem;
};

class PolicyMistake : public PolicyFile, public testing::WithParamInterface<Mistake>
{};

// Nothing is deleted because of it.
TEST_P(PolicyMistake, ForbidsEverythingAndSaysWhatIsWrong)
{
    const Policy policy = read(GetParam().text);
    EXPECT_TRUE(policy.forbidsStoring);
    EXPECT_TRUE(policy.forbidsDelivery);
    EXPECT_FALSE(policy.isProhibitedByAdministrator());
    EXPECT_EQ(policy.problem.value_or(""),
              m_path + ": " + GetParam().problem
                  + "; nothing is stored or sent until the administrator has mended it");
}

INSTANTIATE_TEST_SUITE_P(
    Texts, PolicyMistake,
    testing::Values(
        Mistake{"Empty", "", "is no JSON"}, Mistake{"NoJson", "storing: forbidden", "is no JSON"},
        Mistake{"CutOff", R"({"storing":"forb)", "is no JSON"},
        Mistake{"NoUtf8", "{\"storing\":\"\xDF\"}", "is not UTF-8"},
        Mistake{"NoObject", R"(["storing"])", "'$' is no object"},
        Mistake{"UnknownMember", R"({"collecting":"forbidden"})", "'collecting' is not known"},
        Mistake{"UnknownMemberOfAProduct", R"({"products":{"7":{"store":"forbidden"}}})",
                "'store' is not known"},
        Mistake{"UnknownVerdict", R"({"storing":"no"})",
                R"('storing' is neither "allowed" nor "forbidden")"},
        Mistake{"VerdictThatIsNoText", R"({"delivery":false})",
                R"('delivery' is neither "allowed" nor "forbidden")"},
        Mistake{"Twice", R"({"storing":"forbidden","storing":"allowed"})",
                "'storing' stands there twice"},
        Mistake{"ProductTwice",
                R"({"products":{"2026110001":{"storing":"forbidden"},"2026110001":{}}})",
                "'2026110001' stands there twice"},
        Mistake{"ProductsTwice", R"({"products":{},"products":{}})",
                "'products' stands there twice"},
        Mistake{"ProductsThatAreNoObject", R"({"products":["1"]})", "'products' is no object"}),
    [](const auto &row) { return std::string(row.param.rule); });

TEST_F(PolicyFile, ThatIsTooLargeForbidsEverything)
{
    const Policy policy = read("{" + std::string(70000, ' ') + "}");
    EXPECT_TRUE(policy.forbidsStoring);
    EXPECT_NE(policy.problem.value_or("").find("is larger than 64 KiB"), std::string::npos);
}

TEST_F(PolicyFile, ThatIsNoFileForbidsEverythingAndIsNotWaitedFor)
{
    ASSERT_EQ(mkfifo(m_path.c_str(), 0600), 0);
    EXPECT_TRUE(readPolicyFile(m_path, "1").forbidsStoring);
    EXPECT_TRUE(readPolicyFile(m_directory.path(), "1").forbidsStoring);
}

TEST_F(PolicyFile, WithAProductWhoseNameHasMarksIsRead)
{
    EXPECT_TRUE(
        read(R"({"products":{"a.b\"[0]":{"storing":"forbidden"}}})", "a.b\"[0]").forbidsStoring);
}

TEST(PolicyPath, IsFixedInTheLibrary)
{
    EXPECT_STREQ(policyPath(), "/etc/ruisdk/policy.json");
}

} // namespace
