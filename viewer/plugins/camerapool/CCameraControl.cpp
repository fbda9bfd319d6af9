// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "CCameraControl.h"

#include "CPoolWorker.h"

#include <utility>

#include <QMutexLocker>

namespace CameraPool {

using Core::CameraPoolComponents::CameraInfoPtr;

CCameraControl::CCameraControl() = default;

CCameraControl::~CCameraControl() = default;

void CCameraControl::setWorker(CPoolWorker *worker)
{
    m_worker = worker;
}

QList<CameraInfoPtr> CCameraControl::cameras() const
{
    const QMutexLocker lock(&m_mutex);
    return m_cameras;
}

CCameraControl::CameraState CCameraControl::state(const CameraInfoPtr &camera) const
{
    if (!camera) {
        return Gone;
    }
    const QMutexLocker lock(&m_mutex);
    return m_states.value(camera->identity(), Gone);
}

bool CCameraControl::isOpeningHandled(const CameraInfoPtr &camera) const
{
    const QMutexLocker lock(&m_mutex);
    const HandledFlag isHandled = camera ? m_openings.value(camera->identity()) : nullptr;
    return isHandled && *isHandled;
}

CameraInfoPtr CCameraControl::noteOpening(const CameraInfoPtr &camera)
{
    const auto isHandled = std::make_shared<std::atomic<bool>>(false);
    const QMutexLocker lock(&m_mutex);
    m_openings.insert(camera->identity(), isHandled);
    return CameraInfoPtr(camera.data(), [camera, isHandled](auto *) { *isHandled = true; });
}

void CCameraControl::open(const CameraInfoPtr &camera)
{
    post([camera](CPoolWorker *worker) { worker->open(camera); });
}

void CCameraControl::close(const CameraInfoPtr &camera)
{
    post([camera](CPoolWorker *worker) { worker->close(camera); });
}

void CCameraControl::grabSingle(const CameraInfoPtr &camera)
{
    postStart(camera, [camera](CPoolWorker *worker) { worker->startGrab(camera, GrabSingle); });
}

void CCameraControl::grabContinuous(const CameraInfoPtr &camera)
{
    postStart(camera, [camera](CPoolWorker *worker) { worker->startGrab(camera, GrabContinuous); });
}

// The worker is told as well, since the grab may be one that it has still to start. It is told
// first: a start that is asked for when the grab has ended comes after that and is not stopped.
void CCameraControl::stopGrab(const CameraInfoPtr &camera)
{
    const auto flag = stopFlagOf(camera).lock();
    post([camera](CPoolWorker *worker) { worker->stopGrab(camera); });
    if (flag) {
        *flag = true;
    }
}

void CCameraControl::closeAll()
{
    post([](CPoolWorker *worker) { worker->closeAll(); });
}

void CCameraControl::publish(const QList<CameraInfoPtr> &cameras,
                             const QHash<QString, CameraState> &states)
{
    const QMutexLocker lock(&m_mutex);
    m_cameras = cameras;
    m_states = states;
}

void CCameraControl::noteGrabEnd(const QString &identity)
{
    const QMutexLocker lock(&m_mutex);
    const auto state = m_states.find(identity);
    if (state != m_states.end() && *state == Grabbing) {
        *state = Open;
    }
}

void CCameraControl::setStopFlag(const QString &identity, StopFlag flag)
{
    const QMutexLocker lock(&m_mutex);
    m_stopFlags.insert(identity, std::move(flag));
}

void CCameraControl::countStart(const CameraInfoPtr &camera, int change)
{
    if (camera) {
        const QMutexLocker lock(&m_mutex);
        m_startCounts[camera->identity()] += change;
    }
}

// None if a start was asked for and is not done: the stop is meant for that one, and the grab
// before it must not end by it, or that start would not be refused any more.
CCameraControl::StopFlag CCameraControl::stopFlagOf(const CameraInfoPtr &camera) const
{
    if (!camera) {
        return {};
    }
    const QMutexLocker lock(&m_mutex);
    const QString identity = camera->identity();
    return m_startCounts.value(identity) == 0 ? m_stopFlags.value(identity) : StopFlag();
}

template <class Request>
void CCameraControl::post(Request request)
{
    CPoolWorker *const worker = m_worker;
    QMetaObject::invokeMethod(
        worker, [worker, request] { request(worker); }, Qt::QueuedConnection);
}

template <class Request>
void CCameraControl::postStart(const CameraInfoPtr &camera, Request request)
{
    countStart(camera, +1);
    post([this, camera, request](CPoolWorker *worker) {
        request(worker);
        countStart(camera, -1);
    });
}

} // namespace CameraPool
