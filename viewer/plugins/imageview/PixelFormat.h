// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>

#include <QString>

namespace ImageView {

/// How the samples of an image lie in memory.
enum class Packing {
    Bytes,  ///< one byte each
    Words,  ///< two bytes each, the lower one first; the value in the lower bits
    Stream, ///< bit after bit without gaps, lowest bit first: the formats that end in "p"
    Groups  ///< two samples in three bytes, their upper eight bits outside: those in "Packed"
};

/// What the samples of an image mean. For a Bayer image: the colours of the first two pixels.
enum class Color {
    Mono,
    BayerRG,
    BayerGR,
    BayerGB,
    BayerBG,
    Rgb,
    Bgr,
    Rgba,
    Bgra,
    Uyvy, ///< two pixels in U Y V Y
    Yuyv, ///< two pixels in Y U Y V
    Unsupported
};

/// A format of pixels, as the Pixel Format Naming Convention of machine vision has them.
struct PixelFormat
{
    std::uint32_t code;
    const char *name;
    Color color;
    int bits; ///< of a sample
    Packing packing;

    bool isBayer() const;

    /// 1 or 3: what a pixel that is shown consists of.
    int channels() const;

    /// How many samples a pixel takes in memory.
    int samplesPerPixel() const;

    /// How many bytes an image of so many samples takes.
    std::size_t byteCount(std::size_t samples) const;
};

/// Null if \a code is not known by its name. A format that is known may still be unsupported.
const PixelFormat *findPixelFormat(std::uint32_t code);

/// The name of the format for a reader: "Mono8"; "0x01234567" if it is not known by its name.
QString pixelFormatName(std::uint32_t code);

} // namespace ImageView
