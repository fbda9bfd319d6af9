// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "delivery/CurlTransport.h"

#include "core/Failure.h"
#include "delivery/CurlDescriptors.h"

#include <array>
#include <mutex>

namespace rui {

namespace {

struct EasyFree
{
    void operator()(CURL *easy) const noexcept
    {
        curl_easy_cleanup(easy);
    }
};

struct ListFree
{
    void operator()(curl_slist *list) const noexcept
    {
        curl_slist_free_all(list);
    }
};
using Headers = std::unique_ptr<curl_slist, ListFree>;

void append(Headers &headers, const std::string &line)
{
    curl_slist *longer = curl_slist_append(headers.get(), line.c_str());
    if (longer == nullptr) {
        throw Failure(RUI_INTERNAL, "memory is short");
    }
    static_cast<void>(headers.release());
    headers.reset(longer);
}

Headers requestHeaders(const TransportOptions &options)
{
    Headers headers;
    for (const char *line : {"Content-Type: application/json", "Content-Encoding: gzip",
                             "Accept: application/json", "Expect:"}) {
        append(headers, line);
    }
    for (const auto &[name, value] : options.headers) {
        append(headers, name + ": " + value);
    }
    return headers;
}

std::string headerOf(CURL *easy, const char *name)
{
    curl_header *header = nullptr;
    return curl_easy_header(easy, name, 0, CURLH_HEADER, -1, &header) == CURLHE_OK ? header->value
                                                                                   : "";
}

} // namespace

// One request and what it needs while it is under way.
struct CurlTransport::Exchange
{
    std::unique_ptr<CURL, EasyFree> easy{curl_easy_init()};
    Headers headers;
    std::string body;
    std::size_t bodyLimit = 0;
    std::array<char, CURL_ERROR_SIZE> error{};
    CURLcode result = CURLE_OK;

