// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// Takes the place of the library's own file: a test says where the policy is.
#include "store/Policy.h"

#include <cstdlib>

namespace rui {

const char *policyPath()
{
    const char *path = std::getenv("RUI_TEST_POLICY");
    return path == nullptr ? "/nonexistent/policy.json" : path;
}

} // namespace rui
