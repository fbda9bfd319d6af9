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

    /// A condition may depend on another thread, which tells nobody: it is looked at again and
    /// again \a lookAgainAfter. The default is short enough not to be felt, and long enough not to
    /// load the machine.
    explicit CScriptWait(std::chrono::milliseconds lookAgainAfter = std::chrono::milliseconds(5));

    Q_DISABLE_COPY_MOVE(CScriptWait)

    /// Returns when \a condition holds, after \a limit, or when `stop` was called. The condition is
    /// looked at before anything else, so one that holds is met whatever the limit.
    Result until(const std::function<bool()> &condition, std::chrono::milliseconds limit);

    /// Lets every wait look at its condition at once. Callable in any thread, by who has just made
    /// a condition true there, in the global thread pool also while the application ends.
    static void wake();

    /// Ends every wait, the running ones and those to come. Callable in any thread.
    void stop();

    bool isStopped() const;

private:
    const std::chrono::milliseconds m_lookAgainAfter;
    std::atomic<bool> m_isStopped{false};
};

} // namespace Scripting
