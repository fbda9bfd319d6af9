// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

namespace Plugin {
namespace NerixWelcome {

/// Lets Qt Quick draw without OpenGL where OpenGL does not work, so that a page is shown plainer
/// instead of ending the viewer. Leaves a choice that was made already ("QT_QUICK_BACKEND").
/// Before the first page, in the GUI thread; later calls do nothing.
void chooseQuickRenderer();

} // namespace NerixWelcome
} // namespace Plugin
