// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace CameraPool {

/// How much memory a stream takes for what a camera says of its images. Pure functions.
namespace ImageBuffers {

/// In bytes.
struct Sizes
{
    qint64 payload = 0;   ///< what the camera announces for one image with all that belongs to it
    qint64 pixels = 0;    ///< what follows from width, height and pixel format; 0 where unknown
    qint64 available = 0; ///< the memory of this computer that is free for programs
};

/// Why no images of these sizes can be taken, with the remedy, to stand behind the name of the
/// camera; empty if they can.
QString refusal(const Sizes &sizes);

/// How many buffers a stream gets whose sizes are not refused: from 3 to 16.
int count(const Sizes &sizes);

} // namespace ImageBuffers

/// The memory that is free for programs, in bytes; 0 if the system does not say.
qint64 availableMemory();

} // namespace CameraPool
