// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

// Questions about an IPv4 address of this machine. All functions may be called from any thread.
namespace Simulator {

// The UDP port on which every GigE Vision camera is spoken to.
constexpr std::uint16_t ControlPort = 3956;

// Whether the text is a dotted IPv4 address within 127.0.0.0/8, which no network can reach.
bool isLoopbackAddress(const std::string &address);

// Whether an interface that is up carries the address. Aravis serves only on such a one.
bool isAddressConfigured(const std::string &address);

// Throws std::runtime_error with a line for the user when none does.
void requireConfigured(const std::string &address);

// Whether this very process holds a UDP socket that is bound to the control port of the address.
bool ownsControlPort(const std::string &address);

} // namespace Simulator
