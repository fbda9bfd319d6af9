// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "delivery/TransportOptions.h"

#include "core/Failure.h"

#include <curl/curl.h>
#include <strings.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <cstring>
#include <memory>

namespace rui {

namespace {

// What the library itself says, and what libcurl frames a request with.
constexpr std::array<const char *, 10> ownHeaders = {
    "Accept", "Connection", "Content-Encoding",  "Content-Length", "Content-Type", "Expect",
    "Host",   "TE",         "Transfer-Encoding", "User-Agent"};

// The characters of a name, as HTTP defines them.
bool isNameCharacter(char character)
{
    const auto byte = static_cast<unsigned char>(character);
    return byte > 0x20 && byte < 0x7F && std::strchr("\"(),/:;<=>?@[\\]{}", character) == nullptr;
}

bool isControl(char character)
{
    const auto byte = static_cast<unsigned char>(character);
    return (byte < 0x20 && byte != '\t') || byte == 0x7F;
}

void requireName(const std::string &name)
{
    if (name.empty() || !std::all_of(name.begin(), name.end(), isNameCharacter)) {
        throw Failure(RUI_BAD_ARGUMENT, "the name of a header has characters that none may have");
    }
    const auto isSame = [&](const char *own) { return strcasecmp(own, name.c_str()) == 0; };
    if (std::any_of(ownHeaders.begin(), ownHeaders.end(), isSame)) {
        throw Failure(RUI_BAD_ARGUMENT, name + ": is the library's own header");
    }
}

bool isUrl(const std::string &text)
{
    const std::unique_ptr<CURLU, void (*)(CURLU *)> url(curl_url(), curl_url_cleanup);
    return url
           && curl_url_set(url.get(), CURLUPART_URL, text.c_str(),
                           CURLU_DEFAULT_SCHEME | CURLU_NON_SUPPORT_SCHEME)
                  == CURLUE_OK;
}

} // namespace

bool HeaderNameLess::operator()(const std::string &one, const std::string &other) const
{
    return strcasecmp(one.c_str(), other.c_str()) < 0;
}

void setHeader(TransportOptions &options, const std::string &name, const std::string &value)
{
    requireName(name);
    if (std::any_of(value.begin(), value.end(), isControl)) {
        throw Failure(RUI_BAD_ARGUMENT, name + ": the value has a control character");
    }
    options.headers.erase(name);
    if (!value.empty()) {
        options.headers.emplace(name, value);
    }
}

void setCaFile(TransportOptions &options, const std::string &path)
{
    if (!path.empty() && access(path.c_str(), R_OK) != 0) {
        throw Failure(RUI_BAD_ARGUMENT, path + ": cannot be read");
    }
    options.caFile = path;
}

void setProxy(TransportOptions &options, const std::string &url)
{
    if (!url.empty() && !isUrl(url)) {
        throw Failure(RUI_BAD_ARGUMENT, "the proxy is no URL");
    }
    options.proxy = url;
}

TransportOptions withEnvironment(TransportOptions options)
{
    const char *file = std::getenv("SSL_CERT_FILE");
    if (options.caFile.empty() && file != nullptr) {
        options.caFile = file;
    }
    return options;
}

} // namespace rui
