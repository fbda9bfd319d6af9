// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// rui-events export: what waits, in a file instead of a request.
#include "delivery/HandOver.h"

#include "Child.h"
#include "core/Failure.h"
#include "ReceivedRecords.h"
#include "Session.h"
#include "store/FileLock.h"
#include "store/StoreOpening.h"
#include "StoredRecords.h"
#include "TemporaryDirectory.h"

#include <gtest/gtest.h>

#include <functional>
#include <sstream>

namespace {

using namespace rui::test;
using Texts = std::vector<std::string>;

class HandOver : public testing::Test
{
protected:
    void track(int count, const std::string &text = "text")
    {
        Session session;
        ASSERT_EQ(session.open(m_path), 0);
        for (int i = 0; i < count; ++i) {
            ASSERT_EQ(session.track(text), 0);
        }
    }

    void optOut()
    {
        Session session;
        session.config(m_path);
        session.product();
        ASSERT_EQ(session.optOut(), 0);
    }

    Outcome exportTo(const std::string &file) const
    {
        return runProgram({RUI_EVENTS_PROGRAM, "export", "--otlp", file, m_path});
    }

    static Texts linesOf(const std::string &file)
    {
        Texts lines;
        std::istringstream text(readFile(file));
        for (std::string line; std::getline(text, line);) {
            lines.push_back(line);
        }
        return lines;
    }

    std::string waiting() const
    {
        return queryValue(m_path, "SELECT count(*) FROM record WHERE state = 'pending'");
    }

    // What stands beside the database: a file, or what was left of one.
    std::size_t filesBeside() const
    {
        std::size_t count = 0;
        for (const auto &entry : std::filesystem::directory_iterator(m_directory.path())) {
            count += entry.path() == m_path ? 0U : 1U;
        }
        return count;
    }

