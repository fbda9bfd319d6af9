// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <QLoggingCategory>

namespace CameraPool {

Q_DECLARE_LOGGING_CATEGORY(lcCameraPool)

} // namespace CameraPool
