// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Clock.h"
#include "core/Limits.h"
#include "core/Log.h"
#include "delivery/ServerAddress.h"
#include "delivery/TransportOptions.h"
#include "delivery/Worker.h"
#include "store/Store.h"

#include <functional>
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
    // Nothing: events stay on this machine.
    std::optional<ServerAddress> server;
    bool syncEveryCommit = false;
};

// What stands behind a handle: the order of calls, one connection to the database and the worker
// of the session. Any thread. Every function throws Failure, and changes nothing then.
class Instance
{
public:
    explicit Instance(Limits limits = {}, const Clock &clock = systemClock());
    ~Instance();
    Instance(const Instance &) = delete;
    Instance &operator=(const Instance &) = delete;

    void configure(const Config &config);
    void setProduct(const std::string &edition, const std::string &language,
                    const std::string &version, const std::string &build);
    void start();
    void stop(bool deliver);
    void optOut();
    void track(const Event &event);

    // Empty when there is none.
    std::string clientId();

    // Changes how the server is reached, for the next session. Not while one is open.
    void setTransport(const std::function<void(TransportOptions &)> &change);

    // Null: off. Waits for a hook that runs.
    void setLogHook(ruiLogHook hook, void *context);

    // For everybody who uses the directory, until it is changed again.
    void setPaused(bool paused);
    bool isPaused();

    // Waits until nothing is left in the directory to deliver. RUI_TIMEOUT when the time is over.
    void flush(std::chrono::milliseconds limit);

    // Ends the session if one is open, without delivering anything, and the instance with it: every
    // later call is RUI_BAD_HANDLE.
    void shutDown() noexcept;

private:
    enum class State { Created, Configured, Ready, Running, Stopped, Ended };
    // Asked: the user has withdrawn consent, and it could not be carried out yet. Either way this
    // instance never stores an event again, nor begins a session of events.
    enum class Withdrawal { None, Asked, Done };

    void require(bool allowed) const;
    void withdraw();
    void requirePermission();
    void startWorker();
    std::unique_ptr<Worker> endSession(State next);
    bool isDelivered();
    std::chrono::milliseconds stopLimit() noexcept;

    const Limits m_limits;
    const Clock &m_clock;
    const std::shared_ptr<BusyLimit> m_busyLimit;
    const std::shared_ptr<Log> m_log = std::make_shared<Log>();
    std::mutex m_mutex;
    State m_state = State::Created;
    Withdrawal m_withdrawal = Withdrawal::None;
    Config m_config;
    TransportOptions m_transport;
    Product m_product;
    std::optional<Store> m_store;
    std::unique_ptr<Worker> m_worker;
};

} // namespace rui
