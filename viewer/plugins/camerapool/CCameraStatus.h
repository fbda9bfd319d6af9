// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "IImageService.h"

#include <CameraPool/ICameraEnumerationService.h>
#include <CameraPool/ICameraStatusService.h>

namespace CameraPool {

/// The news of cameras, as the pool and its grabs emit them.
class CCameraStatus : public ICameraStatusService
{
    Q_OBJECT

public:
    CCameraStatus() = default;
};

/// The news of the search, as the pool emits them.
class CCameraEnumeration : public ICameraEnumerationService
{
    Q_OBJECT

public:
    CCameraEnumeration() = default;
};

/// The images, as the grabs emit them.
class CImageNews : public IImageService
{
    Q_OBJECT

public:
    CImageNews() = default;
};

} // namespace CameraPool
