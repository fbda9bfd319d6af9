// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

// Work in a thread pool reads what its giver changes as soon as it is given, without a lock.

#include <atomic>
#include <thread>

#include <QThreadPool>

int main()
{
    QThreadPool pool;
    int number = 1;
    int seen = 0;
    std::atomic<bool> isRead{false};
    pool.start([&] {
        seen = number;
        isRead.store(true, std::memory_order_relaxed);
    });
    // A relaxed atomic tells nothing of other variables.
    while (!isRead.load(std::memory_order_relaxed)) {
        std::this_thread::yield();
    }
    number = 2;
    pool.waitForDone();
    return seen == 0 ? 1 : 0;
}
