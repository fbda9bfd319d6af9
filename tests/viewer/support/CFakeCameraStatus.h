// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <CameraPool/ICameraStatusService.h>

// Emits what the test wants.
class CFakeCameraStatus : public CameraPool::ICameraStatusService
{
    Q_OBJECT

public:
    CFakeCameraStatus();
    ~CFakeCameraStatus() override;
};
