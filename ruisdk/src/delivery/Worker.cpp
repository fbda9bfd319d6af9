// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "delivery/Worker.h"

#include "delivery/WorkerLoop.h"

#include <csignal>

namespace rui {

namespace {

// Between cancelling what is under way and the end of the limit.
constexpr std::chrono::milliseconds cancelTime{300};

// Signals of the program are for its own threads.
class SignalBlock
{
public:
    SignalBlock()
    {
        sigset_t all;
        sigfillset(&all);
        pthread_sigmask(SIG_SETMASK, &all, &m_before);
    }
    ~SignalBlock()
    {
        pthread_sigmask(SIG_SETMASK, &m_before, nullptr);
    }
    SignalBlock(const SignalBlock &) = delete;
    SignalBlock &operator=(const SignalBlock &) = delete;

private:
    sigset_t m_before{};
};

} // namespace

Worker::Worker(WorkerOptions options)
    : m_loop(std::make_shared<WorkerLoop>(std::move(options)))
{
    const SignalBlock block;
    m_thread = std::thread([loop = m_loop] { loop->run(); });
}

Worker::~Worker()
{
    stop(false, cancelTime);
}

void Worker::notify(bool urgent)
{
    m_loop->notify(urgent);
}

void Worker::endDelivery()
{
    m_loop->endDelivery();
}

void Worker::stop(bool deliver, std::chrono::milliseconds limit)
{
    if (!m_thread.joinable()) {
        return;
    }
    m_loop->requestStop(deliver, limit);
    if (!m_loop->waitUntilDone(deliver ? limit - cancelTime : std::chrono::milliseconds(0))) {
        m_loop->cancel();
    }
    if (m_loop->waitUntilDone(cancelTime)) {
        m_thread.join();
    } else {
        m_thread.detach();
    }
}

} // namespace rui
