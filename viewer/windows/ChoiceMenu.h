// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "windows/MenuEntry.h"

#include <functional>

#include <QByteArray>
#include <QString>
#include <QVector>

class QActionGroup;

namespace Windows {

/// One of several options, of which always one is in force.
struct Choice
{
    QByteArray id; ///< of its action, for example "NerixViewer.Action.Appearance.Dark"
    std::function<QString()> text;
    QString value;
};

/// Makes a submenu with \a choices, each of which is an action of its own under its id, so that
/// scripts can trigger it; \a entry and \a text are the submenu's. \a choose is called with the
/// value of what the user picks. The check mark stands where \a current says, which is asked each
/// time before the submenu is shown. All is owned by \a owner. GUI thread.
QActionGroup *addChoiceMenu(Plugin::AppCore::IMenuService &menus, const MenuEntry &entry,
                            std::function<QString()> text, const QVector<Choice> &choices,
                            std::function<QString()> current,
                            std::function<void(const QString &)> choose, QObject *owner);

} // namespace Windows
