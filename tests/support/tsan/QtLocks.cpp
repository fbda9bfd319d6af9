// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

// Tells the thread sanitizer what QReadWriteLock does. Qt's libraries are not built for the
// sanitizer, so it sees the data that such a lock guards, but not the lock, and would report a race
// where there is none. These functions stand before Qt's own of the same name and call them.
// Nothing is suppressed: a thread that forgets the lock is still found.

#ifdef __SANITIZE_THREAD__

#include <dlfcn.h>
#include <sanitizer/tsan_interface.h>

#include <algorithm>
#include <vector>

#include <QReadWriteLock>

namespace {

constexpr unsigned reading = __tsan_mutex_read_lock;
constexpr unsigned trying = __tsan_mutex_try_lock;

/// The locks that this thread holds for writing; `unlock` does not say for what it was locked.
thread_local std::vector<const QReadWriteLock *> writeLocks;

template <class Function>
Function qtFunction(const char *symbol)
{
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, symbol));
}

void lock(QReadWriteLock *self, const char *symbol, unsigned flags)
{
    __tsan_mutex_pre_lock(self, flags);
    qtFunction<void (*)(QReadWriteLock *)>(symbol)(self);
    __tsan_mutex_post_lock(self, flags, 1);
}

bool tryLock(QReadWriteLock *self, int timeout, const char *symbol, unsigned flags)
{
    __tsan_mutex_pre_lock(self, flags | trying);
    const bool isLocked = qtFunction<bool (*)(QReadWriteLock *, int)>(symbol)(self, timeout);
    __tsan_mutex_post_lock(self, flags | trying | (isLocked ? 0U : __tsan_mutex_try_lock_failed),
                           1);
    return isLocked;
}

/// Forgets that \a self is held for writing. @return the flags to unlock it with.
unsigned takeFlags(const QReadWriteLock *self)
{
    const auto held = std::find(writeLocks.begin(), writeLocks.end(), self);
    if (held == writeLocks.end()) {
        return reading;
    }
    writeLocks.erase(held);
    return 0;
}

} // namespace

#define STANDS_BEFORE(symbol) asm(symbol) __attribute__((visibility("default")))

void lockForRead(QReadWriteLock *self) STANDS_BEFORE("_ZN14QReadWriteLock11lockForReadEv");
void lockForWrite(QReadWriteLock *self) STANDS_BEFORE("_ZN14QReadWriteLock12lockForWriteEv");
bool tryLockForRead(QReadWriteLock *self, int timeout)
    STANDS_BEFORE("_ZN14QReadWriteLock14tryLockForReadEi");
bool tryLockForWrite(QReadWriteLock *self, int timeout)
    STANDS_BEFORE("_ZN14QReadWriteLock15tryLockForWriteEi");
void unlock(QReadWriteLock *self) STANDS_BEFORE("_ZN14QReadWriteLock6unlockEv");

void lockForRead(QReadWriteLock *self)
{
    lock(self, "_ZN14QReadWriteLock11lockForReadEv", reading);
}

void lockForWrite(QReadWriteLock *self)
{
    lock(self, "_ZN14QReadWriteLock12lockForWriteEv", 0);
    writeLocks.push_back(self);
}

bool tryLockForRead(QReadWriteLock *self, int timeout)
{
    return tryLock(self, timeout, "_ZN14QReadWriteLock14tryLockForReadEi", reading);
}

bool tryLockForWrite(QReadWriteLock *self, int timeout)
{
    const bool isLocked = tryLock(self, timeout, "_ZN14QReadWriteLock15tryLockForWriteEi", 0);
    if (isLocked) {
        writeLocks.push_back(self);
    }
    return isLocked;
}

void unlock(QReadWriteLock *self)
{
    const unsigned flags = takeFlags(self);
    __tsan_mutex_pre_unlock(self, flags);
    qtFunction<void (*)(QReadWriteLock *)>("_ZN14QReadWriteLock6unlockEv")(self);
    __tsan_mutex_post_unlock(self, flags);
}

#endif
