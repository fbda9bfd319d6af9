// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// The order of calls.
#include "Session.h"
#include "StoredRecords.h"
#include "TemporaryDirectory.h"

#include <gtest/gtest.h>

#include <random>

namespace {

using namespace rui::test;

class Sequence : public testing::Test
{
protected:
    TemporaryDirectory m_directory;
};

TEST_F(Sequence, WholeSessionSucceeds)
{
    Session session;
    EXPECT_EQ(session.config(m_directory.path()), 0);
    EXPECT_EQ(session.product(), 0);
    EXPECT_EQ(session.start(), 0);
    EXPECT_EQ(session.track("text"), 0);
    EXPECT_EQ(session.stop(), 0);
    EXPECT_EQ(session.destroy(), 0);
}

TEST_F(Sequence, WholeOptOutSucceeds)
{
    Session session;
    EXPECT_EQ(session.config(m_directory.path()), 0);
    EXPECT_EQ(session.product(), 0);
    EXPECT_EQ(session.optOut(), 0);
    EXPECT_EQ(session.start(), 0);
    EXPECT_EQ(session.stop(), 0);
    EXPECT_EQ(session.destroy(), 0);
}

TEST_F(Sequence, NothingButConfigFitsANewInstance)
{
    Session session;
    EXPECT_EQ(session.product(), 3);
    EXPECT_EQ(session.start(), 3);
    EXPECT_EQ(session.track("text"), 3);
    EXPECT_EQ(session.optOut(), 3);
    EXPECT_EQ(session.stop(), 3);
    EXPECT_EQ(session.config(m_directory.path()), 0);
}

TEST_F(Sequence, ConfigFitsOnlyOnce)
{
    Session session;
    session.config(m_directory.path());
    EXPECT_EQ(session.config(m_directory.path()), 3);
}

TEST_F(Sequence, ConfigMayBeRepeatedAfterItFailed)
{
    Session session;
    EXPECT_EQ(session.config("/dev/null/nowhere"), 5);
    EXPECT_EQ(session.config(m_directory.path()), 0);
}

TEST_F(Sequence, StartNeedsProductData)
{
    Session session;
    session.config(m_directory.path());
    EXPECT_EQ(session.start(), 3);
}

TEST_F(Sequence, ProductDataMayBeReplacedUntilStart)
{
    Session session;
    session.config(m_directory.path());
    EXPECT_EQ(session.product(), 0);
    EXPECT_EQ(session.product(), 0);
    session.start();
    EXPECT_EQ(session.product(), 3);
}

TEST_F(Sequence, EventBeforeStartOrAfterStopIsNotStored)
{
    Session session;
    session.config(m_directory.path());
    session.product();
    EXPECT_EQ(session.track("too early"), 3);
    session.start();
    session.stop();
    EXPECT_EQ(session.track("too late"), 3);
    EXPECT_EQ(storedTexts(m_directory.path()), std::vector<std::string>{});
}

TEST_F(Sequence, StartFitsOnlyOnceWithoutAStop)
{
    Session session;
    session.open(m_directory.path());
    EXPECT_EQ(session.start(), 3);
}

TEST_F(Sequence, StopFitsOnlyAfterStart)
{
    Session session;
    session.config(m_directory.path());
    session.product();
    EXPECT_EQ(session.stop(), 3);
    session.start();
    EXPECT_EQ(session.stop(), 0);
    EXPECT_EQ(session.stop(), 3);
}

TEST_F(Sequence, SessionMayBeStartedAgainAfterAStop)
{
    Session session;
    session.open(m_directory.path());
    session.track("first");
    session.stop();
    EXPECT_EQ(session.start(), 0);
    EXPECT_EQ(session.track("second"), 0);
    EXPECT_EQ(storedTexts(m_directory.path()), (std::vector<std::string>{"first", "second"}));
}

TEST_F(Sequence, RunningInstanceMayBeDestroyed)
{
    Session session;
    session.open(m_directory.path());
    session.track("kept");
    EXPECT_EQ(session.destroy(), 0);
    EXPECT_EQ(storedTexts(m_directory.path()), std::vector<std::string>{"kept"});
}

TEST_F(Sequence, EveryCallWithANullHandleIsABadHandle)
{
    EXPECT_EQ(ruiCreateConfig(nullptr, m_directory.path().c_str(), "", "", "", 3, "", 0, 0), 1);
    EXPECT_EQ(ruiSetProductData(nullptr, "", "", "", ""), 1);
    EXPECT_EQ(ruiStartSDK(nullptr), 1);
    EXPECT_EQ(ruiStopSDK(nullptr, 0), 1);
    EXPECT_EQ(ruiOptOut(nullptr), 1);
    EXPECT_EQ(ruiTrackEvent(nullptr, "Category", "Name", ""), 1);
    EXPECT_EQ(ruiTrackEventText(nullptr, "Category", "Name", "text", ""), 1);
    EXPECT_EQ(ruiDestroyInstance(nullptr), 1);
}

TEST_F(Sequence, HandleIsCheckedBeforeTheArguments)
{
    EXPECT_EQ(ruiTrackEventText(nullptr, nullptr, nullptr, nullptr, nullptr), 1);
}

TEST_F(Sequence, EveryCallWithADestroyedHandleIsABadHandle)
{
    Session session;
    session.open(m_directory.path());
    session.destroy();
    EXPECT_EQ(session.config(m_directory.path()), 1);
    EXPECT_EQ(session.product(), 1);
    EXPECT_EQ(session.start(), 1);
    EXPECT_EQ(session.track("text"), 1);
    EXPECT_EQ(session.optOut(), 1);
    EXPECT_EQ(session.stop(), 1);
    EXPECT_EQ(session.destroy(), 1);
}

TEST_F(Sequence, LeakedInstanceDoesNotDisturbTheNextOne)
{
    const ruiInstance leaked = ruiCreateInstance(0);
    ASSERT_EQ(ruiCreateConfig(leaked, m_directory.path().c_str(), "1", "n", "", 3, "", 0, 0), 0);
    ruiSetProductData(leaked, "", "", "", "");
    ruiStartSDK(leaked);
    Session session;
    EXPECT_EQ(session.open(m_directory.path()), 0);
    EXPECT_EQ(session.track("text"), 0);
    EXPECT_EQ(session.stop(), 0);
}

// Any calls in any order give a result of the enumeration, and never more.
TEST_F(Sequence, RandomCallsNeverDoHarm)
{
    std::mt19937 random(20261120);
    std::vector<ruiInstance> handles = {nullptr, reinterpret_cast<ruiInstance>(this),
                                        reinterpret_cast<ruiInstance>(std::uintptr_t{1})};
    const std::string directory = m_directory.path();
    for (int i = 0; i < 5000; ++i) {
        if (random() % 20 == 0) {
            handles.push_back(ruiCreateInstance(static_cast<int32_t>(random() % 2)));
        }
        const ruiInstance handle = handles[random() % handles.size()];
        const auto flag = static_cast<int32_t>(random() % 3);
        int32_t result = 0;
        switch (random() % 8) {
        case 0:
            result = ruiCreateConfig(handle, directory.c_str(), "1", "n", "", 3, "", 0, 0);
            break;
        case 1:
            result = ruiSetProductData(handle, "", "", "", "");
            break;
        case 2:
            result = ruiStartSDK(handle);
            break;
        case 3:
            result = ruiStopSDK(handle, flag);
            break;
        case 4:
            result = random() % 10 == 0 ? ruiOptOut(handle) : 0;
            break;
        case 5:
            result = ruiTrackEvent(handle, "c", random() % 5 == 0 ? nullptr : "n", "");
            break;
        case 6:
            result = ruiTrackEventText(handle, "c", "n", "text", "");
            break;
        default:
            result = random() % 4 == 0 ? ruiDestroyInstance(handle) : 0;
        }
        ASSERT_GE(result, 0);
        ASSERT_LE(result, 10);
        ASSERT_NE(result, 10);
    }
    for (const ruiInstance handle : handles) {
        ruiDestroyInstance(handle);
    }
    EXPECT_EQ(queryValue(directory, "PRAGMA integrity_check"), "ok");
}

} // namespace
