// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

namespace Plugin {
namespace NerixWelcome {

/// Lets screen readers into the pages: the QQuickWidget of Qt 5.15 tells them nothing of what it
/// shows. May be called more than once. GUI thread.
void installPageAccessibility();

} // namespace NerixWelcome
} // namespace Plugin
