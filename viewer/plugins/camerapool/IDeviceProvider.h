// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <Core/CameraPoolComponents/IDeviceBaseInfo.h>

#include <QObject>
#include <QSharedPointer>

namespace CameraPool {

class CDevice;

/// The way from a description to the device itself, for the viewer's own plug-ins that work on
/// devices. Offered as a service by the built-in plug-in "CameraPool". Callable in any thread.
class IDeviceProvider : public QObject
{
    Q_OBJECT

public:
    /// The device of \a camera: the open one, else the one that was open last. Null if it was never
    /// open or is no camera.
    virtual QSharedPointer<CDevice>
    device(const Core::CameraPoolComponents::DeviceBaseInfoPtr &camera) const = 0;

protected:
    using QObject::QObject;
};

} // namespace CameraPool
