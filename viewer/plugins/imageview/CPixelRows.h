// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "plugins/imageview/Demosaic.h"
#include "plugins/imageview/PixelFormat.h"

#include <Nerix/CGrabResultData.h>

#include <array>
#include <cstdint>
#include <vector>

namespace ImageView {

/// The pixels of an image as they are shown, row by row: one grey value, or red, green and blue, in
/// the camera's own bit depth. Bayer images are coloured, YUV turned into RGB. Used in one thread.
class CPixelRows
{
public:
    /// \a image must outlive this and must have `problemOf` none.
    explicit CPixelRows(const Nerix::CImage &image);

    /// The row \a y: width x channels values, until the next call.
    const std::uint16_t *row(int y);

    int channels() const
    {
        return m_format->channels();
    }

    /// Of each value.
    int bits() const
    {
        return m_format->bits;
    }

private:
    struct CachedRow
    {
        int y = -1;
        std::vector<std::uint16_t> samples; // with one more on each side
    };

    void read(int y, std::uint16_t *out) const;
    const std::uint16_t *bayerRow(int y);
    void demosaic(int y);
    void orderColors(const std::uint16_t *samples);
    void convertYuv(const std::uint16_t *samples);

    const Nerix::CImage &m_image;
    const PixelFormat *m_format;
    std::size_t m_samplesPerRow;
    std::vector<std::uint16_t> m_samples;
    std::vector<std::uint16_t> m_pixels;
    std::array<CachedRow, 3> m_bayerRows; // each is needed for three rows of pixels
};

/// Why the pixels of \a image cannot be shown; None if they can.
enum class Problem {
    None,
    NoPixels,      ///< the result is not an image
    UnknownFormat, ///< see `PixelFormat`
    TooFewBytes    ///< less data than width, height and format ask for
};

Problem problemOf(const Nerix::CImage &image);

} // namespace ImageView
