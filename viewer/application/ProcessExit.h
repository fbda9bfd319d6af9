// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

namespace Application {

/// While it lives, who calls exit() ends the viewer in order first: Qt does when the display goes
/// away (a log-out, a crash of the X server), with no way to object. At that point all objects
/// still live, as they do not when handlers of atexit() run.
///
/// At most one object at a time; in the thread of the application object. Only in that thread the
/// handler is called, once; what runs an event loop in it comes back into exit(), which then ends
/// the process at once.
class CProcessExit
{
public:
    explicit CProcessExit(std::function<void()> handler);
    ~CProcessExit();

    CProcessExit(const CProcessExit &) = delete;
    CProcessExit &operator=(const CProcessExit &) = delete;
};

} // namespace Application
