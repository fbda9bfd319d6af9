// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "plugins/imageview/PixelFormat.h"

#include <cstddef>
#include <cstdint>

namespace ImageView {

/// Writes \a count samples of an image, from the one with the number \a first, to \a out, each in
/// the camera's own bit depth. \a data holds `format.byteCount(first + count)` bytes or more. Lines
/// follow each other without a gap, also in the packed formats.
void readSamples(const PixelFormat &format, const std::uint8_t *data, std::size_t first,
                 std::size_t count, std::uint16_t *out);

} // namespace ImageView
