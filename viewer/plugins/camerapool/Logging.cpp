// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "Logging.h"

namespace CameraPool {

Q_LOGGING_CATEGORY(lcCameraPool, "nerix.camerapool", QtWarningMsg)

} // namespace CameraPool
