// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// What a session does when the machine's administrator or DO_NOT_TRACK forbids it.
#include "Child.h"
#include "Session.h"
#include "StoredRecords.h"
#include "TemporaryDirectory.h"
#include "TestServer.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>

namespace {

using namespace rui::test;

class PolicyOfAMachine : public testing::Test
{
protected:
    void SetUp() override
    {
        unsetenv("DO_NOT_TRACK");
        setenv("RUI_TEST_POLICY", m_policy.c_str(), 1);
    }

    void TearDown() override
    {
        unsetenv("DO_NOT_TRACK");
        unsetenv("RUI_TEST_POLICY");
    }

    void say(const std::string &text) const
    {
        writeFile(m_policy, text);
    }

    void track(const std::string &text = "secret")
    {
        Session session;
        ASSERT_EQ(session.open(m_path), 0);
        ASSERT_EQ(session.track(text), 0);
    }

    int32_t start(const std::string &host = "") const
    {
        Session session;
        return session.open(m_path, host);
    }

    static int32_t policy(const char *product = "2026110001")
    {
        int32_t found = -1;
        EXPECT_EQ(ruiGetPolicy(product, &found), 0);
        return found;
    }

    std::string records() const
    {
        return queryValue(m_path, "SELECT count(*) FROM record");
    }

    std::string everyByte() const
    {
        std::string bytes;
        for (const auto &entry : std::filesystem::directory_iterator(m_path)) {
            bytes += readFile(entry.path().string());
        }
        return bytes;
    }

    Outcome runTool(const std::vector<std::string> &options) const
    {
        std::vector<std::string> arguments = {RUI_TEST_EVENTS_PROGRAM};
        arguments.insert(arguments.end(), options.begin(), options.end());
        arguments.push_back(m_path);
        return runProgram(arguments);
    }

