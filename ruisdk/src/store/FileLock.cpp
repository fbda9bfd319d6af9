// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "store/FileLock.h"

#include "store/PrivateFiles.h"
#include "store/SystemError.h"

#include <fcntl.h>
#include <pthread.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>
#include <mutex>
#include <set>
#include <thread>

namespace rui {

namespace {

// The descriptors of all locks. A child that is forked shares the locks behind them and would keep
// them for as long as it lives; so it closes its copies at once.
class Descriptors
{
public:
    // Never destroyed: a thread may still hold a lock at exit.
    static Descriptors &process()
    {
        static auto *descriptors = [] {
            auto *created = new Descriptors;
            pthread_atfork([] { process().m_mutex.lock(); }, [] { process().m_mutex.unlock(); },
                           [] { process().closeInChild(); });
            return created;
        }();
        return *descriptors;
    }

    // Opened and noted in one step, so that no fork comes in between.
    int openFile(const std::string &path)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        const int descriptor = open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600);
        if (descriptor < 0) {
            throw SystemError(path, errno);
        }
        m_open.insert(descriptor);
        return descriptor;
    }

    void closeFile(int descriptor)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_open.erase(descriptor);
        // Said to the kernel before: closing alone keeps a lock that somebody else shares.
        flock(descriptor, LOCK_UN);
        close(descriptor);
    }

private:
    void closeInChild()
    {
        for (const int descriptor : m_open) {
            close(descriptor);
        }
        m_open.clear();
        m_mutex.unlock();
    }

    std::mutex m_mutex;
    std::set<int> m_open;
};

} // namespace

FileLock::FileLock(const std::string &path)
    : m_path(path)
    , m_descriptor(Descriptors::process().openFile(path))
{
    giveToOwnerOfDirectory(m_descriptor, path);
}

FileLock::~FileLock()
{
    Descriptors::process().closeFile(m_descriptor);
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
