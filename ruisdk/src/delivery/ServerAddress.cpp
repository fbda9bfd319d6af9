// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "delivery/ServerAddress.h"

#include "core/Failure.h"

#include <curl/curl.h>

#include <memory>

namespace rui {

namespace {

struct UrlFree
{
    void operator()(CURLU *url) const noexcept
    {
        curl_url_cleanup(url);
    }
};
using Url = std::unique_ptr<CURLU, UrlFree>;

// Null when the text is no URL.
Url parseUrl(const std::string &text)
{
    Url url(curl_url());
    const bool valid = url && curl_url_set(url.get(), CURLUPART_URL, text.c_str(), 0) == CURLUE_OK;
    return valid ? std::move(url) : nullptr;
}

// Empty when the URL has no such part.
std::string partOf(const Url &url, CURLUPart part)
{
    char *text = nullptr;
    if (curl_url_get(url.get(), part, &text, CURLU_DEFAULT_PORT) != CURLUE_OK) {
        return {};
    }
    std::string result = text;
    curl_free(text);
    return result;
}

bool isLoopback(const std::string &host)
{
    // Names are resolved by somebody else, but for this one, which libcurl itself resolves.
    return host == "localhost" || host == "[::1]" || host.rfind("127.", 0) == 0;
}

// "127.evil.example.com" begins like an address of the loopback, too.
bool isNumeric(const std::string &host)
{
    return host.find_first_not_of("0123456789.") == std::string::npos;
}

bool mayBePlain(const std::string &host)
{
    return isLoopback(host) && (host.rfind("127.", 0) != 0 || isNumeric(host));
}

void requireNoExtras(const Url &url, const std::string &text)
{
    for (const CURLUPart part :
         {CURLUPART_USER, CURLUPART_PASSWORD, CURLUPART_QUERY, CURLUPART_FRAGMENT}) {
        if (!partOf(url, part).empty()) {
            throw Failure(RUI_BAD_ARGUMENT,
                          text + ": an address is a host, a port and a path and nothing else");
        }
    }
}

std::string withoutTrailingSlash(std::string path)
{
    while (!path.empty() && path.back() == '/') {
        path.pop_back();
    }
    return path;
}

} // namespace

ServerAddress parseServerAddress(const std::string &serverHost)
{
    const bool hasScheme = serverHost.find("://") != std::string::npos;
    const Url url = parseUrl(hasScheme ? serverHost : "https://" + serverHost);
    if (!url) {
        throw Failure(RUI_BAD_ARGUMENT, "'" + serverHost + "' is not a server address");
    }
    requireNoExtras(url, serverHost);
    const std::string scheme = partOf(url, CURLUPART_SCHEME);
    const std::string host = partOf(url, CURLUPART_HOST);
    const bool plain = scheme == "http";
    if (scheme != "https" && !(plain && mayBePlain(host))) {
        throw Failure(RUI_UNSUPPORTED, serverHost + ": use https; http is for the loopback alone");
    }
    return {scheme + "://" + host + ":" + partOf(url, CURLUPART_PORT)
                + withoutTrailingSlash(partOf(url, CURLUPART_PATH)) + "/v1/logs",
            plain};
}

bool isSameOrigin(const std::string &one, const std::string &other)
{
    const Url first = parseUrl(one);
    const Url second = parseUrl(other);
    if (!first || !second) {
        return false;
    }
    for (const CURLUPart part : {CURLUPART_SCHEME, CURLUPART_HOST, CURLUPART_PORT}) {
        if (partOf(first, part) != partOf(second, part)) {
            return false;
        }
    }
    return true;
}

} // namespace rui
