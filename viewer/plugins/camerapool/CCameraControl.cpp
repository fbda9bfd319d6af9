// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "CCameraControl.h"

#include "CPoolWorker.h"

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
    post([camera](CPoolWorker *worker) { worker->startGrab(camera, GrabSingle); });
}

void CCameraControl::grabContinuous(const CameraInfoPtr &camera)
{
    post([camera](CPoolWorker *worker) { worker->startGrab(camera, GrabContinuous); });
}

void CCameraControl::stopGrab(const CameraInfoPtr &camera)
{
    post([camera](CPoolWorker *worker) { worker->stopGrab(camera); });
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

template <class Request>
void CCameraControl::post(Request request)
{
    CPoolWorker *const worker = m_worker;
    QMetaObject::invokeMethod(
        worker, [worker, request] { request(worker); }, Qt::QueuedConnection);
}

} // namespace CameraPool
