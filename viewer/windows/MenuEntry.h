// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include <QKeySequence>
#include <QString>

class QAction;
class QObject;

namespace Plugin {
namespace AppCore {
class IMenuService;
}
} // namespace Plugin

namespace Windows {

/// Where an entry of the viewer's menus stands, for example
/// {"CameraSelector.Action.Open", "NerixViewer.Menu.Camera", "NerixViewer.Group.Camera.Device"}.
struct MenuEntry
{
    const char *id;
    const char *menu;
    const char *group;
    QKeySequence shortcut = {};
};

/// Makes an action and puts it where \a entry says; a menu that is not there is left out. \a text
/// is asked anew when the language changes. The action is owned by \a owner, which takes the entry
/// away when it deletes the action. GUI thread.
QAction *addMenuEntry(Plugin::AppCore::IMenuService &menus, const MenuEntry &entry,
                      std::function<QString()> text, QObject *owner);

} // namespace Windows
