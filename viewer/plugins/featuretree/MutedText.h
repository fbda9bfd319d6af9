// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QPalette>

namespace FeatureTree {

/// The colour of a value that cannot be changed now: between the text and the ground, and still
/// easy to read. The colour for disabled text is not in every theme.
inline QColor mutedText(const QPalette &palette)
{
    const QColor text = palette.color(QPalette::Active, QPalette::Text);
    const QColor ground = palette.color(QPalette::Active, QPalette::Base);
    const auto mix = [](int a, int b) { return (a * 3 + b * 2) / 5; };
    return {mix(text.red(), ground.red()), mix(text.green(), ground.green()),
            mix(text.blue(), ground.blue())};
}

} // namespace FeatureTree
