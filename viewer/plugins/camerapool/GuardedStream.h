// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "GLibPointers.h"

namespace CameraPool {

/// Makes the stream of \a device. That of a GigE Vision camera takes the packets of this camera
/// alone, and of these only such that Aravis can take without harm: what comes from another
/// address, from another port than the camera says that it sends from (where it says so), or
/// shorter than its own header, the system throws away. It gets a receive buffer of
/// \a receiveBuffer bytes, or of as much as the system allows. In the device's thread; no buffers
/// are in the stream yet.
/// @return null, with \a error, if the camera refuses or if strangers cannot be kept out.
GObjectPtr<ArvStream> createGuardedStream(ArvDevice *device, int receiveBuffer, GError **error);

} // namespace CameraPool
