// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/grabbing/CGrabController.h"

#include "plugins/cameraselector/IDeviceSelectionService.h"

namespace Grabbing {

using CameraPool::ICameraControlService;
using CameraPool::ICameraStatusService;
using Core::CameraPoolComponents::DeviceBaseInfoPtr;
using Core::CameraPoolComponents::ICameraInfo;

CGrabController::CGrabController(const Services &services, QObject *parent)
    : QObject(parent)
    , m_services(services)
{
    listen();
}

CGrabController::~CGrabController() = default;

void CGrabController::listen()
{
    const auto *status = m_services.status.data();
    const auto *control = m_services.control.data();
    connect(m_services.selection.data(), &CameraSelector::IDeviceSelectorService::selectionChanged,
            this, &CGrabController::changed);
    connect(status, &ICameraStatusService::deviceOpened, this, &CGrabController::forget);
    connect(status, &ICameraStatusService::deviceDisconnected, this, &CGrabController::forget);
    connect(control, &ICameraControlService::closed, this, &CGrabController::forget);
    connect(control, &ICameraControlService::grabFailed, this, &CGrabController::onGrabFailed);
    connect(status, &ICameraStatusService::cameraGrabStarted, this,
            &CGrabController::onGrabStarted);
    connect(status, &ICameraStatusService::cameraGrabStopped, this,
            &CGrabController::onGrabStopped);
    connect(
        status, &ICameraStatusService::cameraStatisticUpdated, this,
        [this](const CameraInfoPtr &camera, int images, int failures, double fps, quint64 bps) {
            onFigures(camera, {images, failures, fps, bps, m_running.contains(camera->identity())});
        });
}

bool CGrabController::canGrab() const
{
    return state() == ICameraControlService::Open && !isRequested();
}

bool CGrabController::canStop() const
{
    return state() == ICameraControlService::Grabbing || isRequested();
}

std::optional<GrabFigures> CGrabController::figures() const
{
    const CameraInfoPtr camera = selected();
    if (!camera || !m_figures.contains(camera->identity())) {
        return {};
    }
    return m_figures.value(camera->identity());
}

void CGrabController::grabSingle()
{
    if (canGrab()) {
        m_requested.insert(selected()->identity());
        m_services.control->grabSingle(selected());
        Q_EMIT changed();
    }
}

void CGrabController::grabContinuous()
{
    if (canGrab()) {
        m_requested.insert(selected()->identity());
        m_services.control->grabContinuous(selected());
        Q_EMIT changed();
    }
}

void CGrabController::stop()
{
    if (canStop()) {
        m_services.control->stopGrab(selected());
    }
}

void CGrabController::onGrabStarted(const CameraInfoPtr &camera)
{
    m_requested.remove(camera->identity());
    m_running.insert(camera->identity());
    m_figures.insert(camera->identity(), {});
    Q_EMIT changed();
}

void CGrabController::onGrabStopped(const CameraInfoPtr &camera)
{
    m_running.remove(camera->identity());
    const auto figures = m_figures.find(camera->identity());
    if (figures != m_figures.end()) {
        figures->isRunning = false;
    }
    Q_EMIT changed();
}

void CGrabController::onGrabFailed(const CameraInfoPtr &camera)
{
    m_requested.remove(camera->identity());
    Q_EMIT changed();
}

void CGrabController::onFigures(const CameraInfoPtr &camera, const GrabFigures &figures)
{
    m_figures.insert(camera->identity(), figures);
    Q_EMIT changed();
}

void CGrabController::forget(const DeviceBaseInfoPtr &device)
{
    if (const auto camera = qSharedPointerDynamicCast<ICameraInfo>(device)) {
        m_requested.remove(camera->identity());
        m_running.remove(camera->identity());
        m_figures.remove(camera->identity());
    }
    Q_EMIT changed();
}

CGrabController::CameraInfoPtr CGrabController::selected() const
{
    return qSharedPointerDynamicCast<ICameraInfo>(m_services.selection->selected());
}

ICameraControlService::CameraState CGrabController::state() const
{
    const CameraInfoPtr camera = selected();
    return camera ? m_services.control->state(camera) : ICameraControlService::Gone;
}

bool CGrabController::isRequested() const
{
    const CameraInfoPtr camera = selected();
    return camera && m_requested.contains(camera->identity());
}

} // namespace Grabbing
