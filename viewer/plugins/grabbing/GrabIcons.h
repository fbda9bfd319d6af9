// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>

namespace Grabbing {

// Drawn for the screen's own resolution, in colours that are seen on light and on dark ground. GUI
// thread; need the application object.

QIcon grabSingleIcon();
QIcon grabContinuousIcon();
QIcon stopIcon();

} // namespace Grabbing
