// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QSemaphore>
#include <QThread>

/// A thread with an event loop that can be held, so that what is queued meanwhile is delivered in
/// one go: sender and receiver do not fight for the queue.
class HeldThread
{
public:
    HeldThread()
    {
        m_context.moveToThread(&m_thread);
        m_thread.start();
    }

    ~HeldThread()
    {
        m_thread.quit();
        m_thread.wait();
    }

    Q_DISABLE_COPY_MOVE(HeldThread)

    void adopt(QObject *object)
    {
        object->moveToThread(&m_thread);
    }

    template <class Work>
    void run(Work work)
    {
        QMetaObject::invokeMethod(&m_context, work, Qt::BlockingQueuedConnection);
    }

    void hold()
    {
        QMetaObject::invokeMethod(
            &m_context,
            [this] {
                m_isHeld.release();
                m_release.acquire();
            },
            Qt::QueuedConnection);
        m_isHeld.acquire();
    }

    void release()
    {
        m_release.release();
    }

private:
    QThread m_thread;
    QObject m_context;
    QSemaphore m_isHeld;
    QSemaphore m_release;
};
