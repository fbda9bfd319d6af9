// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/imageview/PixelFormat.h"

#include <algorithm>
#include <iterator>

namespace ImageView {

namespace {

constexpr PixelFormat formats[] = {
    {0x01080001, "Mono8", Color::Mono, 8, Packing::Bytes},
    {0x01100003, "Mono10", Color::Mono, 10, Packing::Words},
    {0x010A0046, "Mono10p", Color::Mono, 10, Packing::Stream},
    {0x010C0004, "Mono10Packed", Color::Mono, 10, Packing::Groups},
    {0x01100005, "Mono12", Color::Mono, 12, Packing::Words},
    {0x010C0047, "Mono12p", Color::Mono, 12, Packing::Stream},
    {0x010C0006, "Mono12Packed", Color::Mono, 12, Packing::Groups},
    {0x01100025, "Mono14", Color::Mono, 14, Packing::Words},
    {0x01100007, "Mono16", Color::Mono, 16, Packing::Words},

    {0x01080009, "BayerRG8", Color::BayerRG, 8, Packing::Bytes},
    {0x01080008, "BayerGR8", Color::BayerGR, 8, Packing::Bytes},
    {0x0108000A, "BayerGB8", Color::BayerGB, 8, Packing::Bytes},
    {0x0108000B, "BayerBG8", Color::BayerBG, 8, Packing::Bytes},
    {0x0110000D, "BayerRG10", Color::BayerRG, 10, Packing::Words},
    {0x0110000C, "BayerGR10", Color::BayerGR, 10, Packing::Words},
    {0x0110000E, "BayerGB10", Color::BayerGB, 10, Packing::Words},
    {0x0110000F, "BayerBG10", Color::BayerBG, 10, Packing::Words},
    {0x010A0058, "BayerRG10p", Color::BayerRG, 10, Packing::Stream},
    {0x010A0056, "BayerGR10p", Color::BayerGR, 10, Packing::Stream},
    {0x010A0054, "BayerGB10p", Color::BayerGB, 10, Packing::Stream},
    {0x010A0052, "BayerBG10p", Color::BayerBG, 10, Packing::Stream},
    {0x010C0027, "BayerRG10Packed", Color::BayerRG, 10, Packing::Groups},
    {0x010C0026, "BayerGR10Packed", Color::BayerGR, 10, Packing::Groups},
    {0x010C0028, "BayerGB10Packed", Color::BayerGB, 10, Packing::Groups},
    {0x010C0029, "BayerBG10Packed", Color::BayerBG, 10, Packing::Groups},
    {0x01100011, "BayerRG12", Color::BayerRG, 12, Packing::Words},
    {0x01100010, "BayerGR12", Color::BayerGR, 12, Packing::Words},
    {0x01100012, "BayerGB12", Color::BayerGB, 12, Packing::Words},
    {0x01100013, "BayerBG12", Color::BayerBG, 12, Packing::Words},
    {0x010C0059, "BayerRG12p", Color::BayerRG, 12, Packing::Stream},
    {0x010C0057, "BayerGR12p", Color::BayerGR, 12, Packing::Stream},
    {0x010C0055, "BayerGB12p", Color::BayerGB, 12, Packing::Stream},
    {0x010C0053, "BayerBG12p", Color::BayerBG, 12, Packing::Stream},
    {0x010C002B, "BayerRG12Packed", Color::BayerRG, 12, Packing::Groups},
    {0x010C002A, "BayerGR12Packed", Color::BayerGR, 12, Packing::Groups},
    {0x010C002C, "BayerGB12Packed", Color::BayerGB, 12, Packing::Groups},
    {0x010C002D, "BayerBG12Packed", Color::BayerBG, 12, Packing::Groups},
    {0x0110002F, "BayerRG16", Color::BayerRG, 16, Packing::Words},
    {0x0110002E, "BayerGR16", Color::BayerGR, 16, Packing::Words},
    {0x01100030, "BayerGB16", Color::BayerGB, 16, Packing::Words},
    {0x01100031, "BayerBG16", Color::BayerBG, 16, Packing::Words},

    {0x02180014, "RGB8", Color::Rgb, 8, Packing::Bytes},
    {0x02180015, "BGR8", Color::Bgr, 8, Packing::Bytes},
    {0x02200016, "RGBa8", Color::Rgba, 8, Packing::Bytes},
    {0x02200017, "BGRa8", Color::Bgra, 8, Packing::Bytes},
    {0x02300018, "RGB10", Color::Rgb, 10, Packing::Words},
    {0x02300019, "BGR10", Color::Bgr, 10, Packing::Words},
    {0x0230001A, "RGB12", Color::Rgb, 12, Packing::Words},
    {0x0230001B, "BGR12", Color::Bgr, 12, Packing::Words},
    {0x02300033, "RGB16", Color::Rgb, 16, Packing::Words},
    {0x0210001F, "YUV422_8_UYVY", Color::Uyvy, 8, Packing::Bytes},
    {0x02100032, "YUV422_8", Color::Yuyv, 8, Packing::Bytes},
    {0x0210003B, "YCbCr422_8", Color::Yuyv, 8, Packing::Bytes},

    // Known only so that they can be named.
    {0x01080002, "Mono8s", Color::Unsupported, 8, Packing::Bytes},
    {0x01010037, "Mono1p", Color::Unsupported, 1, Packing::Stream},
    {0x01020038, "Mono2p", Color::Unsupported, 2, Packing::Stream},
    {0x01040039, "Mono4p", Color::Unsupported, 4, Packing::Stream},
    {0x020C001E, "YUV411_8_UYYVYY", Color::Unsupported, 8, Packing::Bytes},
    {0x02180020, "YUV8_UYV", Color::Unsupported, 8, Packing::Bytes},
    {0x02180021, "RGB8_Planar", Color::Unsupported, 8, Packing::Bytes},
    {0x02300022, "RGB10_Planar", Color::Unsupported, 10, Packing::Words},
    {0x02300023, "RGB12_Planar", Color::Unsupported, 12, Packing::Words},
    {0x02300024, "RGB16_Planar", Color::Unsupported, 16, Packing::Words},
    {0x010800B1, "Coord3D_C8", Color::Unsupported, 8, Packing::Bytes},
    {0x011000B8, "Coord3D_C16", Color::Unsupported, 16, Packing::Words},
    {0x012000BF, "Coord3D_C32f", Color::Unsupported, 32, Packing::Words},
    {0x023000B9, "Coord3D_ABC16", Color::Unsupported, 16, Packing::Words},
    {0x026000C0, "Coord3D_ABC32f", Color::Unsupported, 32, Packing::Words},
};

} // namespace

bool PixelFormat::isBayer() const
{
    return color == Color::BayerRG || color == Color::BayerGR || color == Color::BayerGB
           || color == Color::BayerBG;
}

int PixelFormat::channels() const
{
    return color == Color::Mono ? 1 : 3;
}

int PixelFormat::samplesPerPixel() const
{
    switch (color) {
    case Color::Rgb:
    case Color::Bgr:
        return 3;
    case Color::Rgba:
    case Color::Bgra:
        return 4;
    case Color::Uyvy:
    case Color::Yuyv:
        return 2;
    default:
        return 1;
    }
}

std::size_t PixelFormat::byteCount(std::size_t samples) const
{
    switch (packing) {
    case Packing::Bytes:
        return samples;
    case Packing::Words:
        return samples * 2;
    case Packing::Stream:
        return (samples * static_cast<std::size_t>(bits) + 7) / 8;
    case Packing::Groups:
        break;
    }
    // A last sample without a partner ends with the byte that holds its lower bits.
    return samples / 2 * 3 + samples % 2 * 2;
}

const PixelFormat *findPixelFormat(std::uint32_t code)
{
    const auto *found =
        std::find_if(std::begin(formats), std::end(formats),
                     [code](const PixelFormat &format) { return format.code == code; });
    return found == std::end(formats) ? nullptr : found;
}

QString pixelFormatName(std::uint32_t code)
{
    const PixelFormat *format = findPixelFormat(code);
    return format ? QString::fromLatin1(format->name)
                  : QStringLiteral("0x%1").arg(code, 8, 16, QLatin1Char('0'));
}

} // namespace ImageView
