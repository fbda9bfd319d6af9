// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <thread>

#include <QByteArray>

// Many GigE Vision cameras that can be found and not be opened, by one socket: at 127.1.0.1,
// 127.1.0.2, and so on. Runs in a thread of its own; nothing else may listen to the control port.
class CCrowd
{
public:
    // The serial number of camera \a index. Called in the crowd's thread.
    using Serial = std::function<QByteArray(int index)>;

    CCrowd(int count, Serial serial);
    ~CCrowd();

    Q_DISABLE_COPY_MOVE(CCrowd)

    bool isListening() const
    {
        return m_handle >= 0;
    }

private:
    void run();
    void answer();
    void announceAll(const QByteArray &question, const void *asker);
    QByteArray discoveryAnswer(const QByteArray &question, int index) const;
    void send(const QByteArray &bytes, const void *asker, quint32 from) const;

    const int m_count;
    const Serial m_serial;
    const int m_handle;
    const int m_end;
    std::thread m_thread;
};
