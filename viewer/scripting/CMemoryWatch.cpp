// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "scripting/CMemoryWatch.h"

#include <unistd.h>

#include <chrono>
#include <utility>

#include <QFile>

namespace Scripting {

namespace {

// A script fills some hundred megabytes in this time.
constexpr std::chrono::milliseconds interval(50);

// The second number is what is in memory, in pages.
qint64 heldBytes()
{
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly)) {
        return 0;
    }
    return file.readAll().split(' ').value(1).toLongLong() * sysconf(_SC_PAGESIZE);
}

} // namespace

CMemoryWatch::CMemoryWatch(qint64 limit, std::function<void()> onOverrun)
    : m_limit(heldBytes() + limit)
    , m_onOverrun(std::move(onOverrun))
    , m_thread(&CMemoryWatch::run, this)
{}

CMemoryWatch::~CMemoryWatch()
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_isOver = true;
    }
    m_ending.notify_one();
    m_thread.join();
}

void CMemoryWatch::run()
{
    std::unique_lock<std::mutex> lock(m_mutex);
    while (!m_ending.wait_for(lock, interval, [this] { return m_isOver; })) {
        if (heldBytes() > m_limit) {
            lock.unlock();
            m_onOverrun();
            return;
        }
    }
}

} // namespace Scripting
