// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace Simulator {

// Holds the control port of an address without ever answering on it, for as long as it lives: an
// unplugged camera is silent, and nobody else takes its place meanwhile. What arrives is dropped.
class CAddressHold
{
public:
    // Throws std::runtime_error with a line for the user when the address is taken.
    explicit CAddressHold(const std::string &address);
    ~CAddressHold();
    CAddressHold(const CAddressHold &) = delete;
    CAddressHold &operator=(const CAddressHold &) = delete;

private:
    int m_socket;
};

} // namespace Simulator
