// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

class QObject;

namespace Windows {

/// Calls \a setTexts at once, and again each time when the application's catalogues change, as long
/// as \a owner lives. GUI thread.
void onLanguageChange(QObject *owner, std::function<void()> setTexts);

} // namespace Windows
