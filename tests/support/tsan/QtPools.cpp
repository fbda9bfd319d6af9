// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

// Tells the thread sanitizer that what a thread did before it gave work to a QThreadPool happens
// before the work, and the work before what is done after the wait for its end; see QtLocks.cpp.

#ifdef __SANITIZE_THREAD__

#include <dlfcn.h>
#include <sanitizer/tsan_interface.h>

#include <functional>
#include <utility>

#include <QRunnable>
#include <QThreadPool>

namespace {

/// Work that hears of its giver. Qt deletes it in the thread in which it ran.
class CHearingWork : public QRunnable
{
public:
    CHearingWork(QThreadPool *pool, std::function<void()> work)
        : m_pool(pool)
        , m_work(std::move(work))
    {
        __tsan_release(this);
    }

    void run() override
    {
        __tsan_acquire(this);
        m_work();
        __tsan_release(m_pool);
    }

private:
    QThreadPool *m_pool;
    std::function<void()> m_work;
};

} // namespace

void QThreadPool::start(std::function<void()> work, int priority)
{
    start(new CHearingWork(this, std::move(work)), priority);
}

bool QThreadPool::waitForDone(int milliseconds)
{
    using Function = bool (*)(QThreadPool *, int);
    const auto wait =
        reinterpret_cast<Function>(dlsym(RTLD_NEXT, "_ZN11QThreadPool11waitForDoneEi"));
    const bool isDone = wait(this, milliseconds);
    __tsan_acquire(this);
    return isDone;
}

#endif
