// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <ruiSDK.h>

#include <stdexcept>
#include <string>

namespace rui {

// Ends a call with a result code; what() says in one line what failed.
class Failure : public std::runtime_error
{
public:
    Failure(ruiResult result, const std::string &what)
        : std::runtime_error(what)
        , m_result(result)
    {}

    ruiResult result() const noexcept
    {
        return m_result;
    }

private:
    ruiResult m_result;
};

} // namespace rui
