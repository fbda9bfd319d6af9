// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// What a program may set beside the calls of a session: how the server is reached, and when.
#include "Child.h"
#include "Session.h"
#include "StoredRecords.h"
#include "TemporaryDirectory.h"
#include "TestServer.h"

#include <gtest/gtest.h>

#include <thread>

namespace {

using namespace rui::test;

class Embedding : public testing::Test
{
protected:
    int32_t open(Session &session)
    {
        return session.open(m_path, m_server.url());
    }

    static int32_t paused(const Session &session)
    {
        int32_t value = -1;
        EXPECT_EQ(ruiIsDeliveryPaused(session.handle(), &value), 0);
        return value;
    }

    TemporaryDirectory m_directory;
    const std::string m_path = m_directory.path("data");
    TestServer m_server;
    Session m_session;
};

TEST_F(Embedding, HeaderIsSentWithEachRequestAndWrittenNowhere)
{
    EXPECT_EQ(ruiSetRequestHeader(m_session.handle(), "authorization", "Bearer old"), 0);
    EXPECT_EQ(ruiSetRequestHeader(m_session.handle(), "Authorization", "Bearer 5f2c"), 0);
    EXPECT_EQ(ruiSetRequestHeader(m_session.handle(), "X-Gone", "1"), 0);
    EXPECT_EQ(ruiSetRequestHeader(m_session.handle(), "X-Gone", ""), 0);
    open(m_session);
    m_session.track("text");
    EXPECT_EQ(ruiFlush(m_session.handle(), 60000), 0);
    const auto headers = m_server.requests().at(0).headers;
    EXPECT_EQ(headers.at("authorization"), "Bearer 5f2c");
    EXPECT_EQ(headers.count("x-gone"), 0U);
    for (const auto &entry : std::filesystem::directory_iterator(m_path)) {
        EXPECT_EQ(readFile(entry.path().string()).find("5f2c"), std::string::npos);
    }
}

TEST_F(Embedding, HeaderThatHttpDoesNotAllowIsRefused)
{
    for (const char *name : {"", "a b", "a:b", "a\r\nb", "Host", "content-TYPE", "Expect"}) {
        EXPECT_EQ(ruiSetRequestHeader(m_session.handle(), name, "v"), 2) << name;
    }
    for (const char *value : {"a\r\nX: y", "a\n", "\x7F", "\xDF"}) {
        EXPECT_EQ(ruiSetRequestHeader(m_session.handle(), "X-Name", value), 2) << value;
    }
    EXPECT_EQ(ruiSetRequestHeader(m_session.handle(), nullptr, "v"), 2);
    EXPECT_EQ(ruiSetRequestHeader(m_session.handle(), "X-Name", nullptr), 2);
    EXPECT_EQ(ruiSetRequestHeader(nullptr, "X-Name", "v"), 1);
}

TEST_F(Embedding, TransportIsSetBetweenSessionsAlone)
{
    open(m_session);
    EXPECT_EQ(ruiSetRequestHeader(m_session.handle(), "X-Name", "v"), 3);
    EXPECT_EQ(ruiSetCaFile(m_session.handle(), ""), 3);
    EXPECT_EQ(ruiSetProxy(m_session.handle(), ""), 3);
    m_session.stop();
    EXPECT_EQ(ruiSetRequestHeader(m_session.handle(), "X-Name", "v"), 0);
}

TEST_F(Embedding, CaFileThatCannotBeReadIsRefused)
{
    EXPECT_EQ(ruiSetCaFile(m_session.handle(), "/nonexistent.pem"), 2);
    EXPECT_EQ(ruiSetCaFile(m_session.handle(), nullptr), 2);
    EXPECT_EQ(ruiSetCaFile(m_session.handle(), RUI_DOCUMENT), 0);
}

TEST_F(Embedding, ProxyThatIsNoUrlIsRefused)
{
    EXPECT_EQ(ruiSetProxy(m_session.handle(), "http://[broken"), 2);
    EXPECT_EQ(ruiSetProxy(m_session.handle(), nullptr), 2);
    EXPECT_EQ(ruiSetProxy(m_session.handle(), "proxy.example.com:3128"), 0);
    EXPECT_EQ(ruiSetProxy(m_session.handle(), ""), 0);
}

// Prints its port, and then what it is asked for first.
constexpr const char *proxyProgram =
    "import socket; s = socket.socket(); s.bind(('127.0.0.1', 0)); s.listen();"
    "print(s.getsockname()[1], flush=True); c, _ = s.accept();"
    "print(c.recv(4096).decode().replace('\\r\\n', '|'), flush=True)";

TEST_F(Embedding, ProxyIsAskedForAServerBeyondTheLoopbackAndSeesNoSecret)
{
    Child proxy({"/usr/bin/python3", "-c", proxyProgram});
    std::string port;
    ASSERT_TRUE(proxy.readLine(port));
    EXPECT_EQ(ruiSetProxy(m_session.handle(), ("http://127.0.0.1:" + port).c_str()), 0);
    EXPECT_EQ(ruiSetRequestHeader(m_session.handle(), "Authorization", "Bearer 5f2c"), 0);
    m_session.open(m_path, "collector.example.com:4318");
    m_session.track("text");
    EXPECT_EQ(ruiFlush(m_session.handle(), 0), 13);
    std::string asked;
    ASSERT_TRUE(proxy.readLine(asked));
    EXPECT_EQ(asked.rfind("CONNECT collector.example.com:4318 HTTP/1.1|", 0), 0U) << asked;
    EXPECT_EQ(asked.find("5f2c"), std::string::npos);
}

TEST_F(Embedding, FlushReturnsWhenAllIsDelivered)
{
    open(m_session);
    for (int i = 0; i < 250; ++i) {
        m_session.track("text");
    }
    EXPECT_EQ(ruiFlush(m_session.handle(), 60000), 0);
    EXPECT_EQ(queryValue(m_path, "SELECT count(*) FROM event"), "0");
    EXPECT_EQ(ruiFlush(m_session.handle(), 0), 0);
}

TEST_F(Embedding, FlushGivesACodeWhenTheTimeIsOverAndLosesNothing)
{
    for (int i = 0; i < 3; ++i) {
        m_server.add({503, {}, {}, Answer::Manner::Reply});
    }
    open(m_session);
    m_session.track("text");
    EXPECT_EQ(ruiFlush(m_session.handle(), 0), 13);
    EXPECT_EQ(ruiFlush(m_session.handle(), 100), 13);
    EXPECT_EQ(queryValue(m_path, "SELECT count(*) FROM event"), "1");
}

TEST_F(Embedding, FlushNeedsASessionThatDelivers)
{
    EXPECT_EQ(ruiFlush(m_session.handle(), 10), 3);
    m_session.open(m_path);
    EXPECT_EQ(ruiFlush(m_session.handle(), 10), 3);
    EXPECT_EQ(ruiFlush(m_session.handle(), -1), 2);
    EXPECT_EQ(ruiFlush(nullptr, 0), 1);
}

TEST_F(Embedding, FlushEndsWhenTheSessionIsEndedOrDestroyed)
{
    for (const bool destroys : {false, true}) {
        Session session;
        session.open(m_path, "127.0.0.1:1");
        session.track("text");
        const ruiInstance handle = session.handle();
        int32_t result = 0;
        std::thread flusher([&] { result = ruiFlush(handle, 60000); });
        if (destroys) {
            ruiDestroyInstance(handle);
        } else {
            ruiStopSDK(handle, 1);
        }
        flusher.join();
        EXPECT_TRUE(result == 3 || result == 1) << result;
    }
}

TEST_F(Embedding, PauseHoldsOverRestartsUntilItIsResumed)
{
    open(m_session);
    EXPECT_EQ(paused(m_session), 0);
    EXPECT_EQ(ruiPauseDelivery(m_session.handle()), 0);
    EXPECT_EQ(m_session.track("text"), 0);
    EXPECT_EQ(ruiFlush(m_session.handle(), 10), 3);
    m_session.destroy();
    Session next;
    open(next);
    EXPECT_EQ(paused(next), 1);
    EXPECT_EQ(next.stop(), 0);
    EXPECT_EQ(m_server.requests().size(), 0U);
    EXPECT_EQ(next.start(), 0);
    EXPECT_EQ(ruiResumeDelivery(next.handle()), 0);
    EXPECT_EQ(ruiFlush(next.handle(), 60000), 0);
    EXPECT_EQ(m_server.requests().size(), 1U);
}

TEST_F(Embedding, PauseNeedsAConfigurationAndAPlaceForTheAnswer)
{
    EXPECT_EQ(ruiPauseDelivery(m_session.handle()), 3);
    EXPECT_EQ(ruiResumeDelivery(m_session.handle()), 3);
    int32_t value = 5;
    EXPECT_EQ(ruiIsDeliveryPaused(m_session.handle(), &value), 3);
    m_session.config(m_path);
    EXPECT_EQ(ruiIsDeliveryPaused(m_session.handle(), nullptr), 2);
    EXPECT_EQ(ruiPauseDelivery(nullptr), 1);
    EXPECT_EQ(value, 5);
}

// What a Windows compiler makes of the header.
TEST(Header, MarksItsFunctionsForAWindowsCompiler)
{
    const std::string include = RUI_INCLUDE;
    const auto marks = [&](const std::string &definition) {
        return runProgram({"sh", "-c",
                           "cc -E -D_WIN32 " + definition + " -I" + include + " " + include
                               + "/ruiSDK.h | grep -c '__declspec(dll"
                               + (definition == "-DRUISDK_BUILD" ? "export" : "import") + ")'"})
            .output;
    };
    EXPECT_EQ(marks(""), "21\n");
    EXPECT_EQ(marks("-DRUISDK_BUILD"), "21\n");
    EXPECT_EQ(marks("-DRUISDK_STATIC"), "0\n");
}

} // namespace
