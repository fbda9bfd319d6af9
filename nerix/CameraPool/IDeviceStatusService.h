// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <Core/CameraPoolComponents/IDeviceBaseInfo.h>
#include <NerixCoreExport.h>

#include <QObject>
#include <QSharedPointer>

namespace CameraPool {

/// News of devices that are opened and closed.
///
/// The signals are emitted in the camera pool's own thread, never while a lock is held. Receivers
/// in other threads get them queued.
class NERIXCORE_EXPORT IDeviceStatusService : public QObject
{
    Q_OBJECT

public:
    ~IDeviceStatusService() override;

Q_SIGNALS:
    /// The device is open and its parameters can be read. A receiver does not keep the pointer
    /// longer than its own work on the news: a script that opened the device waits for that.
    void deviceOpened(QSharedPointer<Core::CameraPoolComponents::IDeviceBaseInfo> ptrDeviceInfo);

    /// The device is about to be closed and can still be read. A receiver that wants to read it
    /// connects with a blocking queued connection: the device is closed after the last receiver has
    /// returned. Of a device that is gone every read fails at once.
    void deviceClosing(QSharedPointer<Core::CameraPoolComponents::IDeviceBaseInfo> ptrDeviceInfo);

protected:
    explicit IDeviceStatusService(QObject *parent = nullptr);
};

} // namespace CameraPool
