// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "core/Log.h"

#include "core/Utf8.h"

namespace rui {

namespace {

// The log whose hook this thread runs.
thread_local const Log *runningLog = nullptr;

class Running
{
public:
    explicit Running(const Log &log)
    {
        runningLog = &log;
    }
    ~Running()
    {
        runningLog = nullptr;
    }
    Running(const Running &) = delete;
    Running &operator=(const Running &) = delete;
};

} // namespace

bool isInsideHook() noexcept
{
    return runningLog != nullptr;
}

void Log::setHook(ruiLogHook hook, void *context)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_hook = hook;
    m_context = context;
}

void Log::close()
{
    m_isClosed = true;
    // A hook that calls exit() would wait for itself.
    if (runningLog != this) {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_hook = nullptr;
    }
}

void Log::say(ruiLogLevel level, const std::string &text) noexcept
{
    try {
        const std::lock_guard<std::mutex> lock(m_mutex);
        if (m_hook != nullptr && !m_isClosed) {
            const Running running(*this);
            m_hook(level, oneLine(text).c_str(), m_context);
        }
    } catch (...) {
        // The hook's own affair: the delivery goes on.
    }
}

} // namespace rui
