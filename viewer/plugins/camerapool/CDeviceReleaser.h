// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <functional>
#include <memory>

#include <QSharedPointer>
#include <QString>

namespace CameraPool {

class CDevice;

/// Closes devices, each in a thread of its own: a device that does not answer any more takes Aravis
/// about six seconds, for which neither the other cameras nor the viewer's end shall wait. Used in
/// one thread but for `await`.
class CDeviceReleaser
{
public:
    /// \a onReleased is told the identity of each camera whose closing took longer than `release`
    /// waited. It is called in another thread and must do no more than post an event.
    explicit CDeviceReleaser(std::function<void(const QString &identity)> onReleased);

    ~CDeviceReleaser();

    Q_DISABLE_COPY_MOVE(CDeviceReleaser)

    /// Closes \a device. Returns when that is done, as it is in some milliseconds with a device
    /// that answers, else after half a second, and at once if it is lost, with the closing still
    /// under way.
    void release(const QSharedPointer<CDevice> &device);

    /// Waits for what is still being closed, though no longer than three seconds; the rest is left
    /// to itself. Nothing is told any more.
    void finish();

    /// Does \a work, the end of a connection to the camera \a identity, in a thread of its own.
    /// Returns at once. Callable in any thread.
    void await(const QString &identity, std::function<void()> work);

    /// True while a device of this camera is still being closed. It should not be opened then: the
    /// end of the old connection could take the new one's control away.
    bool isReleasing(const QString &identity) const;

private:
    struct State;

    void run(const QString &identity, std::function<void()> work,
             std::chrono::milliseconds patience);

    // Shared with the threads, which may live longer.
    const std::shared_ptr<State> m_state;
};

} // namespace CameraPool
