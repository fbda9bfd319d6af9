// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "scripting/CScriptWindows.h"

#include <QAccessible>
#include <QApplication>
#include <QMenu>
#include <QPixmap>
#include <QWidget>

namespace Scripting {

namespace {

// Of a picture in the format that \a file names, as Qt counts it: PNG loses nothing, so it gets all
// the compression that there is.
int quality(const QString &file)
{
    return file.endsWith(QLatin1String(".png"), Qt::CaseInsensitive) ? 0 : -1;
}

} // namespace

QStringList CScriptWindows::titles()
{
    QStringList titles;
    const auto windows = QApplication::topLevelWidgets();
    for (const QWidget *window : windows) {
        if (window->isVisible()) {
            titles.append(window->windowTitle());
        }
    }
    titles.sort();
    return titles;
}

void CScriptWindows::resize(const QString &title, int width, int height)
{
    if (QWidget *window = find(title)) {
        window->resize(width, height);
    }
}

void CScriptWindows::save(const QString &title, const QString &file)
{
    QWidget *window = find(title);
    if (window && !window->grab().save(file, nullptr, quality(file))) {
        fail(QStringLiteral("%1 cannot be written: name a file that can, with the suffix .png")
                 .arg(file));
    }
}

QString CScriptWindows::focus()
{
    if (const auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget())) {
        const QAction *entry = menu->activeAction();
        return entry ? entry->text().remove(QLatin1Char('&')) : QString();
    }
    QAccessible::setActive(true); // else the pages do not say what they are
    const QAccessibleInterface *thing =
        QAccessible::queryAccessibleInterface(QGuiApplication::focusObject());
    const QAccessibleInterface *part = thing ? thing->focusChild() : nullptr;
    thing = part ? part : thing;
    return thing ? thing->text(QAccessible::Name) : QString();
}

QWidget *CScriptWindows::find(const QString &title)
{
    const auto windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (window->isVisible() && window->windowTitle() == title) {
            return window;
        }
    }
    fail(QStringLiteral("no window \"%1\" is shown: windows.titles() gives those that are, and a "
                        "script has windows only with --show-windows")
             .arg(title));
    return nullptr;
}

} // namespace Scripting
