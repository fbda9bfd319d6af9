// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include <CameraPool/ICameraEnumerationService.h>

namespace CameraPool {

ICameraEnumerationService::ICameraEnumerationService(QObject *parent)
    : QObject(parent)
{}

ICameraEnumerationService::~ICameraEnumerationService() = default;

} // namespace CameraPool
