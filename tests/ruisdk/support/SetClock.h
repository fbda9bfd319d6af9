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
        return time += step;
    }

    std::int64_t sinceBoot() const override
    {
        return time - m_jumps;
    }

    std::string boot() const override
    {
        return std::to_string(m_boots);
    }

    // As somebody sets the machine's clock: no time passes.
    void jump(std::int64_t by)
    {
        m_jumps += by;
        time += by;
    }

    // As the machine is started again, which takes no time.
    void restart()
    {
        ++m_boots;
        m_jumps = time.load();
    }

    // To change it is to let time pass.
    mutable std::atomic<std::int64_t> time{0};
    // What passes with each look.
    std::atomic<std::int64_t> step{0};

private:
    std::atomic<std::int64_t> m_jumps{0};
    std::atomic<int> m_boots{1};
};

} // namespace rui::test
