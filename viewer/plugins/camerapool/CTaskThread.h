// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>

#include <QtGlobal>

namespace CameraPool {

/// A thread that does tasks in the order in which they were posted. A task must not throw.
class CTaskThread
{
public:
    CTaskThread();

    /// Stops as `stop` does.
    ~CTaskThread();

    Q_DISABLE_COPY_MOVE(CTaskThread)

    /// Callable in any thread. After `stop` the task is dropped.
    void post(std::function<void()> task);

    /// Drops the tasks that have not begun, waits for the one that has, and ends the thread. Called
    /// in a task it does not wait: the thread ends with that task. May be called again.
    void stop();

private:
    struct State;

    // Shared with the thread, which lives longer if it is stopped by its own task.
    const std::shared_ptr<State> m_state;
};

} // namespace CameraPool
