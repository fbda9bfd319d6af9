// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include <CHelpHelper.h>

#include <utility>

namespace {

CHelpHelper::Handler &currentHandler()
{
    static CHelpHelper::Handler handler;
    return handler;
}

} // namespace

bool CHelpHelper::showHelp(HelpType type)
{
    // A copy, since the function may set another one.
    const Handler handler = currentHandler();
    return handler && handler(type);
}

void CHelpHelper::setHandler(Handler handler)
{
    currentHandler() = std::move(handler);
}