    TemporaryDirectory m_directory;
    const std::string m_path = m_directory.path("data");
    const std::string m_policy = m_directory.path("policy.json");
    TestServer m_server;
};

constexpr const char *noStoring = R"({"storing":"forbidden"})";
constexpr const char *noDelivery = R"({"delivery":"forbidden"})";

TEST_F(PolicyOfAMachine, ThatForbidsStoringLetsNoSessionStartAndDeletesWhatWaits)
{
    track();
    Session running;
    running.open(m_path);
    const std::string client = queryValue(m_path, "SELECT client FROM state");
    say(noStoring);
    EXPECT_EQ(start(), 12);
    EXPECT_EQ(records(), "0");
    // A session of before ends as after a withdrawal, and no record tells of it.
    EXPECT_EQ(running.track("more"), 7);
    running.destroy();
    EXPECT_EQ(start(), 12);
    EXPECT_EQ(everyByte().find("secret"), std::string::npos);
    EXPECT_EQ(everyByte().find(client), std::string::npos);
    EXPECT_EQ(queryValue(m_path, "SELECT count(*) FROM notice"), "0");
}

TEST_F(PolicyOfAMachine, ThatIsLiftedGivesANewClientId)
{
    track();
    const std::string before = queryValue(m_path, "SELECT client FROM state");
    say(noStoring);
    EXPECT_EQ(start(), 12);
    say("{}");
    track("new");
    EXPECT_NE(queryValue(m_path, "SELECT client FROM state"), before);
    EXPECT_EQ(storedTexts(m_path), std::vector<std::string>{"new"});
}

TEST_F(PolicyOfAMachine, LeavesAnInstanceThatMayBeStartedLater)
{
    say(noStoring);
    Session session;
    session.config(m_path);
    session.product();
    EXPECT_EQ(session.start(), 12);
    EXPECT_EQ(session.track("text"), 3);
    EXPECT_EQ(session.stop(), 3);
    say("{}");
    EXPECT_EQ(session.start(), 0);
}

TEST_F(PolicyOfAMachine, ThatForbidsDeliveryKeepsEventsOnThisMachine)
{
    say(noDelivery);
    Session session;
    ASSERT_EQ(session.open(m_path, m_server.url()), 0);
    EXPECT_EQ(session.track("text"), 0);
    EXPECT_EQ(session.stop(), 0);
    EXPECT_EQ(m_server.requests().size(), 0U);
    EXPECT_EQ(records(), "1");
}

TEST_F(PolicyOfAMachine, ThatComesDuringASessionStopsItsDelivery)
{
    Session session;
    ASSERT_EQ(session.open(m_path, m_server.url()), 0);
    say(noDelivery);
    EXPECT_EQ(session.track("text"), 0);
    EXPECT_EQ(session.stop(), 0);
    EXPECT_EQ(m_server.requests().size(), 0U);
}

TEST_F(PolicyOfAMachine, ThatForbidsDeliveryOfAnotherProductInTheDirectoryHoldsForAllOfIt)
{
    track();
    change(m_path, "UPDATE resource SET product = '7'");
    say(R"({"products":{"7":{"delivery":"forbidden"}}})");
    Session session;
    ASSERT_EQ(session.open(m_path, m_server.url()), 0);
    session.track("text");
    session.stop();
    EXPECT_EQ(m_server.requests().size(), 0U);
}

TEST_F(PolicyOfAMachine, ThatMakesNoSenseForbidsEverythingAndDeletesNothing)
{
    track();
    say("{");
    EXPECT_EQ(start(m_server.url()), 12);
    EXPECT_EQ(records(), "1");
    EXPECT_EQ(m_server.requests().size(), 0U);
    EXPECT_EQ(policy(), 1 + 2 + 8);
}

TEST_F(PolicyOfAMachine, LetsConsentBeWithdrawn)
{
    track();
    say("{");
    Session session;
    session.config(m_path, m_server.url());
    session.product();
    EXPECT_EQ(session.optOut(), 0);
    EXPECT_EQ(session.start(), 12);
    EXPECT_EQ(query(m_path, "SELECT name FROM record"), (std::vector<Row>{{"OptOut"}}));
    EXPECT_EQ(m_server.requests().size(), 0U);
}

TEST_F(PolicyOfAMachine, IsToldToWhoAsks)
{
    EXPECT_EQ(policy(), 0);
    say(noDelivery);
    EXPECT_EQ(policy(), 2);
    say(noStoring);
    EXPECT_EQ(policy(), 1 + 2);
    say(R"({"products":{"7":{"storing":"forbidden"}}})");
    EXPECT_EQ(policy(), 0);
    EXPECT_EQ(policy("7"), 1 + 2);
    setenv("DO_NOT_TRACK", "1", 1);
    EXPECT_EQ(policy(), 1 + 2 + 4);
    EXPECT_EQ(policy("7"), 1 + 2);
}

TEST_F(PolicyOfAMachine, IsNotToldIntoNothing)
{
    int32_t found = 5;
    EXPECT_EQ(ruiGetPolicy(nullptr, &found), 2);
    EXPECT_EQ(ruiGetPolicy("\xDF", &found), 2);
    EXPECT_EQ(ruiGetPolicy("1", nullptr), 2);
    EXPECT_EQ(found, 5);
}

TEST_F(PolicyOfAMachine, HoldsForTheToolThatSendsAndHandsOver)
{
    track();
    say(noDelivery);
    const std::string refusal = "rui-events: " + m_policy
                                + ": the administrator of this machine has forbidden to hand events"
                                  " over\n";
    EXPECT_EQ(runTool({"send", "--to", m_server.url()}).errors, refusal);
    const Outcome exported = runTool({"export", "--otlp", m_directory.path("file")});
    EXPECT_EQ(exported.errors, refusal);
    EXPECT_EQ(exported.status, 1);
    EXPECT_FALSE(std::filesystem::exists(m_directory.path("file")));
    EXPECT_EQ(m_server.requests().size(), 0U);
}

TEST_F(PolicyOfAMachine, DoNotTrackLetsNoSessionStartAndDeletesNothing)
{
    track();
    for (const char *value : {"1", "true", "yes"}) {
        setenv("DO_NOT_TRACK", value, 1);
        EXPECT_EQ(start(m_server.url()), 12) << value;
    }
    EXPECT_EQ(records(), "1");
    EXPECT_EQ(m_server.requests().size(), 0U);
    const Outcome sent = runTool({"send", "--to", m_server.url()});
    EXPECT_EQ(sent.errors, "rui-events: DO_NOT_TRACK is set in the environment; unset it to hand"
                           " events over\n");
    EXPECT_EQ(m_server.requests().size(), 0U);
}

TEST_F(PolicyOfAMachine, DoNotTrackThatMeansNoForbidsNothing)
{
    for (const char *value : {"", "0", "false"}) {
        setenv("DO_NOT_TRACK", value, 1);
        EXPECT_EQ(start(), 0) << value;
    }
}

} // namespace
