// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "IDeviceProvider.h"

#include <QHash>
#include <QMutex>
#include <QString>

namespace CameraPool {

/// Keeps, for each camera that was ever opened, its latest device.
class CDeviceStore : public IDeviceProvider
{
    Q_OBJECT

public:
    CDeviceStore();
    ~CDeviceStore() override;

    QSharedPointer<CDevice>
    device(const Core::CameraPoolComponents::DeviceBaseInfoPtr &camera) const override;

    /// Puts \a device in the place of an earlier one of the same camera. Callable in any thread.
    void put(const QSharedPointer<CDevice> &device);

private:
    mutable QMutex m_mutex;
    QHash<QString, QSharedPointer<CDevice>> m_devices;
};

} // namespace CameraPool
