// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <Core/CameraPoolComponents/IDeviceBaseInfo.h>
#include <NerixCoreExport.h>
#include <ParameterCollection/IParameterCollection.h>

#include <QObject>
#include <QSharedPointer>

namespace ParameterCollectionPool {

/// The parameters of the devices. Callable in any thread.
class NERIXCORE_EXPORT IParameterService : public QObject
{
    Q_OBJECT

public:
    ~IParameterService() override;

    /// The parameters of \a ptrDeviceInfo. Null if the device has none: it is not open and never
    /// was, or it is null. The same collection is handed out until the device is opened anew; it
    /// outlives the device, and of a device that is gone every access fails at once.
    virtual QSharedPointer<ParameterCollection::IParameterCollection> parameterCollection(
        const Core::CameraPoolComponents::DeviceBaseInfoPtr &ptrDeviceInfo) const = 0;

protected:
    explicit IParameterService(QObject *parent = nullptr);
};

} // namespace ParameterCollectionPool
