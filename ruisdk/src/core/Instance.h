// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Clock.h"
#include "core/Limits.h"
#include "store/Store.h"

#include <memory>
#include <mutex>
#include <optional>

namespace rui {

// What ruiCreateConfig was given, checked.
struct Config
{
    std::string directory;
    std::string productId;
    std::string application;
    std::string serverHost;
    bool syncEveryCommit = false;
};

// What stands behind a handle: the order of calls, and one connection to the database. Any
// thread. Every function throws Failure, and changes nothing then.
class Instance
{
public:
    explicit Instance(Limits limits = {}, const Clock &clock = systemClock());
    ~Instance();

    void configure(const Config &config);
    void setProduct(const std::string &edition, const std::string &language,
                    const std::string &version, const std::string &build);
    void start();
    void stop(bool deliver);
    void optOut();
    void track(const Event &event);

    // Ends the session if one is open.
    void shutDown() noexcept;

private:
    enum class State { Created, Configured, Ready, Running, Stopped };

    void require(bool allowed) const;

    const Limits m_limits;
    const Clock &m_clock;
    std::mutex m_mutex;
    State m_state = State::Created;
    bool m_optedOut = false;
    Product m_product;
    std::optional<Store> m_store;
};

} // namespace rui
