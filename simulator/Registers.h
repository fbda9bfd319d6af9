// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

// Where the simulated camera keeps what. The first group is given by the GigE Vision standard, the
// last by `camera.xml`; what Aravis' fake camera acts on has its names in <arv.h>.
namespace Simulator::Registers {

constexpr std::uint32_t MacHigh = 0x08; // the upper two bytes, in the lower half of the register
constexpr std::uint32_t MacLow = 0x0C;
constexpr std::uint32_t Vendor = 0x48;
constexpr std::uint32_t Model = 0x68;
constexpr std::uint32_t DeviceVersion = 0x88;
constexpr std::uint32_t ManufacturerInfo = 0xA8;
constexpr std::uint32_t UserName = 0xE8;

// Sizes of the text registers in bytes; the last byte is always the terminating null.
constexpr std::uint32_t VendorSize = 32;
constexpr std::uint32_t ModelSize = 32;
constexpr std::uint32_t DeviceVersionSize = 32;
constexpr std::uint32_t ManufacturerInfoSize = 48;
constexpr std::uint32_t SerialSize = 16;
constexpr std::uint32_t UserNameSize = 16;

constexpr std::uint32_t Temperature = 0xA000; // degrees Celsius, 32-bit float
constexpr std::uint32_t FrameCount = 0xA004;  // images of one acquisition in the mode MultiFrame
constexpr std::uint32_t Brightness = 0xA020;  // signed
constexpr std::uint32_t Invert = 0xA024;
constexpr std::uint32_t TestImage = 0xA028;
constexpr std::uint32_t FrameTotal = 0xA034; // images since the camera was switched on

// Generated features: a slot each, up to the end of the register space.
constexpr std::uint32_t Generated = 0xB000;
constexpr std::uint32_t GeneratedSlotSize = 16;
constexpr std::uint32_t End = 0x10000;

} // namespace Simulator::Registers
