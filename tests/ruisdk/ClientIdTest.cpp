// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// ruiGetClientId, and what the library says of itself.
#include "Session.h"
#include "StoredRecords.h"
#include "TemporaryDirectory.h"

#include <gtest/gtest.h>

#include <array>

namespace {

using namespace rui::test;

class ClientId : public testing::Test
{
protected:
    // "(code)" when the call fails.
    static std::string idOf(const Session &session)
    {
        std::array<char, RUI_CLIENT_ID_SIZE> buffer{};
        const int32_t result = ruiGetClientId(session.handle(), buffer.data(), RUI_CLIENT_ID_SIZE);
        return result == RUI_OK ? buffer.data() : "(" + std::to_string(result) + ")";
    }

    TemporaryDirectory m_directory;
    const std::string m_path = m_directory.path();
};

TEST_F(ClientId, IsThatUnderWhichEventsAreSent)
{
    Session session;
    session.open(m_path);
    EXPECT_EQ(idOf(session), queryValue(m_path, "SELECT client FROM resource"));
    EXPECT_EQ(idOf(session).size(), 36U);
}

TEST_F(ClientId, IsKeptForTheNextProcessAndToldWithoutASession)
{
    Session session;
    session.open(m_path);
    const std::string id = idOf(session);
    session.destroy();
    Session next;
    next.config(m_path);
    EXPECT_EQ(idOf(next), id);
}

TEST_F(ClientId, IsEmptyBeforeTheFirstSession)
{
    Session session;
    session.config(m_path);
    EXPECT_EQ(idOf(session), "");
}

TEST_F(ClientId, IsEmptyAfterAnOptOut)
{
    Session session;
    session.open(m_path);
    session.optOut();
    EXPECT_EQ(idOf(session), "");
}

TEST_F(ClientId, NeedsAConfiguration)
{
    const Session session;
    EXPECT_EQ(idOf(session), "(3)");
}

TEST_F(ClientId, IsNotThatOfADestroyedInstance)
{
    Session session;
    session.open(m_path);
    const ruiInstance handle = session.handle();
    session.destroy();
    std::array<char, RUI_CLIENT_ID_SIZE> buffer{};
    EXPECT_EQ(ruiGetClientId(handle, buffer.data(), RUI_CLIENT_ID_SIZE), 1);
    EXPECT_EQ(ruiGetClientId(nullptr, buffer.data(), RUI_CLIENT_ID_SIZE), 1);
}

TEST_F(ClientId, NeedsABufferThatIsLargeEnough)
{
    Session session;
    session.open(m_path);
    std::array<char, RUI_CLIENT_ID_SIZE> buffer{};
    EXPECT_EQ(ruiGetClientId(session.handle(), nullptr, RUI_CLIENT_ID_SIZE), 2);
    for (const int32_t size : {36, 0, -1}) {
        EXPECT_EQ(ruiGetClientId(session.handle(), buffer.data(), size), 2) << size;
    }
    EXPECT_EQ(buffer[0], 0);
}

TEST_F(ClientId, ThatSomebodyMadeLongerDoesNotLeaveTheBuffer)
{
    Session session;
    session.open(m_path);
    change(m_path, "UPDATE state SET client = client || client");
    EXPECT_EQ(idOf(session), "(5)");
}

TEST(Version, IsThatOfTheProject)
{
    EXPECT_STREQ(ruiVersion(), "7.1.0");
}

} // namespace
