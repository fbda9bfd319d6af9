// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace rui {

// Where requests go.
struct ServerAddress
{
    // The whole address of the logs, as in "https://collector.example.com/v1/logs".
    std::string url;
    // Plain http, which is for the machine itself alone.
    bool isPlain = false;
};

// Reads a host name with an optional port and path, for which https is used, or a URL. Throws
// Failure: RUI_BAD_ARGUMENT for what is no address or holds a password, RUI_UNSUPPORTED for
// anything but https, and http to the loopback.
ServerAddress parseServerAddress(const std::string &serverHost);

// True when both URLs have the same scheme, host and port.
bool isSameOrigin(const std::string &one, const std::string &other);

} // namespace rui
