// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// What the library tells a program of its delivery, and what a hook may do.
#include "Session.h"
#include "StoredRecords.h"
#include "TemporaryDirectory.h"
#include "TestServer.h"

#include <gtest/gtest.h>

#include <atomic>
#include <condition_variable>
#include <cstdlib>
#include <filesystem>
#include <future>
#include <mutex>
#include <stdexcept>
#include <thread>
#include <utility>

namespace {

using namespace rui::test;

// A hook that keeps what it is told.
class Told
{
public:
    static void hook(int32_t level, const char *text, void *context)
    {
        auto &told = *static_cast<Told *>(context);
        const std::lock_guard<std::mutex> lock(told.m_mutex);
        told.m_lines.push_back(std::to_string(level) + " " + text);
        told.m_changed.notify_all();
    }

    std::vector<std::string> lines()
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return m_lines;
    }

    // The first line that contains the words; empty when there is none within a minute.
    std::string waitFor(const std::string &words)
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        std::string found;
        m_changed.wait_for(lock, std::chrono::minutes(1), [&] {
            for (const std::string &line : m_lines) {
                found = line.find(words) != std::string::npos && found.empty() ? line : found;
            }
            return !found.empty();
        });
        return found;
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::vector<std::string> m_lines;
};

// A hook that stays in its first call until it is released.
class Staying
{
public:
    static void hook(int32_t /*level*/, const char * /*text*/, void *context)
    {
        auto &staying = *static_cast<Staying *>(context);
        if (staying.m_calls++ == 0) {
            staying.m_entered.set_value();
            staying.m_released.get_future().wait();
            std::this_thread::sleep_for(std::chrono::milliseconds(50));
            staying.m_hasEnded = true;
        }
    }

    void waitUntilEntered()
    {
        m_entered.get_future().wait();
    }
    void release()
    {
        m_released.set_value();
    }
    bool hasEnded() const
    {
        return m_hasEnded;
    }

private:
    std::atomic<int> m_calls{0};
    std::promise<void> m_entered;
    std::promise<void> m_released;
    std::atomic<bool> m_hasEnded{false};
};

class LogHook : public testing::Test
{
protected:
    void openFailing(ruiLogHook hook, void *context)
    {
        m_server.add({503, {}, {}, Answer::Manner::Reply});
        EXPECT_EQ(ruiSetLogHook(m_session.handle(), hook, context), 0);
        EXPECT_EQ(m_session.open(m_path, m_server.url()), 0);
        EXPECT_EQ(m_session.track("secret text"), 0);
    }

    TemporaryDirectory m_directory;
    const std::string m_path = m_directory.path("data");
    TestServer m_server;
    Told m_told;
    Session m_session;
};

TEST_F(LogHook, IsToldOfAFailureAndOfTheDelivery)
{
    openFailing(Told::hook, &m_told);
    EXPECT_EQ(ruiFlush(m_session.handle(), 60000), 0);
    EXPECT_EQ(m_told.waitFor("delivered"), "3 delivered 1");
    EXPECT_EQ(m_told.lines(),
              (std::vector<std::string>{
                  "2 delivery failed: the server answered 503; the next try is due in 0 s",
                  "3 delivered 1"}));
    EXPECT_EQ(queryValue(m_path, "SELECT failure FROM state"), "the server answered 503");
}

TEST_F(LogHook, IsToldOfAnOptOutThatTheServerRefusesForGood)
{
    m_server.setRule([](const Request &request) {
        const bool isOptOut = request.body.find("rui.ruiSDK.OptOut") != std::string::npos;
        return Answer{isOptOut ? 400 : 200, {}, "{}", Answer::Manner::Reply};
    });
    ruiSetLogHook(m_session.handle(), Told::hook, &m_told);
    m_session.open(m_path, m_server.url());
    EXPECT_EQ(m_session.optOut(), 0);
    EXPECT_EQ(m_told.waitFor("withdrawal"), "2 a request was refused: the withdrawal of consent"
                                            " was refused: the server answered 400");
    m_session.stop(1);
    EXPECT_EQ(queryValue(m_path, "SELECT failure FROM state"),
              "the withdrawal of consent was refused: the server answered 400");
}

TEST_F(LogHook, IsToldOfARecordThatIsDropped)
{
    m_server.setRule([](const Request &request) {
        const bool isBad = request.body.find("bad one") != std::string::npos;
        return Answer{isBad ? 400 : 200, {}, "{}", Answer::Manner::Reply};
    });
    ruiSetLogHook(m_session.handle(), Told::hook, &m_told);
    m_session.open(m_path, m_server.url());
    m_session.track("bad one");
    m_session.track("good one");
    EXPECT_EQ(m_told.waitFor("dropped"), "2 delivered 1; dropped 1 that the server refused alone");
    for (const std::string &line : m_told.lines()) {
        EXPECT_EQ(line.find("bad one"), std::string::npos) << line;
    }
}

