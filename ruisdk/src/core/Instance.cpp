// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "core/Instance.h"

#include "core/ExitHandler.h"
#include "core/Failure.h"
#include "delivery/CurlTransport.h"
#include "store/Policy.h"

#include <filesystem>
#include <thread>

namespace rui {

namespace {

// Lets no call wait for a lock while a session is being ended.
class NoWaiting
{
public:
    explicit NoWaiting(BusyLimit &limit)
        : m_limit(limit)
    {
        m_limit.giveUp = true;
    }
    ~NoWaiting()
    {
        m_limit.giveUp = false;
    }
    NoWaiting(const NoWaiting &) = delete;
    NoWaiting &operator=(const NoWaiting &) = delete;

private:
    BusyLimit &m_limit;
};

} // namespace

Instance::Instance(Limits limits, const Clock &clock)
    : m_limits(limits)
    , m_clock(clock)
    , m_busyLimit(std::make_shared<BusyLimit>(limits.callBusyLimit))
{}

Instance::~Instance() = default;

void Instance::require(bool allowed) const
{
    if (m_state == State::Ended) {
        throw Failure(RUI_BAD_HANDLE, "the instance is being destroyed");
    }
    if (!allowed) {
        throw Failure(RUI_WRONG_STATE, "the call does not fit the state of the instance");
    }
}

void Instance::configure(const Config &config)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    require(m_state == State::Created);
    endSessionsAtExit();
    // The program may change its working directory later.
    const std::string directory = std::filesystem::absolute(config.directory).string();
    OpeningOptions opening;
    opening.syncEveryCommit = config.syncEveryCommit;
    m_store.emplace(StorePaths(directory), opening, m_limits, m_clock, m_busyLimit);
    m_config = config;
    m_config.directory = directory;
    m_product.productId = config.productId;
    m_product.application = config.application;
    m_state = State::Configured;
}

void Instance::setProduct(const std::string &edition, const std::string &language,
                          const std::string &version, const std::string &build)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    require(m_state == State::Configured || m_state == State::Ready);
    m_product.edition = edition;
    m_product.language = language;
    m_product.version = version;
    m_product.build = build;
    m_state = State::Ready;
}

void Instance::start()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    require(m_state == State::Ready || m_state == State::Stopped);
    if (m_withdrawal != Withdrawal::None) {
        withdraw();
    }
    requirePermission();
    if (m_withdrawal == Withdrawal::None) {
        m_store->join(m_product);
        m_store->noteServer(m_config.server ? m_config.server->url : std::string());
    }
    startWorker();
    m_state = State::Running;
}

void Instance::requirePermission()
{
    const Policy policy = readPolicy(m_config.productId);
    if (!policy.forbidsStoring) {
        return;
    }
    if (policy.isProhibitedByAdministrator()) {
        m_store->forget();
    }
    throw Failure(RUI_FORBIDDEN, policy.problem ? *policy.problem : "recording is forbidden");
}

void Instance::startWorker()
{
    WorkerOptions options;
    options.paths = StorePaths(m_config.directory);
    options.opening.syncEveryCommit = m_config.syncEveryCommit;
    options.opening.create = false;
    options.limits = m_limits;
    options.clock = &m_clock;
    options.log = m_log;
    if (m_config.server) {
        options.transport = std::make_shared<CurlTransport>(*m_config.server, options.delivery,
                                                            withEnvironment(m_transport));
    }
    m_worker = std::make_unique<Worker>(std::move(options));
}

std::unique_ptr<Worker> Instance::endSession(State next)
{
    m_state = next;
    if (m_store) {
        m_store->leave();
    }
    return std::move(m_worker);
}

std::chrono::milliseconds Instance::stopLimit() noexcept
{
    try {
        return m_store->hasOptOut() ? m_limits.optOutStopLimit : m_limits.stopLimit;
    } catch (const std::exception &) {
        return m_limits.stopLimit;
    }
}

void Instance::stop(bool deliver)
{
    const NoWaiting noWaiting(*m_busyLimit);
    std::unique_lock<std::mutex> lock(m_mutex);
    require(m_state == State::Running);
    const auto limit = stopLimit();
    const auto worker = endSession(State::Stopped);
    // Other calls need not wait for the worker; they find the session ended.
    lock.unlock();
    worker->stop(deliver, limit);
}

void Instance::optOut()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    require(m_state != State::Created);
    try {
        withdraw();
    } catch (...) {
        if (m_worker) {
            m_worker->endDelivery();
        }
        throw;
    }
    if (m_worker) {
        m_worker->notify(true);
    }
}

void Instance::withdraw()
{
    // Carried out once: a new consent that somebody gave since then is not this instance's.
    if (m_withdrawal == Withdrawal::Done) {
        return;
    }
    m_withdrawal = Withdrawal::Asked;
    m_store->withdraw(m_product);
    m_withdrawal = Withdrawal::Done;
}

void Instance::track(const Event &event)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    require(m_state == State::Running);
    if (m_withdrawal != Withdrawal::None) {
        throw Failure(RUI_OPTED_OUT, "this instance has opted out");
    }
    m_store->add(event);
    m_worker->notify(m_store->hasLargeJournal());
}

std::string Instance::clientId()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    require(m_state != State::Created);
    return m_store->clientId();
}

void Instance::setTransport(const std::function<void(TransportOptions &)> &change)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    require(m_state != State::Running);
    change(m_transport);
}

void Instance::setLogHook(ruiLogHook hook, void *context)
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        require(true);
    }
    // Without the lock: a hook that runs may wait for a thread that needs it.
    m_log->setHook(hook, context);
}

void Instance::setPaused(bool paused)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    require(m_state != State::Created);
    m_store->setPaused(paused);
    if (m_worker) {
        m_worker->notify(true);
    }
}

bool Instance::isPaused()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    require(m_state != State::Created);
    return m_store->isPaused();
}

bool Instance::isDelivered()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    require(m_state == State::Running && m_config.server && !m_store->isPaused());
    if (!m_store->hasRecords()) {
        return true;
    }
    m_worker->notify(true);
    return false;
}

void Instance::flush(std::chrono::milliseconds limit)
{
    constexpr std::chrono::milliseconds lookEvery{10};
    const auto end = std::chrono::steady_clock::now() + limit;
    while (!isDelivered()) {
        if (std::chrono::steady_clock::now() >= end) {
            throw Failure(RUI_TIMEOUT, "not everything was delivered in time");
        }
        std::this_thread::sleep_for(lookEvery);
    }
}

void Instance::shutDown() noexcept
{
    const NoWaiting noWaiting(*m_busyLimit);
    std::unique_lock<std::mutex> lock(m_mutex);
    const auto worker = endSession(State::Ended);
    lock.unlock();
    if (worker) {
        worker->stop(false, m_limits.stopLimit);
    }
    m_log->close();
    lock.lock();
    m_store.reset();
}

} // namespace rui