    TemporaryDirectory m_directory;
    const std::string m_path = m_directory.path("data");
    const std::string m_file = m_directory.path("events.jsonl");
};

TEST_F(HandOver, WritesTheVeryRequestsThatWouldBeSentOneALine)
{
    track(150, "line\nbreak");
    const std::string twin = m_directory.path("twin");
    std::filesystem::copy(m_path, twin);
    const TestServer server;
    ASSERT_EQ(runProgram({RUI_EVENTS_PROGRAM, "send", "--to", server.url(), twin}).status, 0);
    Texts sent;
    for (const Request &request : server.requests()) {
        sent.push_back(request.body);
    }

    const Outcome outcome = exportTo(m_file);
    EXPECT_EQ(outcome.status, 0) << outcome.errors;
    EXPECT_EQ(outcome.output, "handed over 150 records in 2 requests: " + m_file + "\n");
    EXPECT_EQ(linesOf(m_file), sent);
    EXPECT_EQ(sent.size(), 2U);
}

TEST_F(HandOver, MarksTheEventsSoThatTheyAreNeverSent)
{
    track(3);
    exportTo(m_file);
    EXPECT_EQ(query(m_path, "SELECT DISTINCT state FROM record"), (std::vector<Row>{{"exported"}}));
    EXPECT_EQ(queryValue(m_path, "SELECT exported FROM state"), "3");
    EXPECT_EQ(queryValue(m_path, "SELECT delivered FROM state"), "0");
    const TestServer server;
    EXPECT_EQ(runProgram({RUI_EVENTS_PROGRAM, "send", "--to", server.url(), m_path}).output,
              "nothing is left\n");
    EXPECT_EQ(server.requests().size(), 0U);
    const Outcome statistics = runProgram({RUI_EVENTS_PROGRAM, "--stats", m_path});
    const std::string counts = statistics.output.substr(statistics.output.find("pending"));
    EXPECT_EQ(counts, "pending       0\n"
                      "delivered     0\n"
                      "exported      3\n"
                      "lost          0\n"
                      "\n"
                      "CATEGORY  NAME  PENDING  DELIVERED  EXPORTED\n"
                      "Category  Name  0        0          3\n");
}

TEST_F(HandOver, RepeatedGivesNothingTwice)
{
    track(2);
    EXPECT_EQ(exportTo(m_file).status, 0);
    const Outcome again = exportTo(m_directory.path("again.jsonl"));
    EXPECT_EQ(again.status, 0);
    EXPECT_EQ(again.output, "nothing waits; no file was written\n");
    EXPECT_EQ(filesBeside(), 1U);
    track(1, "later");
    EXPECT_EQ(exportTo(m_directory.path("again.jsonl")).status, 0);
    const Texts lines = linesOf(m_directory.path("again.jsonl"));
    ASSERT_EQ(lines.size(), 1U);
    EXPECT_NE(lines[0].find("\"later\""), std::string::npos);
    EXPECT_EQ(lines[0].find("\"text\""), std::string::npos);
}

// Killed after the file was there and before anything was marked.
TEST_F(HandOver, ThatIsCutOffGivesTheSameIdentifiersOnceMore)
{
    track(2);
    const std::string twin = m_directory.path("twin");
    std::filesystem::copy(m_path, twin);
    exportTo(m_file);
    const std::string again = m_directory.path("again.jsonl");
    runProgram({RUI_EVENTS_PROGRAM, "export", "--otlp", again, twin});
    EXPECT_EQ(readFile(again), readFile(m_file));
}

TEST_F(HandOver, ForThisUserAlone)
{
    track(1);
    exportTo(m_file);
    EXPECT_EQ(modeOf(m_file), 0600U);
}

TEST_F(HandOver, ThatCannotBeWrittenLeavesEverythingAsItWas)
{
    track(5);
    for (const std::string &file :
         {m_directory.path("missing/events.jsonl"), m_path, std::string("/dev/full"),
          std::string("/proc/events.jsonl"), m_directory.path(std::string(300, 'x'))}) {
        const Outcome outcome = exportTo(file);
        EXPECT_EQ(outcome.status, 1) << file;
        EXPECT_EQ(outcome.errors.rfind("rui-events: " + file + ": ", 0), 0U) << outcome.errors;
        EXPECT_EQ(waiting(), "5") << file;
    }
    EXPECT_EQ(filesBeside(), 0U);
}

TEST_F(HandOver, ThatDoesNotFitOnTheDiskLeavesEverythingAsItWas)
{
    track(5, std::string(100000, 'x'));
    const Outcome outcome = runProgram(
        {"sh", "-c", "trap '' XFSZ; ulimit -f 200; exec \"$0\" export --otlp \"$1\" \"$2\"",
         RUI_EVENTS_PROGRAM, m_file, m_path});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.errors, "rui-events: " + m_file + ": File too large\n");
    EXPECT_EQ(waiting(), "5");
    EXPECT_EQ(filesBeside(), 0U);
}

TEST_F(HandOver, NeverTakesThePlaceOfAFile)
{
    track(1);
    writeFile(m_file, "another hand-over");
    const Outcome outcome = exportTo(m_file);
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.errors,
              "rui-events: " + m_file + ": is there already; name a file that is not\n");
    EXPECT_EQ(readFile(m_file), "another hand-over");
    EXPECT_EQ(waiting(), "1");
}

TEST_F(HandOver, DoesNotWriteThroughALink)
{
    track(1);
    std::filesystem::create_symlink(m_directory.path("target"), m_file);
    EXPECT_EQ(exportTo(m_file).status, 1);
    EXPECT_FALSE(std::filesystem::exists(m_directory.path("target")));
}

TEST_F(HandOver, OfAWithdrawnDirectoryIsRefused)
{
    track(2);
    optOut();
    const Outcome outcome = exportTo(m_file);
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.errors, "rui-events: " + m_path
                                  + ": nobody has consented, or consent was withdrawn; nothing is"
                                    " handed over\n");
    EXPECT_EQ(filesBeside(), 0U);
    EXPECT_EQ(query(m_path, "SELECT state, name FROM record"),
              (std::vector<Row>{{"pending", "OptOut"}}));
}

// What the clock is asked for stands between two batches.
class WithdrawingClock : public rui::Clock
{
public:
    explicit WithdrawingClock(std::function<void()> withdraw)
        : m_withdraw(std::move(withdraw))
    {}

