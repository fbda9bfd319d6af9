// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <ruiSDK.h>

#include <atomic>
#include <mutex>
#include <string>

namespace rui {

// What the library's thread says to the program: nothing before a hook is set. Shared by an
// instance and its workers, which may outlive it. Any thread.
class Log
{
public:
    // Null: off. When this returns, the earlier hook does not run, and is not called again.
    void setHook(ruiLogHook hook, void *context);

    // Off for good, with the same promise; but when a hook of this log ends the program.
    void close();

    // Calls the hook, one at a time. Whatever it throws is swallowed.
    void say(ruiLogLevel level, const std::string &text) noexcept;

private:
    std::mutex m_mutex;
    std::atomic<bool> m_isClosed{false};
    ruiLogHook m_hook = nullptr;
    void *m_context = nullptr;
};

// Whether this thread runs a hook now, of whatever instance.
bool isInsideHook() noexcept;

} // namespace rui
