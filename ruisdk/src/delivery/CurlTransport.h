// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "delivery/DeliveryLimits.h"
#include "delivery/ServerAddress.h"
#include "delivery/Transport.h"
#include "delivery/TransportOptions.h"

#include <curl/curl.h>

#include <atomic>
#include <memory>

namespace rui {

// Requests over HTTP by libcurl: TLS is verified, redirects are followed within the server only,
// and nothing but the library's name and version is said about this machine.
class CurlTransport : public Transport
{
public:
    CurlTransport(ServerAddress address, DeliveryLimits limits, TransportOptions options = {});

    Response post(const std::string &body) override;
    void cancel() override;

private:
    struct Exchange;

    void configure(CURL *easy, Exchange &exchange) const;
    void run(Exchange &exchange);
    void wait(Exchange &exchange);
    Response exchangeOnce(const std::string &url, const std::string &body, std::string &redirect);

    struct MultiFree
    {
        void operator()(CURLM *multi) const noexcept
        {
            curl_multi_cleanup(multi);
        }
    };

    const ServerAddress m_address;
    const DeliveryLimits m_limits;
    const TransportOptions m_options;
    std::unique_ptr<CURLM, MultiFree> m_multi;
    std::atomic<bool> m_cancelled{false};
};

// Prepares libcurl; called once by whoever comes first. Any thread.
void initialiseCurl();

} // namespace rui
