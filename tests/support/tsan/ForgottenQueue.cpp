// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

// A queued call reads what its caller changes as soon as the call is made, without a lock.

#include <atomic>
#include <thread>

#include <QCoreApplication>
#include <QThread>

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    QThread thread;
    QObject receiver;
    receiver.moveToThread(&thread);
    thread.start();
    int number = 1;
    int seen = 0;
    std::atomic<bool> isRead{false};
    const auto read = [&] {
        seen = number;
        isRead.store(true, std::memory_order_relaxed);
    };
    QMetaObject::invokeMethod(&receiver, read, Qt::QueuedConnection);
    // A relaxed atomic tells nothing of other variables.
    while (!isRead.load(std::memory_order_relaxed)) {
        std::this_thread::yield();
    }
    number = 2;
    thread.quit();
    thread.wait();
    return seen == 0 ? 1 : 0;
}
