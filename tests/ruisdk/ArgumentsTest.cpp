// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// What each argument may be.
#include "Session.h"
#include "StoredRecords.h"
#include "TemporaryDirectory.h"

#include <gtest/gtest.h>

namespace {

using namespace rui::test;

const std::string latin1 = "Stra\xDF"
                           "e";
const std::string longest(1024, 'x');
const std::string tooLong(1025, 'x');

class Arguments : public testing::Test
{
protected:
    int32_t config(const char *directory, const char *product, const char *application,
                   const char *host, int32_t protocol = 3, const char *key = "",
                   uint8_t localOnly = 0, uint8_t sync = 0)
    {
        return ruiCreateConfig(m_session.handle(), directory, product, application, host, protocol,
                               key, localOnly, sync);
    }

    TemporaryDirectory m_directory;
    const std::string m_path = m_directory.path();
    Session m_session;
};

TEST_F(Arguments, InstanceFlagOtherThanZeroGivesNull)
{
    EXPECT_EQ(ruiCreateInstance(1), nullptr);
    EXPECT_EQ(ruiCreateInstance(-1), nullptr);
}

TEST_F(Arguments, NullTextsOfTheConfigurationAreRefused)
{
    EXPECT_EQ(config(nullptr, "1", "n", ""), 2);
    EXPECT_EQ(config(m_path.c_str(), nullptr, "n", ""), 2);
    EXPECT_EQ(config(m_path.c_str(), "1", nullptr, ""), 2);
    EXPECT_EQ(config(m_path.c_str(), "1", "n", nullptr), 2);
    EXPECT_EQ(config(m_path.c_str(), "1", "n", "", 3, nullptr), 2);
}

TEST_F(Arguments, EmptyDirectoryIsRefused)
{
    EXPECT_EQ(config("", "1", "n", ""), 2);
}

TEST_F(Arguments, ConfigurationThatIsNotUtf8IsRefused)
{
    EXPECT_EQ(config((m_path + "/" + latin1).c_str(), "1", "n", ""), 2);
    EXPECT_EQ(config(m_path.c_str(), latin1.c_str(), "n", ""), 2);
    EXPECT_EQ(config(m_path.c_str(), "1", latin1.c_str(), ""), 2);
    EXPECT_EQ(config(m_path.c_str(), "1", "n", latin1.c_str()), 2);
    EXPECT_EQ(config(m_path.c_str(), "1", "n", "", 3, latin1.c_str()), 2);
}

TEST_F(Arguments, ProtocolsOtherThanThreeAreUnsupported)
{
    for (const int32_t protocol : {0, 1, 2, 4, -1}) {
        EXPECT_EQ(config(m_path.c_str(), "1", "n", "", protocol), 4) << protocol;
    }
    EXPECT_EQ(config(m_path.c_str(), "1", "n", "", 3), 0);
}

TEST_F(Arguments, EncryptionKeyIsUnsupported)
{
    EXPECT_EQ(config(m_path.c_str(), "1", "n", "", 3, "secret"), 4);
}

TEST_F(Arguments, ConfigurationFlagsAreZeroOrOne)
{
    EXPECT_EQ(config(m_path.c_str(), "1", "n", "", 3, "", 2, 0), 2);
    EXPECT_EQ(config(m_path.c_str(), "1", "n", "", 3, "", 0, 255), 2);
    EXPECT_EQ(config(m_path.c_str(), "1", "n", "", 3, "", 1, 1), 0);
}

TEST_F(Arguments, DescriptionsAreAtMost1024Bytes)
{
    EXPECT_EQ(config(m_path.c_str(), tooLong.c_str(), "n", ""), 2);
    EXPECT_EQ(config(m_path.c_str(), "1", tooLong.c_str(), ""), 2);
    EXPECT_EQ(config(m_path.c_str(), longest.c_str(), longest.c_str(), ""), 0);
}

TEST_F(Arguments, RefusedConfigurationCreatesNothing)
{
    EXPECT_EQ(config(m_directory.path("new").c_str(), "1", "n", "", 4), 4);
    EXPECT_FALSE(std::filesystem::exists(m_directory.path("new")));
}

TEST_F(Arguments, ProductDataIsChecked)
{
    m_session.config(m_path);
    const ruiInstance handle = m_session.handle();
    EXPECT_EQ(ruiSetProductData(handle, nullptr, "", "", ""), 2);
    EXPECT_EQ(ruiSetProductData(handle, "", nullptr, "", ""), 2);
    EXPECT_EQ(ruiSetProductData(handle, "", "", nullptr, ""), 2);
    EXPECT_EQ(ruiSetProductData(handle, "", "", "", nullptr), 2);
    EXPECT_EQ(ruiSetProductData(handle, latin1.c_str(), "", "", ""), 2);
    EXPECT_EQ(ruiSetProductData(handle, "", tooLong.c_str(), "", ""), 2);
    EXPECT_EQ(ruiStartSDK(handle), 3);
    EXPECT_EQ(ruiSetProductData(handle, "", "", "", ""), 0);
}

TEST_F(Arguments, StopFlagIsZeroOrOne)
{
    m_session.open(m_path);
    EXPECT_EQ(m_session.stop(2), 2);
    EXPECT_EQ(m_session.stop(-1), 2);
    EXPECT_EQ(m_session.stop(1), 0);
}

TEST_F(Arguments, EventTextsThatAreNullOrNotUtf8AreRefused)
{
    m_session.open(m_path);
    const ruiInstance handle = m_session.handle();
    const char *wrong = nullptr;
    for (const char *bad : {wrong, latin1.c_str()}) {
        EXPECT_EQ(ruiTrackEvent(handle, bad, "n", ""), 2);
        EXPECT_EQ(ruiTrackEvent(handle, "c", bad, ""), 2);
        EXPECT_EQ(ruiTrackEvent(handle, "c", "n", bad), 2);
        EXPECT_EQ(ruiTrackEventText(handle, bad, "n", "t", ""), 2);
        EXPECT_EQ(ruiTrackEventText(handle, "c", bad, "t", ""), 2);
        EXPECT_EQ(ruiTrackEventText(handle, "c", "n", bad, ""), 2);
        EXPECT_EQ(ruiTrackEventText(handle, "c", "n", "t", bad), 2);
    }
    EXPECT_EQ(queryValue(m_path, "SELECT count(*) FROM record"), "0");
}

TEST(ResultText, EveryResultHasItsWords)
{
    EXPECT_STREQ(ruiResultText(0), "done");
    EXPECT_STREQ(ruiResultText(1), "the instance is null, destroyed or not an instance");
    EXPECT_STREQ(ruiResultText(2), "an argument is null, not UTF-8 or out of range");
    EXPECT_STREQ(ruiResultText(3), "the call does not fit the state of the instance");
    EXPECT_STREQ(ruiResultText(4),
                 "the protocol, key, server address or database version is not supported");
    EXPECT_STREQ(ruiResultText(5), "the configuration directory or its database cannot be used");
    EXPECT_STREQ(ruiResultText(6), "the disk is full");
    EXPECT_STREQ(ruiResultText(7), "the user's consent was withdrawn");
    EXPECT_STREQ(ruiResultText(8), "the event is larger than 1 MiB");
    EXPECT_STREQ(ruiResultText(9), "another process keeps the database locked");
    EXPECT_STREQ(ruiResultText(10), "internal error");
    EXPECT_STREQ(ruiResultText(11),
                 "the process was forked while the library was in use; execute a program first");
}

TEST(ResultText, OtherNumbersAreUnknown)
{
    EXPECT_STREQ(ruiResultText(-1), "unknown result");
    EXPECT_STREQ(ruiResultText(1000), "unknown result");
}

} // namespace
