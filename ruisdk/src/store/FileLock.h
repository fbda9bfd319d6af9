// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "store/Database.h"

#include <string>

namespace rui {

// A lock between processes that the kernel releases when its holder dies, even if a child lives on
// that the holder has forked. Two objects exclude each other in one process, too.
class FileLock
{
public:
    // Opens the file, creating it with mode 0600. Throws Failure with RUI_STORAGE.
    explicit FileLock(const std::string &path);
    ~FileLock();
    FileLock(const FileLock &) = delete;
    FileLock &operator=(const FileLock &) = delete;

    // True when the lock is held now, also when it was before.
    bool tryLock();

    // Waits; throws Failure with RUI_BUSY when the time is over, or all waiting is ended.
    void lock(const BusyLimit &busyLimit);

    void unlock();

private:
    ProcessUse m_use;
    std::string m_path;
    int m_descriptor;
};

} // namespace rui
