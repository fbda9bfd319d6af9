// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include <CameraSelector/IDeviceSelectorService.h>

namespace CameraSelector {

IDeviceSelectorService::IDeviceSelectorService(QObject *parent)
    : QObject(parent)
{}

IDeviceSelectorService::~IDeviceSelectorService() = default;

} // namespace CameraSelector
