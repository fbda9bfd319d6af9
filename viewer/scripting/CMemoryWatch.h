// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <condition_variable>
#include <functional>
#include <mutex>
#include <thread>

#include <QtGlobal>

namespace Scripting {

/// Watches in a thread of its own how the memory of this process grows: the script engine takes
/// all that there is, and more ends the process, or the machine's work, without a word.
class CMemoryWatch
{
public:
    /// \a onOverrun is called in that thread, once, when the process holds \a limit bytes more than
    /// now.
    CMemoryWatch(qint64 limit, std::function<void()> onOverrun);

    /// The handler is not running any more afterwards.
    ~CMemoryWatch();

    Q_DISABLE_COPY_MOVE(CMemoryWatch)

private:
    void run();

    const qint64 m_limit;
    const std::function<void()> m_onOverrun;
    std::mutex m_mutex;
    std::condition_variable m_ending;
    bool m_isOver = false;
    std::thread m_thread;
};

} // namespace Scripting
