// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/featuretree/CShownDevice.h"

#include "plugins/camerapool/SameCamera.h"
#include "plugins/cameraselector/IDeviceSelectionService.h"

namespace FeatureTree {

using CameraPool::ICameraControlService;
using CameraPool::ICameraStatusService;
using CameraPool::isSameCamera;
using Core::CameraPoolComponents::ICameraInfo;

CShownDevice::CShownDevice(const QSharedPointer<CameraSelector::IDeviceSelectionService> &selection,
                           const QSharedPointer<ICameraControlService> &control,
                           const QSharedPointer<ICameraStatusService> &status)
    : m_control(control)
{
    if (!selection || !control || !status) {
        return;
    }
    connect(selection.data(), &CameraSelector::IDeviceSelectionService::selectionChanged, this,
            &CShownDevice::show);
    const auto on = [&](auto signal, Condition condition) {
        connect(status.data(), signal, this,
                [this, condition](const DevicePtr &device) { onNews(device, condition); });
    };
    on(&ICameraStatusService::deviceConnected, Condition::Closed);
    on(&ICameraStatusService::deviceDisconnected, Condition::Gone);
    on(&ICameraStatusService::deviceOpened, Condition::Open);
    on(&ICameraStatusService::deviceClosing, Condition::Closed);
    // It is still open in the moment in which `deviceClosing` is emitted: a device that is selected
    // just then is found out to be closed by this.
    connect(control.data(), &ICameraControlService::closed, this, [this](const DevicePtr &device) {
        if (isSameCamera(device, m_camera) && m_condition == Condition::Open
            && askCondition() != Condition::Open) {
            set(askCondition());
        }
    });
    connect(control.data(), &ICameraControlService::renamed, this,
            [this](const Core::CameraPoolComponents::CameraInfoPtr &camera) {
                if (isSameCamera(camera, m_camera)) {
                    m_camera = camera;
                    Q_EMIT renamed();
                }
            });
    show(selection->selected());
}

CShownDevice::~CShownDevice() = default;

void CShownDevice::show(const DevicePtr &device)
{
    m_camera =
        CameraPool::newestDescription(*m_control, qSharedPointerDynamicCast<ICameraInfo>(device));
    set(askCondition());
}

// Opening it anew comes with a closing before, so the same condition again is no news.
void CShownDevice::onNews(const DevicePtr &device, Condition condition)
{
    if (m_camera && isSameCamera(device, m_camera) && condition != m_condition) {
        set(condition);
    }
}

CShownDevice::Condition CShownDevice::askCondition() const
{
    if (!m_camera) {
        return Condition::None;
    }
    switch (m_control->state(m_camera)) {
    case ICameraControlService::Open:
    case ICameraControlService::Grabbing:
        return Condition::Open;
    case ICameraControlService::Gone:
        return Condition::Gone;
    default:
        return Condition::Closed;
    }
}

void CShownDevice::set(Condition condition)
{
    m_condition = condition;
    Q_EMIT changed();
}

} // namespace FeatureTree