TEST_F(LogHook, IsToldOfADatabaseThatCannotBeUsedInOneLine)
{
    const std::string path = m_directory.path("two\nlines");
    ruiSetLogHook(m_session.handle(), Told::hook, &m_told);
    m_session.open(path, m_server.url());
    m_session.track("text");
    std::filesystem::remove_all(databasePath(path));
    std::filesystem::create_directory(databasePath(path));
    const std::string line = m_told.waitFor("two?lines");
    EXPECT_EQ(line.rfind("1 ", 0), 0U) << line;
    EXPECT_EQ(line.find('\n'), std::string::npos) << line;
}

TEST_F(LogHook, IsNotCalledOnceItIsTakenAway)
{
    EXPECT_EQ(ruiSetLogHook(m_session.handle(), Told::hook, &m_told), 0);
    EXPECT_EQ(ruiSetLogHook(m_session.handle(), nullptr, &m_told), 0);
    m_session.open(m_path, m_server.url());
    m_session.track("text");
    EXPECT_EQ(ruiFlush(m_session.handle(), 60000), 0);
    EXPECT_EQ(m_session.destroy(), 0);
    EXPECT_EQ(m_told.lines(), std::vector<std::string>{});
}

TEST_F(LogHook, MayBeSetInEveryStateOfALiveInstance)
{
    const auto set = [&] { return ruiSetLogHook(m_session.handle(), Told::hook, nullptr); };
    m_session.config(m_path);
    EXPECT_EQ(set(), 0);
    m_session.product();
    EXPECT_EQ(set(), 0);
    m_session.start();
    EXPECT_EQ(set(), 0);
    m_session.stop();
    EXPECT_EQ(set(), 0);
    const ruiInstance gone = m_session.handle();
    m_session.destroy();
    EXPECT_EQ(ruiSetLogHook(gone, Told::hook, nullptr), 1);
    EXPECT_EQ(ruiSetLogHook(nullptr, Told::hook, nullptr), 1);
}

TEST_F(LogHook, ThatThrowsChangesNothingAndStaysSet)
{
    static std::atomic<int> calls;
    calls = 0;
    openFailing(
        [](int32_t, const char *, void *) {
            ++calls;
            throw std::runtime_error("of the hook");
        },
        nullptr);
    EXPECT_EQ(ruiFlush(m_session.handle(), 60000), 0);
    while (calls < 2) {
        std::this_thread::yield();
    }
}

struct Reentry
{
    ruiInstance instance;
    std::promise<std::vector<int32_t>> results;
    bool hasRun = false;
};

void useTheLibrary(int32_t /*level*/, const char * /*text*/, void *context)
{
    auto &reentry = *static_cast<Reentry *>(context);
    if (std::exchange(reentry.hasRun, true)) {
        return;
    }
    const ruiInstance i = reentry.instance;
    int32_t policy = 0;
    reentry.results.set_value(
        {ruiCreateConfig(i, "d", "", "", "", 3, "", 0, 0), ruiSetProductData(i, "", "", "", ""),
         ruiStartSDK(i), ruiStopSDK(i, 0), ruiOptOut(i), ruiTrackEvent(i, "", "", ""),
         ruiTrackEventText(i, "", "", "", ""), ruiFlush(i, 0), ruiPauseDelivery(i),
         ruiSetLogHook(i, nullptr, nullptr), ruiDestroyInstance(i),
         ruiCreateInstance(0) == nullptr ? 3 : 0, ruiDestroyInstance(nullptr) == 1 ? 3 : 0,
         ruiGetPolicy("1", &policy) == 0 ? 3 : 0});
}

TEST_F(LogHook, ThatUsesTheLibraryGetsACodeAndChangesNothing)
{
    Reentry reentry{m_session.handle(), {}, false};
    openFailing(useTheLibrary, &reentry);
    EXPECT_EQ(reentry.results.get_future().get(), std::vector<int32_t>(14, 3));
    EXPECT_EQ(ruiFlush(m_session.handle(), 60000), 0);
    EXPECT_EQ(m_session.destroy(), 0);
}

TEST_F(LogHook, HasEndedWhenItIsReplacedOrItsInstanceDestroyed)
{
    for (const bool destroys : {false, true}) {
        Staying staying;
        Session session;
        ruiSetLogHook(session.handle(), Staying::hook, &staying);
        session.open(m_path, "127.0.0.1:1");
        session.track("text");
        staying.waitUntilEntered();
        staying.release();
        EXPECT_EQ(destroys ? session.destroy() : ruiSetLogHook(session.handle(), nullptr, nullptr),
                  0);
        EXPECT_TRUE(staying.hasEnded());
    }
}

TEST_F(LogHook, ThatStaysHoldsUpNoOtherCall)
{
    Staying staying;
    openFailing(Staying::hook, &staying);
    staying.waitUntilEntered();
    EXPECT_EQ(m_session.track("text"), 0);
    EXPECT_EQ(m_session.stop(), 0);
    EXPECT_EQ(m_session.start(), 0);
    EXPECT_FALSE(staying.hasEnded());
    staying.release();
    EXPECT_EQ(m_session.destroy(), 0);
    EXPECT_TRUE(staying.hasEnded());
}

TEST_F(LogHook, MayEndTheProgram)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(
        {
            openFailing([](int32_t, const char *, void *) { std::exit(7); }, nullptr);
            ruiFlush(m_session.handle(), 60000);
            std::promise<void>().get_future().wait();
        },
        testing::ExitedWithCode(7), "");
}

} // namespace
