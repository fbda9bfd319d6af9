// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "plugins/imageview/ShownImage.h"

#include <QPoint>
#include <QString>

namespace ImageView {

// What is written beside an image, in the language of the viewer.

/// Where the pixel \a position is and what it holds, in the camera's own bit depth: "x 12, y 30:
/// 128" or "x 12, y 30: R 1, G 2, B 3". Empty if there is no such pixel.
QString pixelText(const ShownImage &image, const QPoint &position);

/// "1920 × 1080, Mono8, 75 %". Empty without an image.
QString formatText(const ShownImage &image, double scale);

/// Why the image cannot be shown and what to do; empty if it can.
QString problemText(const ShownImage &image);

} // namespace ImageView
