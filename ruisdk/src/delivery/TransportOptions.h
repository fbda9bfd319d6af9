// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <optional>
#include <string>

namespace rui {

// Compares names of headers, which do not distinguish cases.
struct HeaderNameLess
{
    bool operator()(const std::string &one, const std::string &other) const;
};

// How to reach the server, beside its address. Kept in memory alone: a header may be a secret.
struct TransportOptions
{
    // Certificates to trust instead of the system's; empty for the system's.
    std::string caFile;
    // Nothing: as the environment says. Empty: none, whatever the environment says.
    std::optional<std::string> proxy;
    // Sent with each request.
    std::map<std::string, std::string, HeaderNameLess> headers;
};

// Each checks what a caller passes and throws Failure with RUI_BAD_ARGUMENT.

// An empty value takes the header away again. The library's own headers cannot be set.
void setHeader(TransportOptions &options, const std::string &name, const std::string &value);

// A file that can be read now, or an empty text.
void setCaFile(TransportOptions &options, const std::string &path);

// The URL of a proxy, or an empty text.
void setProxy(TransportOptions &options, const std::string &url);

// The options with what the environment says where they say nothing: SSL_CERT_FILE. (libcurl looks
// for the proxy's variables itself.) To be called in a thread of the program, which may change the
// environment.
TransportOptions withEnvironment(TransportOptions options);

} // namespace rui
