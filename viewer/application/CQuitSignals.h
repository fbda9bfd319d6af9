// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <thread>

#include <QtGlobal>

namespace Application {

/// Turns SIGINT, SIGTERM and SIGHUP (unless that is ignored) into calls of a function, in a thread
/// of its own: a script that calculates must be ended even while no event loop runs. At most one
/// object at a time.
class CQuitSignals
{
public:
    /// \a handler is called for each signal, in that thread, and must not throw.
    explicit CQuitSignals(std::function<void()> handler);

    /// Gives the signals back to the system; the handler is not running any more afterwards.
    ~CQuitSignals();

    Q_DISABLE_COPY_MOVE(CQuitSignals)

private:
    void run();

    std::function<void()> m_handler;
    int m_readEnd = -1;
    std::thread m_thread;
};

} // namespace Application
