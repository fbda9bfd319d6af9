// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

// The entry in the Help menu.

#include "CUsageTrackingPlugin.h"
#include "internal/CDataPrivacyTab.h"
#include "internal/CLanguageListener.h"

#include <Core/AppCoreComponents/CContext.h>
#include <Core/CId.h>
#include <Core/Plugin/ServiceLookup.h>
#include <Plugin/AppCore/IActionContainer.h>
#include <Plugin/AppCore/IMenuService.h>

#include <QAction>
#include <QIcon>

namespace Plugin::UsageTracking {

void CUsageTrackingPlugin::addHelpMenuEntry()
{
    const auto menuService = Core::Plugin::findService<AppCore::IMenuService>(m_initializer);
    if (!menuService) {
        return;
    }
    AppCore::IActionContainer *helpMenu =
        menuService->findActionContainer(Core::CId("NerixViewer.Menu.Help"));
    m_dataPrivacyAction = new QAction(tr("Data Privacy"), this);
    m_dataPrivacyAction->setIcon(
        QIcon(QStringLiteral(":/usagetracking/resources/shield_blue_16.svg")));
    AppCore::ICommand *command = menuService->registerAction(
        m_dataPrivacyAction, Core::CId("UsageTracking.DataPrivacy"),
        Core::AppCoreComponents::CContext(Core::CId("AppCore.Global.Context")));
    // Not tested for null: the Help menu is a fixed part of the viewer.
    helpMenu->addCommand(command, Core::CId("NerixViewer.Group.Help.Support"));
    connect(m_dataPrivacyAction, &QAction::triggered, this,
            &CUsageTrackingPlugin::onShowDataPrivacyTriggered);
    QAction *entry = m_dataPrivacyAction;
    new Internal::CLanguageListener([entry] { entry->setText(tr("Data Privacy")); }, entry);
}

void CUsageTrackingPlugin::onShowDataPrivacyTriggered()
{
    if (m_welcomeService) {
        m_welcomeService->showTab(m_dataPrivacyTab.data(), this);
    }
}

} // namespace Plugin::UsageTracking
