// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <curl/curl.h>

namespace rui {

// No descriptor of ours passes to a program that the process executes: it would keep a connection
// open that we have closed. libcurl 7.88 has no option for that.

// For CURLOPT_OPENSOCKETFUNCTION: opens the socket so that it is closed then.
curl_socket_t openClosingSocket(void *, curlsocktype purpose, curl_sockaddr *address);

// Creates a handle whose two sockets for waking it up are closed then. Null when memory is short.
CURLM *newClosingMulti();

} // namespace rui
