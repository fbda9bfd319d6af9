// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "CParameterService.h"

#include "CParameterCollection.h"
#include "Logging.h"
#include "plugins/camerapool/IDeviceProvider.h"

#include <ParameterCollection/CParameterException.h>

#include <utility>

#include <QMutexLocker>

namespace ParameterCollectionPool {

CParameterService::CParameterService(QSharedPointer<CameraPool::IDeviceProvider> devices)
    : m_devices(std::move(devices))
{}

CParameterService::~CParameterService() = default;

// The mutex is held while a collection is made, so that two threads cannot make two. Nothing is
// emitted meanwhile, and making one reads no value.
QSharedPointer<ParameterCollection::IParameterCollection> CParameterService::parameterCollection(
    const Core::CameraPoolComponents::DeviceBaseInfoPtr &ptrDeviceInfo) const
{
    const QSharedPointer<CameraPool::CDevice> device = m_devices->device(ptrDeviceInfo);
    if (!device) {
        return {};
    }
    const QMutexLocker lock(&m_mutex);
    QSharedPointer<CParameterCollection> &kept = m_collections[device->info()->identity()];
    if (!kept || kept->device() != device) {
        try {
            kept = QSharedPointer<CParameterCollection>::create(device);
        } catch (const ParameterCollection::CParameterException &exception) {
            qCWarning(lcParameterCollectionPool, "%s", exception.what());
            return {};
        }
    }
    return kept;
}

} // namespace ParameterCollectionPool
