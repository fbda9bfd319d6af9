// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <QPalette>
#include <QString>

namespace Plugin {
namespace NerixViewer {

/// Light or dark, as the user wants: "light", "dark", or "system" for what the desktop says. Kept
/// in the settings under "MainWindow/Appearance". GUI thread; needs the application object.
class CAppearance
{
public:
    CAppearance();

    /// What the user chose; "system" at first.
    QString choice() const;

    /// Changes the whole application at once and remembers it. What is none of the three counts as
    /// "system".
    void choose(const QString &choice);

    /// Makes the application look as the user chose.
    void apply() const;

private:
    QPalette m_systemPalette;
    QString m_systemStyle;
};

} // namespace NerixViewer
} // namespace Plugin
