// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <atomic>
#include <chrono>
#include <functional>

#include <QtGlobal>

namespace Scripting {

/// How a script waits: in an event loop, so that the viewer works on meanwhile. GUI thread, where
/// not said otherwise.
class CScriptWait
{
public:
    enum class Result {
        Met,
        TimedOut,
        Stopped ///< the script has been told to end
    };

    CScriptWait() = default;

    Q_DISABLE_COPY_MOVE(CScriptWait)

    /// Returns when \a condition holds, after \a limit, or when `stop` was called. The condition is
    /// looked at before anything else, so one that holds is met whatever the limit.
    Result until(const std::function<bool()> &condition, std::chrono::milliseconds limit);

    /// Ends every wait, the running ones and those to come. Callable in any thread.
    void stop();

    bool isStopped() const;

private:
    std::atomic<bool> m_isStopped{false};
};

} // namespace Scripting
