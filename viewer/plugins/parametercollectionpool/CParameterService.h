// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <ParameterCollectionPool/IParameterService.h>

#include <QHash>
#include <QMutex>
#include <QString>

namespace CameraPool {
class IDeviceProvider;
}

namespace ParameterCollectionPool {

class CParameterCollection;

/// Hands out the parameter collections of the cameras that the camera pool opened.
class CParameterService : public IParameterService
{
    Q_OBJECT

public:
    explicit CParameterService(QSharedPointer<CameraPool::IDeviceProvider> devices);
    ~CParameterService() override;

    QSharedPointer<ParameterCollection::IParameterCollection> parameterCollection(
        const Core::CameraPoolComponents::DeviceBaseInfoPtr &ptrDeviceInfo) const override;

private:
    const QSharedPointer<CameraPool::IDeviceProvider> m_devices;
    mutable QMutex m_mutex;
    mutable QHash<QString, QSharedPointer<CParameterCollection>> m_collections; // by identity
};

} // namespace ParameterCollectionPool
