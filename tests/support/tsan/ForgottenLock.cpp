// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

// Two threads use a list of Qt's; only one of them thinks of its lock.

#include <thread>

#include <QList>
#include <QReadLocker>
#include <QReadWriteLock>

int main()
{
    QReadWriteLock lock;
    QList<int> list{1};
    int seen = 0;
    std::thread reader([&] {
        const QReadLocker locker(&lock);
        seen = list.at(0);
    });
    std::thread writer([&] { list[0] = 2; });
    reader.join();
    writer.join();
    return seen == 0 ? 1 : 0;
}
