// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "ICameraControlService.h"

#include <Core/CameraPoolComponents/ICameraInfo.h>

namespace CameraPool {

/// True if both describe the same camera, which gets another description when it is renamed. Two
/// nulls, and twice the same device that is no camera, are the same too.
inline bool isSameCamera(const Core::CameraPoolComponents::DeviceBaseInfoPtr &left,
                         const Core::CameraPoolComponents::DeviceBaseInfoPtr &right)
{
    using Core::CameraPoolComponents::ICameraInfo;
    const auto one = qSharedPointerDynamicCast<ICameraInfo>(left);
    const auto other = qSharedPointerDynamicCast<ICameraInfo>(right);
    return one && other ? one->identity() == other->identity() : left == right;
}

/// The description of \a camera as it was found last, which has the name that it has now. \a camera
/// itself if it is not connected, or null. Callable in any thread.
inline Core::CameraPoolComponents::CameraInfoPtr
newestDescription(const ICameraControlService &control,
                  const Core::CameraPoolComponents::CameraInfoPtr &camera)
{
    const auto cameras = control.cameras();
    for (const auto &candidate : cameras) {
        if (isSameCamera(candidate, camera)) {
            return candidate;
        }
    }
    return camera;
}

} // namespace CameraPool
