// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "store/SystemError.h"

#include <cerrno>
#include <system_error>

namespace rui {

SystemError::SystemError(const std::string &path, int error)
    : Failure(isFull(error) ? RUI_FULL : RUI_STORAGE,
              path + ": " + std::generic_category().message(error))
{}

bool isFull(int error) noexcept
{
    return error == ENOSPC || error == EDQUOT;
}

} // namespace rui
