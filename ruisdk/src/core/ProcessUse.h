// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

namespace rui {

// Something that must not be used on both sides of a fork: SQLite's connections, whose locks a
// child does not inherit although it believes so, and threads. While one exists anywhere in the
// process, a child that is forked is barred from all of it: no process loses an event because
// another one has forked. Any thread.
class ProcessUse
{
public:
    // Throws Failure with RUI_FORKED in a child that is barred.
    ProcessUse();
    ~ProcessUse();
    ProcessUse(ProcessUse &&other) noexcept;
    ProcessUse &operator=(ProcessUse &&other) noexcept;

private:
    bool m_counts = true;
};

} // namespace rui
