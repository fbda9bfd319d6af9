// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "ICameraControlService.h"

#include <atomic>
#include <memory>

#include <QHash>
#include <QMutex>

namespace CameraPool {

class CPoolWorker;

/// The state of the pool, as every thread may read it. Passes requests on to the worker in the
/// pool's thread. A stop also goes to the grab straight away, because the worker may be waiting for
/// another camera.
class CCameraControl : public ICameraControlService
{
    Q_OBJECT

public:
    CCameraControl();
    ~CCameraControl() override;

    /// Where requests go. Set once, before the first request; the worker outlives the last one.
    void setWorker(CPoolWorker *worker);

    QList<Core::CameraPoolComponents::CameraInfoPtr> cameras() const override;
    CameraState state(const Core::CameraPoolComponents::CameraInfoPtr &camera) const override;
    bool isOpeningHandled(const Core::CameraPoolComponents::CameraInfoPtr &camera) const override;
    void open(const Core::CameraPoolComponents::CameraInfoPtr &camera) override;
    void close(const Core::CameraPoolComponents::CameraInfoPtr &camera) override;
    void grabSingle(const Core::CameraPoolComponents::CameraInfoPtr &camera) override;
    void grabContinuous(const Core::CameraPoolComponents::CameraInfoPtr &camera) override;
    void stopGrab(const Core::CameraPoolComponents::CameraInfoPtr &camera) override;
    void closeAll() override;

    /// Takes over what the worker knows. A camera that is not in \a states is gone.
    void publish(const QList<Core::CameraPoolComponents::CameraInfoPtr> &cameras,
                 const QHash<QString, CameraState> &states);

    /// Notes that \a camera is open, before that is told. @return what to tell it with: another
    /// pointer to the same camera, and when the last copy of it is gone, in whatever thread, the
    /// opening is handled. A queued signal holds a copy until its receiver has returned.
    Core::CameraPoolComponents::CameraInfoPtr
    noteOpening(const Core::CameraPoolComponents::CameraInfoPtr &camera);

    /// Notes that a camera does not grab any more, before that is told. Callable in any thread.
    void noteGrabEnd(const QString &identity);

    /// By which `stopGrab` stops the latest grab of a camera.
    void setStopFlag(const QString &identity, std::weak_ptr<std::atomic<bool>> flag);

private:
    using StopFlag = std::weak_ptr<std::atomic<bool>>;
    using HandledFlag = std::shared_ptr<std::atomic<bool>>;

    template <class Request>
    void post(Request request);
    template <class Request>
    void postStart(const Core::CameraPoolComponents::CameraInfoPtr &camera, Request request);
    void countStart(const Core::CameraPoolComponents::CameraInfoPtr &camera, int change);
    StopFlag stopFlagOf(const Core::CameraPoolComponents::CameraInfoPtr &camera) const;

    CPoolWorker *m_worker = nullptr;
    mutable QMutex m_mutex;
    QList<Core::CameraPoolComponents::CameraInfoPtr> m_cameras; // guarded by m_mutex
    QHash<QString, CameraState> m_states;                       // guarded by m_mutex
    QHash<QString, StopFlag> m_stopFlags;   // of the latest grabs, by identity; guarded by m_mutex
    QHash<QString, HandledFlag> m_openings; // the latest ones, by identity; guarded by m_mutex
    QHash<QString, int> m_startCounts;      // that the worker has not done; guarded by m_mutex
};

} // namespace CameraPool
