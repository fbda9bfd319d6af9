// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <Nerix/CGrabResultData.h>

#include <cstdint>
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
