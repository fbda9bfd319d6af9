// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "store/FileLock.h"

#include "store/PrivateFiles.h"
#include "store/SystemError.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>
#include <thread>

namespace rui {

FileLock::FileLock(const std::string &path)
    : m_path(path)
    , m_descriptor(open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600))
{
    if (m_descriptor < 0) {
        throw SystemError(path, errno);
    }
    giveToOwnerOfDirectory(m_descriptor, path);
}

FileLock::~FileLock()
{
    close(m_descriptor);
}

bool FileLock::tryLock()
{
    while (flock(m_descriptor, LOCK_EX | LOCK_NB) != 0) {
        if (errno == EWOULDBLOCK) {
            return false;
        }
        if (errno != EINTR) {
            throw SystemError(m_path, errno);
        }
    }
    return true;
}

void FileLock::lock(const BusyLimit &busyLimit)
{
    const auto end = std::chrono::steady_clock::now() + busyLimit.limit;
    while (!tryLock()) {
        if (busyLimit.giveUp || std::chrono::steady_clock::now() >= end) {
            throw Failure(RUI_BUSY, m_path + ": held by another process");
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
    }
}

void FileLock::unlock()
{
    flock(m_descriptor, LOCK_UN);
}

} // namespace rui
