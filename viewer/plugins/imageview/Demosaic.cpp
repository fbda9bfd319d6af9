// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/imageview/Demosaic.h"

namespace ImageView {

namespace {

std::uint16_t mean(std::uint32_t a, std::uint32_t b)
{
    return static_cast<std::uint16_t>((a + b + 1) / 2);
}

std::uint16_t mean(std::uint32_t a, std::uint32_t b, std::uint32_t c, std::uint32_t d)
{
    return static_cast<std::uint16_t>((a + b + c + d + 2) / 4);
}

} // namespace

void demosaicRow(const std::uint16_t *above, const std::uint16_t *row, const std::uint16_t *below,
                 int width, int y, RedPixels red, std::uint16_t *rgb)
{
    // In each row green alternates with either red or blue: the row's colour.
    const bool isRedRow = (y & 1) == red.row;
    const int own = isRedRow ? 0 : 2;
    const int other = 2 - own;
    const int coloredColumn = isRedRow ? red.column : 1 - red.column;

    for (int x = 0; x < width; ++x, rgb += 3) {
        if ((x & 1) == coloredColumn) {
            rgb[own] = row[x];
            rgb[1] = mean(above[x], below[x], row[x - 1], row[x + 1]);
            rgb[other] = mean(above[x - 1], above[x + 1], below[x - 1], below[x + 1]);
        } else {
            rgb[own] = mean(row[x - 1], row[x + 1]);
            rgb[1] = row[x];
            rgb[other] = mean(above[x], below[x]);
        }
    }
}

} // namespace ImageView
