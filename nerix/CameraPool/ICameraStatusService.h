// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <CameraPool/IDeviceStatusService.h>
#include <CCompressionStatistic.h>
#include <Core/CameraPoolComponents/ICameraInfo.h>
#include <Nerix/CGrabResultData.h>
#include <NerixCoreExport.h>

#include <QSharedPointer>
#include <QtGlobal>

namespace CameraPool {

/// News of cameras: plugged in and out, grabbing, images, figures; and, inherited, opened and
/// closing.
///
/// `deviceConnected` and `deviceDisconnected` are emitted in the camera pool's thread, the grab
/// signals in the grab's own thread. Nothing is emitted while a lock is held.
class NERIXCORE_EXPORT ICameraStatusService : public IDeviceStatusService
{
    Q_OBJECT

public:
    ~ICameraStatusService() override;

Q_SIGNALS:
    void deviceConnected(QSharedPointer<Core::CameraPoolComponents::IDeviceBaseInfo> ptrDeviceInfo);

    /// The device is gone. If it was open, `deviceClosing` came before.
    void
    deviceDisconnected(QSharedPointer<Core::CameraPoolComponents::IDeviceBaseInfo> ptrDeviceInfo);

    void cameraGrabStarted(QSharedPointer<Core::CameraPoolComponents::ICameraInfo> ptrCameraInfo);

    /// The grab is over, because it was stopped, had its image, or the camera is gone. The figures
    /// of the stream can be read already.
    void cameraGrabStopped(QSharedPointer<Core::CameraPoolComponents::ICameraInfo> ptrCameraInfo);

    /// An image arrived, or failed to: `grabResult` says which. It tells of the image and does not
    /// carry its pixels.
    void cameraImageGrabbed(QSharedPointer<Core::CameraPoolComponents::ICameraInfo> ptrCameraInfo,
                            const Nerix::CGrabResultPtr &grabResult);

    /// The figures of the status bar, once a second during a grab and once at its end.
    /// \a imagesGrabbedCount and \a imagesFailedCount count from the start of the grab; \a fps is
    /// in images per second, \a bps in bytes per second, both over the last second and at the end
    /// over the whole grab.
    void
    cameraStatisticUpdated(QSharedPointer<Core::CameraPoolComponents::ICameraInfo> ptrCameraInfo,
                           int imagesGrabbedCount, int imagesFailedCount, double fps, quint64 bps,
                           CCompressionStatistic compressionStatistic);

protected:
    explicit ICameraStatusService(QObject *parent = nullptr);
};

} // namespace CameraPool
