// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

namespace Application {

/// Sends every log message to standard error, one line each, whatever that is connected to.
/// Warnings and errors say so; QT_MESSAGE_PATTERN changes the form.
void installLogOutput();

} // namespace Application
