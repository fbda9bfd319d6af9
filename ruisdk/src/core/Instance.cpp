// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "core/Instance.h"

#include "core/Failure.h"

namespace rui {

Instance::Instance(Limits limits, const Clock &clock)
    : m_limits(limits)
    , m_clock(clock)
{}

Instance::~Instance() = default;

void Instance::require(bool allowed) const
{
    if (!allowed) {
        throw Failure(RUI_WRONG_STATE, "the call does not fit the state of the instance");
    }
}

void Instance::configure(const Config &config)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    require(m_state == State::Created);
    m_store.emplace(StorePaths(config.directory), OpeningOptions{config.syncEveryCommit, false},
                    m_limits, m_clock);
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
    if (!m_optedOut) {
        m_store->join(m_product);
    }
    m_state = State::Running;
}

void Instance::stop(bool)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    require(m_state == State::Running);
    m_store->leave();
    m_state = State::Stopped;
}

void Instance::optOut()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    require(m_state != State::Created);
    m_store->withdraw(m_product);
    m_optedOut = true;
}

void Instance::track(const Event &event)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    require(m_state == State::Running);
    if (m_optedOut) {
        throw Failure(RUI_OPTED_OUT, "this instance has opted out");
    }
    m_store->add(event);
}

void Instance::shutDown() noexcept
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_store.reset();
    m_state = State::Stopped;
}

} // namespace rui
