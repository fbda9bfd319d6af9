// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <Nerix/CGrabResultData.h>

#include <QImage>
#include <QPoint>
#include <QVector>

namespace ImageView {

// Images of a camera turned into images of the screen and of files. Pure functions, callable in any
// thread. They give a null image, or no values, for what `problemOf` names.

/// For the screen: `QImage::Format_RGB32`, each value cut to its upper 8 bits.
QImage screenImage(const Nerix::CImage &image);

/// For a file, without a loss: 8 bit grey or RGB; or, if the camera's values have more bits, 16 bit
/// grey or RGBX with the camera's value in the upper bits. So a file of a Mono12 image holds the
/// camera's values times 16, and is as bright as what is seen.
QImage fileImage(const Nerix::CImage &image);

/// The grey value, or red, green and blue, of one pixel in the camera's own bit depth. Empty if
/// \a position is outside of the image.
QVector<int> valuesAt(const Nerix::CImage &image, const QPoint &position);

} // namespace ImageView
