// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

// Tells the thread sanitizer that what a thread did before it released a QMutex or a QSemaphore
// happens before what another thread does when it has got it; see QtLocks.cpp.

#ifdef __SANITIZE_THREAD__

#include <dlfcn.h>
#include <sanitizer/tsan_interface.h>

#include <QDeadlineTimer>
#include <QMutex>
#include <QSemaphore>
#include <QWaitCondition>

namespace {

template <class Function>
Function qtFunction(const char *symbol)
{
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, symbol));
}

/// \a isAcquired after the sanitizer was told.
bool acquired(void *lock, bool isAcquired)
{
    if (isAcquired) {
        __tsan_acquire(lock);
    }
    return isAcquired;
}

} // namespace

#define STANDS_BEFORE(symbol) asm(symbol) __attribute__((visibility("default")))
#define MUTEX_LOCK "_ZN6QMutex4lockEv"
#define MUTEX_TRY_LOCK "_ZN6QMutex7tryLockEi"
#define MUTEX_UNLOCK "_ZN6QMutex6unlockEv"
#define CONDITION_WAIT "_ZN14QWaitCondition4waitEP6QMutex14QDeadlineTimer"
#define CONDITION_WAIT_MS "_ZN14QWaitCondition4waitEP6QMutexm"
#define SEMAPHORE_ACQUIRE "_ZN10QSemaphore7acquireEi"
#define SEMAPHORE_TRY "_ZN10QSemaphore10tryAcquireEi"
#define SEMAPHORE_TRY_MS "_ZN10QSemaphore10tryAcquireEii"
#define SEMAPHORE_RELEASE "_ZN10QSemaphore7releaseEi"

void lockMutex(QMutex *self) STANDS_BEFORE(MUTEX_LOCK);
bool tryLockMutex(QMutex *self, int timeout) STANDS_BEFORE(MUTEX_TRY_LOCK);
void unlockMutex(QMutex *self) STANDS_BEFORE(MUTEX_UNLOCK);
bool wait(QWaitCondition *self, QMutex *mutex, QDeadlineTimer deadline)
    STANDS_BEFORE(CONDITION_WAIT);
bool waitMs(QWaitCondition *self, QMutex *mutex, unsigned long time)
    STANDS_BEFORE(CONDITION_WAIT_MS);
void acquire(QSemaphore *self, int count) STANDS_BEFORE(SEMAPHORE_ACQUIRE);
bool tryAcquire(QSemaphore *self, int count) STANDS_BEFORE(SEMAPHORE_TRY);
bool tryAcquireMs(QSemaphore *self, int count, int timeout) STANDS_BEFORE(SEMAPHORE_TRY_MS);
void release(QSemaphore *self, int count) STANDS_BEFORE(SEMAPHORE_RELEASE);

void lockMutex(QMutex *self)
{
    qtFunction<decltype(&lockMutex)>(MUTEX_LOCK)(self);
    __tsan_acquire(self);
}

bool tryLockMutex(QMutex *self, int timeout)
{
    return acquired(self, qtFunction<decltype(&tryLockMutex)>(MUTEX_TRY_LOCK)(self, timeout));
}

void unlockMutex(QMutex *self)
{
    __tsan_release(self);
    qtFunction<decltype(&unlockMutex)>(MUTEX_UNLOCK)(self);
}

bool wait(QWaitCondition *self, QMutex *mutex, QDeadlineTimer deadline)
{
    __tsan_release(mutex);
    const bool isWoken = qtFunction<decltype(&wait)>(CONDITION_WAIT)(self, mutex, deadline);
    __tsan_acquire(mutex);
    return isWoken;
}

bool waitMs(QWaitCondition *self, QMutex *mutex, unsigned long time)
{
    __tsan_release(mutex);
    const bool isWoken = qtFunction<decltype(&waitMs)>(CONDITION_WAIT_MS)(self, mutex, time);
    __tsan_acquire(mutex);
    return isWoken;
}

void acquire(QSemaphore *self, int count)
{
    qtFunction<decltype(&acquire)>(SEMAPHORE_ACQUIRE)(self, count);
    __tsan_acquire(self);
}

bool tryAcquire(QSemaphore *self, int count)
{
    return acquired(self, qtFunction<decltype(&tryAcquire)>(SEMAPHORE_TRY)(self, count));
}

bool tryAcquireMs(QSemaphore *self, int count, int timeout)
{
    return acquired(self,
                    qtFunction<decltype(&tryAcquireMs)>(SEMAPHORE_TRY_MS)(self, count, timeout));
}

void release(QSemaphore *self, int count)
{
    __tsan_release(self);
    qtFunction<decltype(&release)>(SEMAPHORE_RELEASE)(self, count);
}

#endif
