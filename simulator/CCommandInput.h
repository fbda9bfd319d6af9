// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <glib.h>

#include <functional>
#include <string>

namespace Simulator {

// Reads lines from a descriptor in the main context of GLib and hands them on. When the input ends
// or cannot be read any more it falls silent; that is no error.
class CCommandInput
{
public:
    using Handler = std::function<void(const std::string &line)>;

    // The descriptor stays the caller's. Lines come without their end; a last one without an end
    // is handed on too.
    CCommandInput(int descriptor, Handler handler);
    ~CCommandInput();
    CCommandInput(const CCommandInput &) = delete;
    CCommandInput &operator=(const CCommandInput &) = delete;

private:
    static gboolean onReadable(gint descriptor, GIOCondition condition, gpointer self);
    bool readSome(int descriptor);
    void handOn();

    Handler m_handler;
    std::string m_pending;
    guint m_source;
};

} // namespace Simulator
