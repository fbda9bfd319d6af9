// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/nerixviewer/CAppearance.h"

#include <QApplication>
#include <QColor>
#include <QSettings>
#include <QStyle>

namespace Plugin {
namespace NerixViewer {

namespace {

const QLatin1String key("MainWindow/Appearance");
const QLatin1String light("light");
const QLatin1String dark("dark");
const QLatin1String systemChoice("system");

// The style that heeds every colour of a palette, on every desktop.
const QLatin1String paletteStyle("Fusion");

// The grey of text that cannot be used now.
void dim(QPalette &palette, const QColor &color)
{
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText,
                            QPalette::HighlightedText, QPalette::ToolTipText}) {
        palette.setColor(QPalette::Disabled, role, color);
    }
}

QPalette paletteOf(const QColor &window, const QColor &base, const QColor &text,
                   const QColor &highlight, const QColor &link, const QColor &dimmed)
{
    QPalette palette(window);
    palette.setColor(QPalette::Window, window);
    palette.setColor(QPalette::Button, window);
    palette.setColor(QPalette::Base, base);
    palette.setColor(QPalette::AlternateBase, window);
    palette.setColor(QPalette::ToolTipBase, base);
    for (const auto role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText}) {
        palette.setColor(role, text);
    }
    palette.setColor(QPalette::PlaceholderText, dimmed);
    palette.setColor(QPalette::Highlight, highlight);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, link);
    dim(palette, dimmed);
    return palette;
}

QPalette lightPalette()
{
    return paletteOf(QColor(0xf2f2f2), Qt::white, QColor(0x1a1a1a), QColor(0x1f6fb2),
                     QColor(0x0b5394), QColor(0x8a8a8a));
}

QPalette darkPalette()
{
    return paletteOf(QColor(0x2d2d30), QColor(0x1e1e1e), QColor(0xe6e6e6), QColor(0x2f7fc4),
                     QColor(0x6cb6ff), QColor(0x8a8a8a));
}

} // namespace

CAppearance::CAppearance()
    : m_systemPalette(QApplication::palette())
    , m_systemStyle(QApplication::style()->objectName())
{}

QString CAppearance::choice() const
{
    const QString chosen = QSettings().value(key).toString();
    return chosen == light || chosen == dark ? chosen : QString(systemChoice);
}

void CAppearance::choose(const QString &choice)
{
    QSettings().setValue(key, choice);
    apply();
}

void CAppearance::apply() const
{
    const QString chosen = choice();
    if (chosen == systemChoice) {
        QApplication::setStyle(m_systemStyle);
        QApplication::setPalette(m_systemPalette);
        return;
    }
    QApplication::setStyle(paletteStyle);
    QApplication::setPalette(chosen == dark ? darkPalette() : lightPalette());
}

} // namespace NerixViewer
} // namespace Plugin
