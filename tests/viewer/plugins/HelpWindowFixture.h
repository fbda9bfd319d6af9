// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "plugins/appcore/AppCorePlugin.h"
#include "plugins/help/CHelpBrowser.h"
#include "plugins/help/CHelpWindow.h"
#include "plugins/help/HelpPlugin.h"
#include "plugins/localization/LocalizationPlugin.h"

#include <pluginsystem/CServiceRegistry.h>

#include <memory>

#include <QTemporaryDir>

// The help in a run with windows, with the documents "help.md" ("The Contents", with links to the
// others and to an address), "cameras.md" and the long "privacy.md". In English until a language is
// set; a sandbox for the settings must be there.
class HelpWindowFixture
{
public:
    HelpWindowFixture();
    ~HelpWindowFixture();

    // Before `start`; \a name may be in a folder of its own, as in "ja/help.md".
    void write(const char *name, const QByteArray &text);

    void start();

    // As choosing it in the menu of the languages.
    void setLanguage(const char *language);

    // As choosing the entry in its menu.
    void trigger(const char *id);

    // Follows a link by the keys that walk from link to link.
    void press(const char *link);

    // Null until it is needed.
    Plugin::Help::CHelpWindow *window() const;
    Plugin::Help::CHelpBrowser *browser() const;

    PluginSystem::CServiceRegistry registry;
    std::unique_ptr<Plugin::Help::CHelpPlugin> plugin;

private:
    QTemporaryDir m_folder;
    std::unique_ptr<Plugin::Localization::CLocalizationPlugin> m_localization;
    std::unique_ptr<Plugin::AppCore::CAppCorePlugin> m_appCore;
};
