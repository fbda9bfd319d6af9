// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <Core/AppCoreComponents/IBaseInfo.h>
#include <NerixCoreExport.h>

#include <QMetaType>
#include <QSharedPointer>

namespace Core {
namespace CameraPoolComponents {

/// A device that the camera pool knows: a camera, or something else that can be opened.
///
/// Whether it is a camera is found by a dynamic cast to `ICameraInfo` that shares the reference
/// count (`qSharedPointerDynamicCast`).
class NERIXCORE_EXPORT IDeviceBaseInfo : public AppCoreComponents::IBaseInfo
{
public:
    ~IDeviceBaseInfo() override;
};

/// Shared description of a device. Null means: no device (for example, nothing is selected).
using DeviceBaseInfoPtr = QSharedPointer<IDeviceBaseInfo>;

} // namespace CameraPoolComponents
} // namespace Core

Q_DECLARE_METATYPE(Core::CameraPoolComponents::DeviceBaseInfoPtr)
