// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

// Checks of what the user gives as an option's value. Each returns the value, or throws
// std::invalid_argument with a line that names the option, what is wrong and the remedy.
namespace Simulator {

// 1 to size - 1 printable ASCII characters, so that a register of `size` bytes holds them.
std::string checkedText(const std::string &option, const std::string &value, std::size_t size);

// Letters, digits and - _ . that fit the register of the serial number.
std::string checkedSerial(const std::string &value);

// An IPv4 address within 127.0.0.0/8.
std::string checkedAddress(const std::string &value);

// 0 to 1.
double checkedLoss(const std::string &value);

// From baseFeatureCount() to maximumFeatureCount().
int checkedFeatureCount(const std::string &value);

} // namespace Simulator
