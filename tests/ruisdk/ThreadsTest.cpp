// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// Calls from several threads at once.
#include "Session.h"
#include "StoredRecords.h"
#include "TemporaryDirectory.h"

#include <gtest/gtest.h>

#include <atomic>
#include <functional>
#include <set>
#include <thread>

namespace {

using namespace rui::test;

constexpr int threadCount = 8;

void inThreads(const std::function<void(int)> &body)
{
    std::vector<std::thread> threads;
    for (int i = 0; i < threadCount; ++i) {
        threads.emplace_back(body, i);
    }
    for (std::thread &thread : threads) {
        thread.join();
    }
}

std::set<std::string> expectedTexts(int each)
{
    std::set<std::string> texts;
    for (int thread = 0; thread < threadCount; ++thread) {
        for (int i = 0; i < each; ++i) {
            texts.insert(std::to_string(thread) + " " + std::to_string(i));
        }
    }
    return texts;
}

std::set<std::string> storedSet(const std::string &directory)
{
    const auto texts = storedTexts(directory);
    const std::set<std::string> set(texts.begin(), texts.end());
    EXPECT_EQ(set.size(), texts.size());
    return set;
}

TEST(Threads, EightOfThemMayUseOneInstance)
{
    const TemporaryDirectory directory;
    Session session;
    ASSERT_EQ(session.open(directory.path()), 0);
    inThreads([&](int thread) {
        for (int i = 0; i < 100; ++i) {
            EXPECT_EQ(session.track(std::to_string(thread) + " " + std::to_string(i)), 0);
        }
    });
    EXPECT_EQ(storedSet(directory.path()), expectedTexts(100));
}

TEST(Threads, EightInstancesMayUseOneDirectory)
{
    const TemporaryDirectory directory;
    inThreads([&](int thread) {
        Session session;
        EXPECT_EQ(session.open(directory.path()), 0);
        for (int i = 0; i < 50; ++i) {
            EXPECT_EQ(session.track(std::to_string(thread) + " " + std::to_string(i)), 0);
        }
        EXPECT_EQ(session.stop(), 0);
    });
    EXPECT_EQ(storedSet(directory.path()), expectedTexts(50));
}

// Each result is one that the order of the other threads' calls explains.
TEST(Threads, EightOfThemMayCallEverythingAtOnce)
{
    const TemporaryDirectory directory;
    Session session;
    ASSERT_EQ(session.open(directory.path()), 0);
    std::atomic<int> stored{0};
    inThreads([&](int thread) {
        for (int i = 0; i < 50; ++i) {
            const int32_t result = session.track("text");
            stored += result == RUI_OK ? 1 : 0;
            EXPECT_TRUE(result == RUI_OK || result == RUI_WRONG_STATE) << result;
            if (thread == 0 && i % 10 == 9) {
                EXPECT_EQ(session.stop(), 0);
                EXPECT_EQ(session.start(), 0);
            }
        }
    });
    EXPECT_EQ(queryValue(directory.path(), "SELECT count(*) FROM event"), std::to_string(stored));
}

TEST(Threads, DestroyDuringCallsIsABadHandleForTheLaterOnes)
{
    for (int round = 0; round < 10; ++round) {
        const TemporaryDirectory directory;
        Session session;
        ASSERT_EQ(session.open(directory.path()), 0);
        std::atomic<int> destroyed{0};
        inThreads([&](int thread) {
            int32_t result = RUI_OK;
            for (int i = 0; i < 20 && result != RUI_BAD_HANDLE; ++i) {
                result = session.track("text");
                EXPECT_TRUE(result == RUI_OK || result == RUI_BAD_HANDLE
                            || result == RUI_WRONG_STATE)
                    << result;
            }
            if (thread < 2) {
                destroyed += session.destroy() == RUI_OK ? 1 : 0;
            }
        });
        EXPECT_EQ(destroyed, 1);
    }
}

TEST(Threads, InstancesMayBeCreatedAndDestroyedInAllThreads)
{
    const TemporaryDirectory directory;
    inThreads([&](int) {
        for (int i = 0; i < 10; ++i) {
            Session session;
            EXPECT_EQ(session.config(directory.path()), 0);
            EXPECT_EQ(session.destroy(), 0);
        }
    });
}

} // namespace
