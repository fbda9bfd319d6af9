// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace rui {

// What came back for a request.
struct Response
{
    // The HTTP status; 0 when there was no answer.
    int status = 0;
    // Ended by cancel(), which says nothing about the server.
    bool cancelled = false;
    // In words, why there was no answer.
    std::string error;
    std::string retryAfter;
    // Its beginning, when it is longer than allowed.
    std::string body;
};

// Carries one request at a time. post() is called by one thread, cancel() by any.
class Transport
{
public:
    virtual ~Transport() = default;

    // Sends a gzip-compressed JSON text and waits for the answer.
    virtual Response post(const std::string &body) = 0;

    // Ends a request that is under way, and lets every later one end at once.
    virtual void cancel() = 0;
};

} // namespace rui
