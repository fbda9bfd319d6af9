// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "support/CFakeCameraStatus.h"

CFakeCameraStatus::CFakeCameraStatus() = default;

CFakeCameraStatus::~CFakeCameraStatus() = default;
