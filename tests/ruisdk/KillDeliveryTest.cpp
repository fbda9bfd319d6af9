// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// Three writers and a sender are killed at random moments: what was acknowledged arrives.
#include "Child.h"
#include "ReceivedRecords.h"
#include "StoredRecords.h"
#include "TemporaryDirectory.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <memory>
#include <random>
#include <set>
#include <sstream>

namespace {

using namespace rui::test;

enum class Network { Up, Down, Flapping };

// Three writers together stay within the number of events that are kept.
constexpr int latestMoment = 2500;

int rounds()
{
    const char *wanted = std::getenv("RUI_KILL_ROUNDS");
    return wanted == nullptr ? 3 : std::atoi(wanted);
}

class KillRound
{
public:
    KillRound(Network network, std::mt19937 &random)
        : m_network(network)
        , m_random(random)
    {
        m_server.setDown(network == Network::Down);
        for (const char *name : {"a", "b", "c"}) {
            m_children.push_back(start(name, "10000", "stop"));
        }
        m_children.push_back(start("sender", "0", "stay"));
        m_sender = m_children.back().get();
    }

    void killAll()
    {
        while (!m_children.empty()) {
            std::shuffle(m_children.begin(), m_children.end(), m_random);
            readSome(*m_children.back());
            m_children.back()->sendSignal(SIGKILL);
            readRest(*m_children.back());
            m_children.back()->wait();
            m_children.pop_back();
            if (m_network == Network::Flapping) {
                m_server.setDown(m_random() % 2 == 0);
            }
        }
    }

    void deliverTheRest()
    {
        m_server.setDown(false);
        const Outcome sent =
            runProgram({RUI_EVENTS_PROGRAM, "send", "--to", m_server.url(), m_directory.path()});
        ASSERT_EQ(sent.status, 0) << sent.errors;
    }

    void check() const
    {
        EXPECT_EQ(queryValue(m_directory.path(), "PRAGMA integrity_check"), "ok");
        std::map<std::string, std::set<std::string>> idsOfText;
        for (const ReceivedRecord &record : receivedRecords(m_server)) {
            idsOfText[record.text].insert(record.uid);
        }
        for (const std::string &text : m_acknowledged) {
            ASSERT_EQ(idsOfText.count(text), 1U) << text << " did not arrive";
        }
        for (const auto &[text, ids] : idsOfText) {
            ASSERT_EQ(ids.size(), 1U) << text << " arrived under several ids";
        }
    }

    std::size_t acknowledged() const
    {
        return m_acknowledged.size();
    }

private:
    std::unique_ptr<Child> start(const std::string &name, const std::string &count,
                                 const std::string &end)
    {
        return std::make_unique<Child>(std::vector<std::string>{
            RUI_WRITER_PROGRAM, m_directory.path(), name, count, m_server.url(), end});
    }

    void readSome(Child &child)
    {
        // The sender writes nothing: it is killed at once, wherever it is.
        if (&child == m_sender) {
            return;
        }
        std::string line;
        for (auto i = m_random() % latestMoment; i > 0 && child.readLine(line); --i) {
            m_acknowledged.push_back(line);
        }
    }

    void readRest(Child &child)
    {
        std::istringstream rest(child.readAll());
        for (std::string line; std::getline(rest, line);) {
            m_acknowledged.push_back(line);
        }
    }

    const Network m_network;
    std::mt19937 &m_random;
    TemporaryDirectory m_directory;
    TestServer m_server;
    std::vector<std::unique_ptr<Child>> m_children;
    const Child *m_sender = nullptr;
    std::vector<std::string> m_acknowledged;
};

class KillDelivery : public testing::TestWithParam<Network>
{};

TEST_P(KillDelivery, EveryAcknowledgedEventArrivesAndDuplicatesHaveEqualIds)
{
    std::mt19937 random(std::random_device{}());
    std::size_t total = 0;
    for (int round = 0; round < (rounds() + 2) / 3; ++round) {
        KillRound run(GetParam(), random);
        run.killAll();
        ASSERT_NO_FATAL_FAILURE(run.deliverTheRest());
        ASSERT_NO_FATAL_FAILURE(run.check());
        total += run.acknowledged();
    }
    RecordProperty("acknowledged", static_cast<int>(total));
    std::printf("%zu acknowledged events\n", total);
}

INSTANTIATE_TEST_SUITE_P(Networks, KillDelivery,
                         testing::Values(Network::Up, Network::Down, Network::Flapping),
                         [](const auto &row) {
                             return row.param == Network::Up     ? "Up"
                                    : row.param == Network::Down ? "Down"
                                                                 : "Flapping";
                         });

} // namespace
