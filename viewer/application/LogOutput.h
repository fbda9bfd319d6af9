// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

namespace Application {

/// Sends every log message to standard error, one line each, whatever that is connected to; what
/// a terminal would take for a command is written out.
/// Warnings and errors say so; QT_MESSAGE_PATTERN changes the form.
void installLogOutput();

} // namespace Application
