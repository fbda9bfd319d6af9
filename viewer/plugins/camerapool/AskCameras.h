// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "CFoundCamera.h"

#include <QVector>

namespace CameraPool {

/// Asks GigE Vision cameras who and how they are, each at its `openId`, and fills in what they
/// answer. All are asked at once and share one second, so that those that do not answer cost no
/// more than one of them. An address at which nobody listens is noticed at once where the network
/// says so (as loopback does). One that is silent for half of the time is asked again, since
/// the network may lose a datagram. Nothing is broadcast, and no camera is opened. Cameras that are
/// not GigE are left alone. Callable in any thread; waits for the answers.
///
/// `isNameKnown` and `isControlKnown` then tell which answers came.
void askCameras(QVector<CFoundCamera> *cameras);

} // namespace CameraPool
