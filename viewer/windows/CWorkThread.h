// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include <QObject>
#include <QThread>

namespace Windows {

/// A thread for what a window must not wait for, such as the access to a device. Belongs to the GUI
/// thread.
class CWorkThread
{
public:
    explicit CWorkThread(const QString &name);

    /// Waits for the work that is under way; what has not begun is dropped.
    ~CWorkThread();

    Q_DISABLE_COPY_MOVE(CWorkThread)

    /// Does \a work after what was posted before. It must own, or share, all that it uses, and must
    /// not throw. Callable in any thread.
    void post(std::function<void()> work);

private:
    QThread m_thread;
    QObject *m_context; // lives in m_thread and ends with it
};

} // namespace Windows
