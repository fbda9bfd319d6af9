// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "TestServer.h"

#include <string>
#include <vector>

namespace rui::test {

// What a collector makes of a request, read with SQLite's JSON functions.
struct ReceivedRecord
{
    std::string uid;
    std::string eventName;
    std::string client;
    std::string text; // empty when the record has no body
};

// The records of all requests, in order.
std::vector<ReceivedRecord> receivedRecords(const TestServer &server);

} // namespace rui::test
