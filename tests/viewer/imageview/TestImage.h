// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <Nerix/CGrabResultData.h>

#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

// An image with these bytes.
inline Nerix::CImage testImage(int width, int height, std::uint32_t pixelFormat,
                               std::vector<std::uint8_t> data)
{
    Nerix::CImage image;
    image.width = width;
    image.height = height;
    image.pixelFormat = pixelFormat;
    image.data = std::move(data);
    return image;
}

// A result that succeeded: one pixel of Mono8, or as many in a row as there are values.
inline Nerix::CGrabResultPtr greyResult(std::vector<std::uint8_t> values)
{
    const int width = int(values.size());
    return std::make_shared<Nerix::CGrabResultData>(
        testImage(width, 1, 0x01080001, std::move(values)));
}

inline Nerix::CGrabResultPtr failedResult(std::uint32_t code, const char *description)
{
    return std::make_shared<Nerix::CGrabResultData>(code, description);
}