    std::int64_t now() const override
    {
        ++m_calls;
        if (m_calls == 2) {
            m_withdraw();
        }
        return rui::systemClock().now();
    }

    std::int64_t sinceBoot() const override
    {
        return 0;
    }

    std::string boot() const override
    {
        return "1";
    }

private:
    const std::function<void()> m_withdraw;
    mutable int m_calls = 0;
};

TEST_F(HandOver, DuringWhichConsentIsWithdrawnLeavesNoFile)
{
    for (const bool isGivenAnew : {false, true}) {
        track(150);
        const WithdrawingClock clock([&] {
            optOut();
            if (isGivenAnew) {
                track(1, "new");
            }
        });
        const rui::StorePaths paths(m_path);
        rui::Database database =
            openStore(paths, {}, std::make_shared<rui::BusyLimit>(std::chrono::seconds(5)));
        try {
            handOver(database, paths, m_file, clock, {}, {});
            ADD_FAILURE() << "was handed over";
        } catch (const rui::Failure &failure) {
            EXPECT_EQ(failure.result(), RUI_OPTED_OUT);
        }
        EXPECT_EQ(filesBeside(), 0U);
    }
}

TEST_F(HandOver, AfterANewConsentBeginsWithTheWithdrawalOfTheEarlierOne)
{
    track(2, "old");
    optOut();
    track(1, "new");
    EXPECT_EQ(exportTo(m_file).output, "handed over 2 records in 2 requests: " + m_file + "\n");
    const Texts lines = linesOf(m_file);
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_NE(lines[0].find("rui.ruiSDK.OptOut"), std::string::npos);
    EXPECT_NE(lines[1].find("\"new\""), std::string::npos);
    EXPECT_EQ(readFile(m_file).find("\"old\""), std::string::npos);
}

TEST_F(HandOver, TellsTheLossesWithTheEvents)
{
    Session session;
    session.open(m_path);
    session.track(std::string(2000000, 'x'));
    session.track("text");
    session.destroy();
    exportTo(m_file);
    EXPECT_NE(readFile(m_file).find(R"(\"eventSize\":1)"), std::string::npos);
    EXPECT_EQ(waiting(), "0");
}

TEST_F(HandOver, SaysNothingOfTheServerThatFails)
{
    track(1);
    change(m_path, "UPDATE state SET not_before = 1795199937000000000, failures = 3");
    exportTo(m_file);
    EXPECT_EQ(query(m_path, "SELECT not_before, failures FROM state"),
              (std::vector<Row>{{"1795199937000000000", "3"}}));
}

TEST_F(HandOver, WaitsForNobodyWhoSends)
{
    track(1);
    rui::FileLock sender(rui::StorePaths(m_path).senderLock());
    ASSERT_TRUE(sender.tryLock());
    const Outcome outcome = exportTo(m_file);
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.errors, "rui-events: another process is sending, try again later\n");
    EXPECT_EQ(waiting(), "1");
}

TEST_F(HandOver, GoesOnBesideASessionThatIsOpen)
{
    Session session;
    session.open(m_path);
    session.track("before");
    EXPECT_EQ(exportTo(m_file).status, 0);
    EXPECT_EQ(session.track("after"), 0);
    EXPECT_EQ(storedTexts(m_path), (Texts{"before", "after"}));
    EXPECT_EQ(waiting(), "1");
}

TEST_F(HandOver, OfALargeBacklogKeepsTheLastThousandReadable)
{
    track(2500);
    EXPECT_EQ(exportTo(m_file).output, "handed over 2500 records in 25 requests: " + m_file + "\n");
    EXPECT_EQ(queryValue(m_path, "SELECT count(*) FROM delivered WHERE exported = 1"), "1000");
    EXPECT_EQ(queryValue(m_path, "SELECT exported FROM state"), "2500");
}

TEST_F(HandOver, NeedsAFile)
{
    const Outcome outcome = runProgram({RUI_EVENTS_PROGRAM, "export", m_path});
    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.errors, "rui-events: 'export' and '--otlp' with the name of a new file belong"
                              " together\n");
}

} // namespace
