// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "core/ExitHandler.h"

#include "core/HandleTable.h"
#include "core/Instance.h"
#include "delivery/CurlTransport.h"

#include <cstdlib>
#include <mutex>

namespace rui {

namespace {

void endSessions()
{
    for (const auto &instance : HandleTable::process().close()) {
        instance->shutDown();
    }
}

} // namespace

void endSessionsAtExit()
{
    static std::once_flag once;
    std::call_once(once, [] {
        // First, as handlers run in the reverse order: TLS is taken down after the sessions.
        initialiseCurl();
        std::atexit(endSessions);
    });
}

} // namespace rui