    // Takes what fits; taking less than was offered ends the transfer.
    static std::size_t take(char *data, std::size_t, std::size_t size, void *self)
    {
        auto &exchange = *static_cast<Exchange *>(self);
        const std::size_t room = exchange.bodyLimit - exchange.body.size();
        exchange.body.append(data, std::min(size, room));
        return std::min(size, room);
    }
};

void initialiseCurl()
{
    static std::once_flag once;
    std::call_once(once, [] { curl_global_init(CURL_GLOBAL_DEFAULT); });
}

CurlTransport::CurlTransport(ServerAddress address, DeliveryLimits limits, TransportOptions options)
    : m_address(std::move(address))
    , m_limits(limits)
    , m_options(std::move(options))
{
    initialiseCurl();
    m_multi.reset(newClosingMulti());
    if (!m_multi) {
        throw Failure(RUI_INTERNAL, "libcurl cannot be used");
    }
}

void CurlTransport::configure(CURL *easy, Exchange &exchange) const
{
    curl_easy_setopt(easy, CURLOPT_HTTPHEADER, exchange.headers.get());
    curl_easy_setopt(easy, CURLOPT_USERAGENT, "ruiSDK/" RUI_VERSION);
    curl_easy_setopt(easy, CURLOPT_PROTOCOLS_STR, m_address.isPlain ? "http" : "https");
    curl_easy_setopt(easy, CURLOPT_SSLVERSION, CURL_SSLVERSION_TLSv1_2);
    curl_easy_setopt(easy, CURLOPT_CONNECTTIMEOUT_MS,
                     static_cast<long>(m_limits.connectTimeout.count()));
    curl_easy_setopt(easy, CURLOPT_TIMEOUT_MS, static_cast<long>(m_limits.transferTimeout.count()));
    curl_easy_setopt(easy, CURLOPT_WRITEFUNCTION, &Exchange::take);
    curl_easy_setopt(easy, CURLOPT_WRITEDATA, &exchange);
    curl_easy_setopt(easy, CURLOPT_ERRORBUFFER, exchange.error.data());
    curl_easy_setopt(easy, CURLOPT_OPENSOCKETFUNCTION, &openClosingSocket);
    curl_easy_setopt(easy, CURLOPT_NOSIGNAL, 1L);
    // Name servers that do not answer must not hold up the end of a session.
    curl_easy_setopt(easy, CURLOPT_QUICK_EXIT, 1L);
    if (m_address.isPlain) {
        // A proxy would carry the plain text off this machine.
        curl_easy_setopt(easy, CURLOPT_PROXY, "");
    } else if (m_options.proxy) {
        curl_easy_setopt(easy, CURLOPT_PROXY, m_options.proxy->c_str());
    }
    if (!m_options.caFile.empty()) {
        curl_easy_setopt(easy, CURLOPT_CAINFO, m_options.caFile.c_str());
    }
}

void CurlTransport::wait(Exchange &exchange)
{
    // The limit only matters should a wake-up be missed.
    constexpr int pollMilliseconds = 1000;
    int running = 1;
    while (running > 0 && !m_cancelled) {
        curl_multi_perform(m_multi.get(), &running);
        if (running > 0) {
            curl_multi_poll(m_multi.get(), nullptr, 0, pollMilliseconds, nullptr);
        }
    }
    exchange.result = CURLE_ABORTED_BY_CALLBACK;
    int left = 0;
    while (const CURLMsg *message = curl_multi_info_read(m_multi.get(), &left)) {
        exchange.result = message->msg == CURLMSG_DONE ? message->data.result : exchange.result;
    }
}

void CurlTransport::run(Exchange &exchange)
{
    curl_multi_add_handle(m_multi.get(), exchange.easy.get());
    wait(exchange);
    curl_multi_remove_handle(m_multi.get(), exchange.easy.get());
}

Response CurlTransport::exchangeOnce(const std::string &url, const std::string &body,
                                     std::string &redirect)
{
    Exchange exchange;
    exchange.headers = requestHeaders(m_options);
    exchange.bodyLimit = m_limits.responseBytes;
    CURL *easy = exchange.easy.get();
    configure(easy, exchange);
    curl_easy_setopt(easy, CURLOPT_URL, url.c_str());
    curl_easy_setopt(easy, CURLOPT_POSTFIELDS, body.data());
    curl_easy_setopt(easy, CURLOPT_POSTFIELDSIZE_LARGE, static_cast<curl_off_t>(body.size()));
    run(exchange);

    Response response;
    long status = 0;
    curl_easy_getinfo(easy, CURLINFO_RESPONSE_CODE, &status);
    const bool cut = exchange.result == CURLE_WRITE_ERROR;
    if (exchange.result != CURLE_OK && !cut) {
        response.cancelled = exchange.result == CURLE_ABORTED_BY_CALLBACK;
        response.error =
            exchange.error[0] != '\0' ? exchange.error.data() : curl_easy_strerror(exchange.result);
        return response;
    }
    response.status = static_cast<int>(status);
    response.body = std::move(exchange.body);
    response.retryAfter = headerOf(easy, "Retry-After");
    char *target = nullptr;
    curl_easy_getinfo(easy, CURLINFO_REDIRECT_URL, &target);
    redirect = target == nullptr ? "" : target;
    return response;
}

Response CurlTransport::post(const std::string &body)
{
    std::string url = m_address.url;
    for (int redirects = 0;; ++redirects) {
        std::string target;
        Response response = exchangeOnce(url, body, target);
        // The other redirects would turn the request into one without a body.
        const bool keepsBody = response.status == 307 || response.status == 308;
        if (!keepsBody || redirects == m_limits.redirects || !isSameOrigin(url, target)) {
            return response;
        }
        url = target;
    }
}

void CurlTransport::cancel()
{
    m_cancelled = true;
    curl_multi_wakeup(m_multi.get());
}

} // namespace rui
