// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Failure.h"

namespace rui {

// A failed call of the operating system on a file.
class SystemError : public Failure
{
public:
    // error: an errno.
    SystemError(const std::string &path, int error);
};

// The device has no room, or the user's share of it is used up.
bool isFull(int error) noexcept;

} // namespace rui
