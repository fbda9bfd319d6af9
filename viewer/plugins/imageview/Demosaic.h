// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace ImageView {

/// Where the red pixels of a Bayer image are: in the columns and rows with these remainders by 2.
/// The blue ones are in the others of both, the rest is green.
struct RedPixels
{
    int column;
    int row;
};

/// Gives each pixel of one row of a Bayer image its three colours: the one that it has, and of the
/// two others the mean, rounded to the nearest, of the neighbours that have it.
///
/// \a above, \a row and \a below hold \a width samples each, and one more before and behind them.
/// Outside of the image stands what is mirrored at its edge. \a rgb takes 3 x \a width samples.
void demosaicRow(const std::uint16_t *above, const std::uint16_t *row, const std::uint16_t *below,
                 int width, int y, RedPixels red, std::uint16_t *rgb);

} // namespace ImageView
