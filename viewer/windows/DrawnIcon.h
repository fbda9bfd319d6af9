// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include <QColor>
#include <QIcon>

class QPainter;

namespace Windows {

/// The side of what a drawn icon is drawn on, in its own unit.
constexpr int drawnIconSize = 16;

/// An icon that \a draw makes anew each time, so that it follows the palette and the scale. The
/// painter smooths edges and counts in 16ths of the icon; it has \a color, for what stands on a
/// selected row or cannot be used that of the palette, as pen and as brush. GUI thread.
QIcon drawnIcon(std::function<QColor()> color, std::function<void(QPainter &)> draw);

} // namespace Windows
