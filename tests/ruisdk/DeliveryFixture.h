// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "delivery/CurlTransport.h"
#include "delivery/Sender.h"
#include "SetClock.h"
#include "store/Store.h"
#include "StoredRecords.h"
#include "TemporaryDirectory.h"
#include "TestServer.h"

#include <gtest/gtest.h>

#include <optional>

namespace rui::test {

// 2026-11-20T18:38:57Z.
constexpr std::int64_t startTime = 1795199937000000000;

// A directory with a session, a scripted server and a sender whose clock stands still and whose
// jitter is always one half, unless a test sets another one.
class DeliveryFixture : public testing::Test
{
protected:
    DeliveryFixture();

    Store &store();
    void track(const std::string &text, const std::string &name = "N");
    // Opens the sender with the limits of now.
    Sender &sender();
    // Steps until nothing waits or the next try is not due.
    Step deliver();

    std::vector<Row> losses() const;
    std::vector<std::string> pendingTexts() const;
    std::vector<std::string> deliveredTexts() const;
    // What the requests' bodies say as the text of each record, in order.
    std::vector<std::vector<std::string>> sentTexts() const;
    // Seconds from now until the next try; 0 when none is scheduled.
    double secondsUntilNextTry() const;

    TemporaryDirectory m_directory;
    const std::string m_path = m_directory.path();
    SetClock m_clock;
    Limits m_limits;
    DeliveryLimits m_deliveryLimits;
    Jitter m_jitter = [] { return 0.5; };
    TestServer m_server;
    std::optional<Store> m_store;
    std::optional<Database> m_database;
    std::optional<CurlTransport> m_transport;
    SenderMemory m_memory;
    std::optional<Sender> m_sender;
};

} // namespace rui::test
