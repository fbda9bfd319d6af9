// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <mutex>

#include <QObject>

namespace CameraPool {

/// By which other threads reach an object that may be gone when they have something to tell. A
/// value; all copies are one box. Callable in any thread.
class CPostBox
{
public:
    explicit CPostBox(QObject *owner)
        : m_state(std::make_shared<State>())
    {
        m_state->owner = owner;
    }

    /// Lets the owner's thread do \a work soon. Nothing happens once the box is closed.
    void post(std::function<void()> work) const
    {
        const std::lock_guard<std::mutex> lock(m_state->mutex);
        if (m_state->owner) {
            QMetaObject::invokeMethod(m_state->owner, std::move(work), Qt::QueuedConnection);
        }
    }

    /// To be called by the owner before it is gone.
    void close() const
    {
        const std::lock_guard<std::mutex> lock(m_state->mutex);
        m_state->owner = nullptr;
    }

private:
    struct State
    {
        std::mutex mutex;
        QObject *owner = nullptr; // guarded by mutex
    };

    std::shared_ptr<State> m_state;
};

} // namespace CameraPool
