// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include <CameraPool/ICameraStatusService.h>

namespace CameraPool {

ICameraStatusService::ICameraStatusService(QObject *parent)
    : IDeviceStatusService(parent)
{}

ICameraStatusService::~ICameraStatusService() = default;

} // namespace CameraPool
