// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "support/CFakeCameraControl.h"

#include "support/CFakeCamera.h"

#include <utility>

#include <QTimer>

CFakeCameraControl::CFakeCameraControl()
    : ICameraControlService(nullptr)
{}

CFakeCameraControl::~CFakeCameraControl() = default;

CFakeCameraControl::CameraInfoPtr
CFakeCameraControl::plugIn(const char *identity, const char *model, const char *displayName)
{
    const auto camera = QSharedPointer<CFakeCamera>::create(
        QString::fromUtf8(identity), QString::fromUtf8(displayName ? displayName : identity),
        QString::fromUtf8(model));
    m_cameras.append(camera);
    m_states.insert(camera->identity(), Free);
    return camera;
}

void CFakeCameraControl::unplug(const CameraInfoPtr &camera)
{
    m_cameras.removeAll(camera);
    m_states.insert(camera->identity(), Gone);
}

CFakeCameraControl::CameraInfoPtr CFakeCameraControl::rename(const CameraInfoPtr &camera,
                                                             const char *displayName)
{
    const auto renamedCamera = QSharedPointer<CFakeCamera>::create(
        camera->identity(), QString::fromUtf8(displayName), camera->modelName());
    m_cameras.replace(m_cameras.indexOf(camera), renamedCamera);
    Q_EMIT renamed(renamedCamera);
    return renamedCamera;
}

void CFakeCameraControl::setState(const CameraInfoPtr &camera, CameraState state)
{
    m_states.insert(camera->identity(), state);
}

void CFakeCameraControl::failToOpen(const char *message)
{
    m_openFailure = QString::fromUtf8(message);
}

void CFakeCameraControl::setOpeningsHandled(bool areHandled)
{
    m_areOpeningsHandled = areHandled;
}

void CFakeCameraControl::setClosesAll(bool closes)
{
    m_closesAll = closes;
}

int CFakeCameraControl::closeAllCount() const
{
    return m_closeAllCount;
}

QList<CFakeCameraControl::CameraInfoPtr> CFakeCameraControl::cameras() const
{
    return m_cameras;
}

CFakeCameraControl::CameraState CFakeCameraControl::state(const CameraInfoPtr &camera) const
{
    return m_states.value(camera->identity(), Gone);
}

bool CFakeCameraControl::isOpeningHandled(const CameraInfoPtr &camera) const
{
    return m_areOpeningsHandled && state(camera) >= Open;
}

void CFakeCameraControl::open(const CameraInfoPtr &camera)
{
    QTimer::singleShot(0, this, [this, camera] {
        if (!m_openFailure.isEmpty()) {
            Q_EMIT openFailed(camera, std::exchange(m_openFailure, {}));
            return;
        }
        m_states.insert(camera->identity(), Open);
    });
}

void CFakeCameraControl::close(const CameraInfoPtr &camera)
{
    QTimer::singleShot(0, this, [this, camera] {
        m_states.insert(camera->identity(), Free);
        Q_EMIT closed(camera);
    });
}

void CFakeCameraControl::closeAll()
{
    ++m_closeAllCount;
    if (m_closesAll) {
        QTimer::singleShot(0, this, &ICameraControlService::allClosed);
    }
}

void CFakeCameraControl::grabSingle(const CameraInfoPtr &camera)
{
    onGrabRequest(QStringLiteral("single"), camera);
}

void CFakeCameraControl::grabContinuous(const CameraInfoPtr &camera)
{
    onGrabRequest(QStringLiteral("continuous"), camera);
}

void CFakeCameraControl::stopGrab(const CameraInfoPtr &camera)
{
    onGrabRequest(QStringLiteral("stop"), camera);
}
