// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Plugin {
namespace Localization {

/// Says in the log, in one line with the remedy, if no font of this machine has the letters of
/// \a language: windows show them as boxes then. Nothing without a screen. GUI thread.
void warnOfMissingFonts(const QString &language);

} // namespace Localization
} // namespace Plugin
