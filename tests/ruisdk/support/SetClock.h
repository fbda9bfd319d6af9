// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Clock.h"

#include <atomic>

namespace rui::test {

// A clock that stands still until a test sets it.
class SetClock : public Clock
{
public:
    std::int64_t now() const override
    {
        return time;
    }

    std::atomic<std::int64_t> time{0};
};

} // namespace rui::test
