// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/help/CHelpEntries.h"

#include "plugins/help/CAboutDialog.h"
#include "plugins/help/CHelpDocuments.h"
#include "windows/MenuEntry.h"

#include <QAction>

namespace Plugin {
namespace Help {

namespace {

constexpr char menu[] = "NerixViewer.Menu.Help";
constexpr char contents[] = "NerixViewer.Group.Help.Contents";
constexpr char about[] = "NerixViewer.Group.Help.About";

} // namespace

CHelpEntries::CHelpEntries(AppCore::IMenuService &menus, const CHelpDocuments &documents,
                           QWidget *window)
{
    const auto add = [&](CHelpHelper::HelpType type, const Windows::MenuEntry &entry, auto text) {
        if (documents.has(type)) {
            const QAction *action = Windows::addMenuEntry(menus, entry, text, this);
            connect(action, &QAction::triggered, this, [type] { CHelpHelper::showHelp(type); });
        }
    };
    using Helper = CHelpHelper;
    add(Helper::HelpContents, {"Help.Action.Contents", menu, contents, QKeySequence(Qt::Key_F1)},
        [] { return tr("&Contents"); });
    add(Helper::HelpCameras, {"Help.Action.Cameras", menu, contents},
        [] { return tr("Ca&meras"); });
    add(Helper::HelpFeatures, {"Help.Action.Features", menu, contents},
        [] { return tr("&Features"); });
    add(Helper::HelpGrabbing, {"Help.Action.Grabbing", menu, contents},
        [] { return tr("&Grabbing"); });
    add(Helper::HelpPrivacyStatement, {"Help.Action.PrivacyStatement", menu, contents},
        [] { return tr("&Privacy Statement"); });
    add(Helper::HelpLicenses, {"Help.Action.Licenses", menu, about},
        [] { return tr("&Licences"); });
    if (window) {
        addAbout(menus, window);
    }
}

CHelpEntries::~CHelpEntries() = default;

void CHelpEntries::addAbout(AppCore::IMenuService &menus, QWidget *window)
{
    const QAction *action = Windows::addMenuEntry(
        menus, {"Help.Action.About", menu, about}, [] { return tr("&About Nerix Viewer"); }, this);
    connect(action, &QAction::triggered, window, [window] {
        auto *dialog = new CAboutDialog(window);
        dialog->setAttribute(Qt::WA_DeleteOnClose);
        dialog->open();
    });
}

} // namespace Help
} // namespace Plugin
