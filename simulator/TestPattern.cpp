// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "TestPattern.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <vector>

namespace Simulator {

namespace {

constexpr double NeutralExposure = 10000.0; // microseconds
constexpr double StepsPerDecade = 200.0;    // 20 dB are a factor of 10

} // namespace

ToneTable toneTable(const Tone &tone)
{
    const double factor =
        tone.exposure / NeutralExposure * std::pow(10.0, tone.gain / StepsPerDecade);
    ToneTable table{};
    for (std::size_t grey = 0; grey < table.size(); ++grey) {
        const double shown = static_cast<double>(grey) * factor + tone.brightness;
        const auto value = static_cast<std::uint8_t>(std::clamp(shown, 0.0, 255.0));
        table[grey] = tone.invert ? static_cast<std::uint8_t>(255 - value) : value;
    }
    return table;
}

void fillRamp(std::uint8_t *image, std::size_t size, ImageFormat format, std::size_t shift,
              const ToneTable &tone)
{
    const std::size_t lineSize = format.width * format.bytesPerPixel;
    // A program may write any number to the registers of width and format.
    if (lineSize == 0 || lineSize > size) {
        return;
    }
    std::vector<std::uint8_t> line(lineSize + tone.size() * format.bytesPerPixel);
    for (std::size_t i = 0; i < line.size(); ++i) {
        line[i] = tone[i / format.bytesPerPixel % tone.size()];
    }
    for (std::size_t y = 0; (y + 1) * lineSize <= size; ++y) {
        const std::size_t first = (y + shift) % tone.size() * format.bytesPerPixel;
        std::memcpy(image + y * lineSize, line.data() + first, lineSize);
    }
}

void fillGrey(std::uint8_t *image, std::size_t size, const ToneTable &tone)
{
    std::memset(image, tone[128], size);
}

} // namespace Simulator
