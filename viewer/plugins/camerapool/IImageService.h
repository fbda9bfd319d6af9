// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <Core/CameraPoolComponents/ICameraInfo.h>
#include <Nerix/CGrabResultData.h>

#include <QObject>

namespace CameraPool {

/// Images with their pixels, for the viewer's own plug-ins that show or process them. Offered as a
/// service by the built-in plug-in "CameraPool".
class IImageService : public QObject
{
    Q_OBJECT

Q_SIGNALS:
    /// An image of \a camera arrived, or failed to. Emitted in the grab's thread, right before
    /// `ICameraStatusService::cameraImageGrabbed` tells the same without the pixels.
    ///
    /// Connect directly, keep at most the newest result, and return at once: the grab waits
    /// meanwhile. A queued connection would keep every image in memory until its receiver has time,
    /// without a limit. Do not disconnect while a grab may run, not even by deleting the receiver:
    /// Qt 5.15 would free the connection under the grab's feet. A functor with the service itself
    /// as its context stays connected until the end, when no grab runs.
    void resultArrived(const Core::CameraPoolComponents::CameraInfoPtr &camera,
                       const Nerix::CGrabResultPtr &result);

protected:
    using QObject::QObject;
};

} // namespace CameraPool
