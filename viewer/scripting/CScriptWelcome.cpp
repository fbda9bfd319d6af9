// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "scripting/CScriptWelcome.h"

#include "plugins/nerixwelcome/CNerixWelcomeController.h"

#include <Plugin/NerixWelcome/INerixWelcomeTab.h>

#include <QVariantMap>

namespace Scripting {

using Plugin::NerixWelcome::CNerixWelcomeController;
using Plugin::NerixWelcome::INerixWelcomeTab;

namespace {

constexpr char pluginName[] = "NerixWelcome";

QVariantMap describe(const INerixWelcomeTab &tab)
{
    return {{QStringLiteral("id"), tab.tabId().toString()},
            {QStringLiteral("title"), tab.tabTitle()},
            {QStringLiteral("source"), tab.tabQmlSource().toString()},
            {QStringLiteral("applyNeeded"), tab.isApplyNeeded()}};
}

} // namespace

QVariantList CScriptWelcome::tabs()
{
    QVariantList descriptions;
    if (const auto screen = service<CNerixWelcomeController>(pluginName)) {
        const auto tabs = screen->tabs();
        for (const INerixWelcomeTab *tab : tabs) {
            descriptions.append(describe(*tab));
        }
    }
    return descriptions;
}

QString CScriptWelcome::currentTab()
{
    const auto screen = service<CNerixWelcomeController>(pluginName);
    const INerixWelcomeTab *tab = screen ? screen->currentTab() : nullptr;
    return tab ? tab->tabId().toString() : QString();
}

bool CScriptWelcome::visible()
{
    const auto screen = service<CNerixWelcomeController>(pluginName);
    return screen && screen->isVisible();
}

bool CScriptWelcome::applyNeeded()
{
    const auto screen = service<CNerixWelcomeController>(pluginName);
    return screen && screen->applyFromTabsIsNeeded();
}

void CScriptWelcome::show()
{
    if (const auto screen = service<CNerixWelcomeController>(pluginName)) {
        screen->show();
    }
}

void CScriptWelcome::showTab(const QString &id)
{
    const auto screen = service<CNerixWelcomeController>(pluginName);
    if (!screen) {
        return;
    }
    const auto tabs = screen->tabs();
    for (const INerixWelcomeTab *tab : tabs) {
        if (tab->tabId().toString() == id) {
            screen->showTab(tab);
            return;
        }
    }
    fail(QStringLiteral("there is no tab \"%1\": welcome.tabs() gives those that are").arg(id));
}

bool CScriptWelcome::close()
{
    const auto screen = service<CNerixWelcomeController>(pluginName);
    return screen && screen->close();
}

bool CScriptWelcome::showAtStartup()
{
    const auto screen = service<CNerixWelcomeController>(pluginName);
    return screen && screen->showAtStartup();
}

void CScriptWelcome::setShowAtStartup(bool show)
{
    if (const auto screen = service<CNerixWelcomeController>(pluginName)) {
        screen->setShowAtStartup(show);
    }
}

} // namespace Scripting
