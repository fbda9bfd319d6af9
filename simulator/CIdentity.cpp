// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "CIdentity.h"

#include "Registers.h"

#include <arv.h>

#include <vector>

namespace Simulator {

namespace {

void seedText(ArvFakeCamera *camera, std::uint32_t address, std::uint32_t size,
              const std::string &text)
{
    std::vector<char> bytes(size, '\0');
    text.copy(bytes.data(), size - 1);
    arv_fake_camera_write_memory(camera, address, size, bytes.data());
}

} // namespace

std::uint64_t macAddress(const std::string &serial, const std::string &address)
{
    // FNV-1a, 64 bits; the separator keeps the two texts apart.
    std::uint64_t hash = 0xCBF29CE484222325;
    for (const char character : serial + '\n' + address) {
        hash = (hash ^ static_cast<unsigned char>(character)) * 0x100000001B3;
    }
    const std::uint64_t folded = (hash ^ (hash >> 40)) & 0xFFFFFFFFFF;
    return (std::uint64_t(0x02) << 40) | folded;
}

void seedIdentity(ArvFakeCamera *camera, const CIdentity &identity, std::uint64_t mac)
{
    arv_fake_camera_write_register(camera, Registers::MacHigh, static_cast<guint32>(mac >> 32));
    arv_fake_camera_write_register(camera, Registers::MacLow,
                                   static_cast<guint32>(mac & 0xFFFFFFFF));
    seedText(camera, Registers::Vendor, Registers::VendorSize, identity.vendor);
    seedText(camera, Registers::Model, Registers::ModelSize, identity.model);
    seedText(camera, Registers::DeviceVersion, Registers::DeviceVersionSize, SIMULATOR_VERSION);
    seedText(camera, Registers::ManufacturerInfo, Registers::ManufacturerInfoSize,
             "Simulated camera");
    seedText(camera, Registers::UserName, Registers::UserNameSize, identity.userName);
}

} // namespace Simulator
