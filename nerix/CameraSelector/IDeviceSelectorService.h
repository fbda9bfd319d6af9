// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <Core/CameraPoolComponents/IDeviceBaseInfo.h>
#include <NerixCoreExport.h>

#include <QObject>
#include <QSharedPointer>

namespace CameraSelector {

/// The device that the user has picked in the list of cameras.
class NERIXCORE_EXPORT IDeviceSelectorService : public QObject
{
    Q_OBJECT

public:
    ~IDeviceSelectorService() override;

Q_SIGNALS:
    /// Another device is selected; null means that none is. Emitted in the GUI thread.
    void
    selectionChanged(QSharedPointer<Core::CameraPoolComponents::IDeviceBaseInfo> ptrDeviceInfo);

protected:
    explicit IDeviceSelectorService(QObject *parent = nullptr);
};

} // namespace CameraSelector
