// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "CGrabFigures.h"
#include "CStream.h"

#include <Core/CameraPoolComponents/ICameraInfo.h>

#include <atomic>
#include <functional>
#include <memory>
#include <thread>

#include <QSharedPointer>
#include <QString>

namespace CameraPool {

class CCameraStatus;
class CDevice;
class CImageNews;

/// One grab, from start to stop, in a thread of its own, in which its signals are emitted:
/// `cameraGrabStarted`, then `resultArrived` and `cameraImageGrabbed` for each image and
/// `cameraStatisticUpdated` each second, at the end `cameraStatisticUpdated` once more and
/// `cameraGrabStopped`. A grab that cannot be started emits nothing.
class CGrab
{
public:
    /// Who hears of the grab, in the grab's thread.
    struct Listeners
    {
        CCameraStatus *status; ///< emits the signals; outlives the grab
        CImageNews *images;    ///< emits the images with their pixels; outlives the grab

        /// Called before the last signal. Must not wait.
        std::function<void()> onStopping;

        /// Called when all is over, with the reason if the grab could not be started, else with an
        /// empty text. Must do no more than post an event.
        std::function<void(const QString &reason)> onEnded;
    };

    /// Begins at once.
    CGrab(QSharedPointer<CDevice> device, GrabMode mode, Listeners listeners);

    /// Stops and waits for the end.
    ~CGrab();

    Q_DISABLE_COPY_MOVE(CGrab)

    /// Lets the grab end soon. Callable in any thread.
    void stop()
    {
        *m_stopFlag = true;
    }

    /// Set to true it does what `stop` does, by whoever must not own the grab. Expires with it.
    std::weak_ptr<std::atomic<bool>> stopFlag() const
    {
        return m_stopFlag;
    }

    /// True when the grab has nothing more to tell.
    bool hasEnded() const
    {
        return m_hasEnded;
    }

private:
    void run();
    void grab();
    void receive(CStream *stream, CGrabFigures *figures);
    CStreamCounters drain(CStream *stream, CGrabFigures *figures);
    bool isOver() const;
    void tell(const Nerix::CGrabResultPtr &result, CGrabFigures *figures);
    void tellFigures(const CGrabFigures::Figures &figures);

    const QSharedPointer<CDevice> m_device;
    const Core::CameraPoolComponents::CameraInfoPtr m_info;
    const GrabMode m_mode;
    const Listeners m_listeners;
    const std::shared_ptr<std::atomic<bool>> m_stopFlag{std::make_shared<std::atomic<bool>>(false)};
    std::atomic<bool> m_hasEnded{false};
    std::thread m_thread; // last: it uses the others
};

} // namespace CameraPool
