// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include <CameraPool/IDeviceStatusService.h>

namespace CameraPool {

IDeviceStatusService::IDeviceStatusService(QObject *parent)
    : QObject(parent)
{}

IDeviceStatusService::~IDeviceStatusService() = default;

} // namespace CameraPool
