// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <arv.h>

#include <cstdint>

namespace CameraPool {

/// What the state of a received buffer means to the user.
struct CGrabError
{
    std::uint32_t code; ///< 0 for an image that is whole
    const char *text;   ///< UTF-8, one line; static
};

/// The error for \a status. A status that this version of the viewer does not know is an unknown
/// error.
const CGrabError &grabError(ArvBufferStatus status);

/// The error of a single image that never began to arrive.
const CGrabError &noImageError();

} // namespace CameraPool
