// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/imageview/CPixelRows.h"

#include "plugins/imageview/Samples.h"

#include <algorithm>

namespace ImageView {

namespace {

RedPixels redPixels(Color color)
{
    switch (color) {
    case Color::BayerGR:
        return {1, 0};
    case Color::BayerGB:
        return {0, 1};
    case Color::BayerBG:
        return {1, 1};
    default:
        return {0, 0};
    }
}

// The place of a neighbour outside of the image is taken by the one on the other side, which has
// the same colour.
int mirrored(int index, int count)
{
    const int inside = index < 0 ? -index : index >= count ? 2 * count - 2 - index : index;
    return std::clamp(inside, 0, count - 1);
}

std::size_t sampleCount(const Nerix::CImage &image, const PixelFormat &format)
{
    return static_cast<std::size_t>(image.width) * static_cast<std::size_t>(image.height)
           * static_cast<std::size_t>(format.samplesPerPixel());
}

std::uint16_t toByte(int fixedPoint)
{
    return static_cast<std::uint16_t>(std::clamp((fixedPoint + 32768) >> 16, 0, 255));
}

// ITU-R BT.601 with the full range of 8 bits.
void writeRgb(int y, int u, int v, std::uint16_t *rgb)
{
    const int luma = y << 16;
    rgb[0] = toByte(luma + 91881 * (v - 128));
    rgb[1] = toByte(luma - 22554 * (u - 128) - 46802 * (v - 128));
    rgb[2] = toByte(luma + 116130 * (u - 128));
}

} // namespace

Problem problemOf(const Nerix::CImage &image)
{
    if (image.width <= 0 || image.height <= 0) {
        return Problem::NoPixels;
    }
    const PixelFormat *format = findPixelFormat(image.pixelFormat);
    if (!format || format->color == Color::Unsupported) {
        return Problem::UnknownFormat;
    }
    return image.data.size() < format->byteCount(sampleCount(image, *format)) ? Problem::TooFewBytes
                                                                              : Problem::None;
}

CPixelRows::CPixelRows(const Nerix::CImage &image)
    : m_image(image)
    , m_format(findPixelFormat(image.pixelFormat))
    , m_samplesPerRow(static_cast<std::size_t>(image.width * m_format->samplesPerPixel()))
    , m_samples(m_samplesPerRow)
    , m_pixels(static_cast<std::size_t>(image.width * m_format->channels()))
{
    for (CachedRow &cached : m_bayerRows) {
        cached.samples.resize(m_format->isBayer() ? m_samplesPerRow + 2 : 0);
    }
}

const std::uint16_t *CPixelRows::row(int y)
{
    if (m_format->isBayer()) {
        demosaic(y);
        return m_pixels.data();
    }
    read(y, m_samples.data());
    if (m_format->color == Color::Mono || m_format->color == Color::Rgb) {
        return m_samples.data();
    }
    if (m_format->color == Color::Uyvy || m_format->color == Color::Yuyv) {
        convertYuv(m_samples.data());
    } else {
        orderColors(m_samples.data());
    }
    return m_pixels.data();
}

void CPixelRows::read(int y, std::uint16_t *out) const
{
    readSamples(*m_format, m_image.data.data(), static_cast<std::size_t>(y) * m_samplesPerRow,
                m_samplesPerRow, out);
}

const std::uint16_t *CPixelRows::bayerRow(int y)
{
    const int inside = mirrored(y, m_image.height);
    CachedRow &cached = m_bayerRows.at(static_cast<std::size_t>(inside) % m_bayerRows.size());
    std::uint16_t *samples = cached.samples.data() + 1;
    if (cached.y != inside) {
        read(inside, samples);
        samples[-1] = samples[mirrored(-1, m_image.width)];
        samples[m_image.width] = samples[mirrored(m_image.width, m_image.width)];
        cached.y = inside;
    }
    return samples;
}

void CPixelRows::demosaic(int y)
{
    demosaicRow(bayerRow(y - 1), bayerRow(y), bayerRow(y + 1), m_image.width, y,
                redPixels(m_format->color), m_pixels.data());
}

void CPixelRows::orderColors(const std::uint16_t *samples)
{
    const bool isBlueFirst = m_format->color == Color::Bgr || m_format->color == Color::Bgra;
    const int step = m_format->samplesPerPixel();
    std::uint16_t *rgb = m_pixels.data();
    for (int x = 0; x < m_image.width; ++x, samples += step, rgb += 3) {
        rgb[0] = samples[isBlueFirst ? 2 : 0];
        rgb[1] = samples[1];
        rgb[2] = samples[isBlueFirst ? 0 : 2];
    }
}

void CPixelRows::convertYuv(const std::uint16_t *samples)
{
    const int luma = m_format->color == Color::Uyvy ? 1 : 0;
    std::uint16_t *rgb = m_pixels.data();
    for (int x = 0; x < m_image.width; ++x, rgb += 3) {
        // The last pixel of an odd width has no second colour of its own.
        const std::uint16_t *pair = samples + x / 2 * 4;
        const bool hasBoth = (x | 1) < m_image.width;
        const int u = pair[1 - luma];
        const int v = hasBoth ? pair[3 - luma] : u;
        writeRgb(pair[luma + x % 2 * 2], u, v, rgb);
    }
}

} // namespace ImageView
