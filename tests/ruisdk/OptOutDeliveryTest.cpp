// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// What a collector receives of opt-outs, in order.
#include "Child.h"
#include "Session.h"
#include "StoredRecords.h"
#include "TemporaryDirectory.h"
#include "TestServer.h"

#include <gtest/gtest.h>

#include <csignal>

namespace {

using namespace rui::test;
using Manner = Answer::Manner;
using Received = std::vector<std::vector<std::string>>;

class OptOutDelivery : public testing::Test
{
protected:
    // A session that is delivered to its end.
    void runSession(const std::string &text)
    {
        Session session;
        ASSERT_EQ(session.open(m_path, m_server.url()), 0);
        ASSERT_EQ(session.track(text), 0);
        ASSERT_EQ(session.stop(), 0);
    }

    void withdraw(const std::string &host)
    {
        Session session;
        ASSERT_EQ(session.config(m_path, host), 0);
        ASSERT_EQ(session.product(), 0);
        ASSERT_EQ(session.optOut(), 0);
        ASSERT_EQ(session.start(), 0);
        ASSERT_EQ(session.stop(), 0);
    }

    // For each request, for each record: its text or else its event name, and the client as a
    // letter in the order of appearance, as in "a:text".
    Received received()
    {
        std::map<std::string, std::string> letters;
        Received all;
        for (const Request &request : m_server.requests()) {
            std::vector<std::string> records;
            for (const Row &row : query(m_path, recordsSql(request.body))) {
                const auto letter = std::string(1, static_cast<char>('a' + letters.size()));
                records.push_back(letters.emplace(row[0], letter).first->second + ":" + row[1]);
            }
            all.push_back(records);
        }
        return all;
    }

    static std::string recordsSql(const std::string &body)
    {
        return "SELECT (SELECT json_extract(value, '$.value.stringValue') FROM"
               " json_each(resource.value, '$.resource.attributes')"
               " WHERE json_extract(value, '$.key') = 'rui.client.id'),"
               " coalesce(json_extract(record.value, '$.body.stringValue'),"
               " json_extract(record.value, '$.eventName'))"
               " FROM json_each('"
               + body
               + "', '$.resourceLogs') AS resource,"
                 " json_each(resource.value, '$.scopeLogs[0].logRecords') AS record";
    }

    TemporaryDirectory m_directory;
    const std::string m_path = m_directory.path();
    TestServer m_server;
};

TEST_F(OptOutDelivery, FollowsTheEventsUnderTheSameClient)
{
    runSession("event");
    withdraw(m_server.url());
    EXPECT_EQ(received(), (Received{{"a:event"}, {"a:rui.ruiSDK.OptOut"}}));
}

TEST_F(OptOutDelivery, OfflineItWaitsAndGoesFirstNextTime)
{
    m_server.setDown(true);
    Session session;
    session.open(m_path, m_server.url());
    session.track("withdrawn");
    session.stop();
    withdraw(m_server.url());
    EXPECT_EQ(received(), Received{});
    m_server.setDown(false);
    change(m_path, "UPDATE state SET not_before = 0");
    runSession("renewed");
    EXPECT_EQ(received(), (Received{{"a:rui.ruiSDK.OptOut"}, {"b:renewed"}}));
}

TEST_F(OptOutDelivery, WithoutAServerItWaitsForOne)
{
    Session local;
    local.open(m_path);
    local.track("withdrawn");
    local.stop();
    withdraw("");
    EXPECT_EQ(queryValue(m_path, "SELECT count(*) FROM notice"), "1");
    runSession("renewed");
    EXPECT_EQ(received(), (Received{{"a:rui.ruiSDK.OptOut"}, {"b:renewed"}}));
}

TEST_F(OptOutDelivery, TwiceIsOneRecord)
{
    runSession("event");
    withdraw(m_server.url());
    withdraw(m_server.url());
    EXPECT_EQ(received(), (Received{{"a:event"}, {"a:rui.ruiSDK.OptOut"}}));
}

TEST_F(OptOutDelivery, ConsentThatIsRenewedIsAnotherClient)
{
    runSession("1");
    withdraw(m_server.url());
    runSession("2");
    withdraw(m_server.url());
    EXPECT_EQ(received(),
              (Received{{"a:1"}, {"a:rui.ruiSDK.OptOut"}, {"b:2"}, {"b:rui.ruiSDK.OptOut"}}));
}

TEST_F(OptOutDelivery, SeveralThatWaitGoTogetherEachUnderItsClient)
{
    for (int i = 0; i < 2; ++i) {
        Session session;
        session.open(m_path);
        session.stop();
        withdraw("");
    }
    runSession("3");
    EXPECT_EQ(received(), (Received{{"a:rui.ruiSDK.OptOut", "b:rui.ruiSDK.OptOut"}, {"c:3"}}));
}

TEST_F(OptOutDelivery, RefusalDoesNotLoseItAndNothingPassesIt)
{
    runSession("1");
    for (int i = 0; i < 20; ++i) {
        m_server.add({400, {}, {}, Manner::Reply});
    }
    withdraw(m_server.url());
    Session session;
    session.open(m_path, m_server.url());
    session.track("behind");
    session.stop(1);
    EXPECT_EQ(queryValue(m_path, "SELECT count(*) FROM notice"), "1");
    EXPECT_EQ(queryValue(m_path, "SELECT count(*) FROM event"), "1");
    for (const auto &records : received()) {
        EXPECT_NE(records, std::vector<std::string>{"b:behind"});
    }
}

TEST_F(OptOutDelivery, RunningSessionDeliversItsOwn)
{
    Session session;
    session.open(m_path, m_server.url());
    EXPECT_EQ(session.optOut(), 0);
    EXPECT_TRUE(m_server.waitForRequests(1));
    EXPECT_EQ(received(), (Received{{"a:rui.ruiSDK.OptOut"}}));
}

TEST_F(OptOutDelivery, NothingOfAnOtherProcessFollowsIt)
{
    Child writer({RUI_WRITER_PROGRAM, m_path, "w", "100000000", m_server.url()});
    std::string line;
    ASSERT_TRUE(writer.readLine(line));
    withdraw(m_server.url());
    while (writer.readLine(line) && line.find("failed") == std::string::npos) {
    }
    EXPECT_NE(line.find(" failed 7"), std::string::npos);
    writer.sendSignal(SIGKILL);
    runSession("renewed");
    const auto all = received();
    ASSERT_GE(all.size(), 2U);
    EXPECT_EQ(all[all.size() - 2], std::vector<std::string>{"a:rui.ruiSDK.OptOut"});
    EXPECT_EQ(all.back(), std::vector<std::string>{"b:renewed"});
}

} // namespace
