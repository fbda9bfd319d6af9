// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

typedef struct _ArvFakeCamera ArvFakeCamera;

namespace Simulator {

// What a camera says about itself: texts of printable ASCII that fit their registers.
struct CIdentity
{
    std::string vendor;
    std::string model;
    std::string serial;
    std::string userName; // empty: the user gave no name
};

// The MAC address in the lower 48 bits. The same serial number at the same address always gives
// the same one, others give others. It is locally administered and unicast, so never all zero.
std::uint64_t macAddress(const std::string &serial, const std::string &address);

// Writes identity and MAC address into the camera's registers.
void seedIdentity(ArvFakeCamera *camera, const CIdentity &identity, std::uint64_t mac);

} // namespace Simulator
