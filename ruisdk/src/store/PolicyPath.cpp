// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// Alone in its file, so that tests can put another one in its place.
#include "store/Policy.h"

namespace rui {

const char *policyPath()
{
    return RUI_POLICY_FILE;
}

} // namespace rui
