// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

namespace CameraPool {

/// Gives the UDP socket of this process that is bound to \a port a receive buffer of \a bytes, or
/// of as much as the system allows. Does nothing if there is no such socket.
///
/// Aravis enlarges the buffer of a stream when the first image is under way, which is too late for
/// that image: a camera sends it faster than a waiting thread gets its turn.
void enlargeReceiveBuffer(quint16 port, int bytes);

} // namespace CameraPool
