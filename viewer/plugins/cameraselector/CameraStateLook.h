// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "plugins/camerapool/ICameraControlService.h"

#include <QIcon>
#include <QString>

namespace CameraSelector {

/// What a camera does, in words.
QString stateText(CameraPool::ICameraControlService::CameraState state);

/// A dot in a colour and a shape of its own for each state: full while the camera is in our hands,
/// a ring while it is not, crossed out when it is gone. Needs the application object.
QIcon stateIcon(CameraPool::ICameraControlService::CameraState state);

} // namespace CameraSelector
