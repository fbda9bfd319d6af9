// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

// What the camera shows: pure functions of their arguments.
namespace Simulator {

// For each grey value the one that is shown in its place.
using ToneTable = std::array<std::uint8_t, 256>;

// How the settings of a camera change grey values. The gain is in steps of 0.1 dB.
struct Tone
{
    double exposure = 10000.0; // microseconds; at 10000 and no gain grey values stay as they are
    double gain = 0.0;
    int brightness = 0; // added
    bool invert = false;
};

ToneTable toneTable(const Tone &tone);

struct ImageFormat
{
    std::size_t width = 0;         // pixels
    std::size_t bytesPerPixel = 0; // all of them get the same grey value
};

// Fills the image with a diagonal ramp of grey values that is moved to the left by `shift` pixels.
void fillRamp(std::uint8_t *image, std::size_t size, ImageFormat format, std::size_t shift,
              const ToneTable &tone);

// Fills the image with what the tone makes of the middle grey, 128.
void fillGrey(std::uint8_t *image, std::size_t size, const ToneTable &tone);

} // namespace Simulator
