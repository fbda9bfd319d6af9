// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/usagedatalog/UsageDataLogPlugin.h"

#include "plugins/nerixviewer/IMainWindowService.h"
#include "plugins/nerixwelcome/CNerixWelcomeController.h"
#include "plugins/usagedatalog/CConsentWatch.h"
#include "plugins/usagedatalog/CEventStore.h"
#include "plugins/usagedatalog/CUsageDataLogWindow.h"
#include "windows/MenuEntry.h"

#include <Core/Plugin/ServiceLookup.h>
#include <Plugin/AppCore/IMenuService.h>

#include <utility>

#include <QAction>
#include <QStandardPaths>

namespace Plugin {
namespace UsageDataLog {

using Core::Plugin::findService;
using NerixViewer::IMainWindowService;

CUsageDataLogPlugin::CUsageDataLogPlugin(QString program, Policy::CUsagePolicy policy,
                                         QObject *parent)
    : IPlugin(parent)
    , m_program(std::move(program))
    , m_policy(policy)
{}

CUsageDataLogPlugin::~CUsageDataLogPlugin()
{
    delete m_window;
}

bool CUsageDataLogPlugin::preInitialize(
    const QPointer<Core::Plugin::IPluginInitializer> &initializer)
{
    m_initializer = initializer;
    return true;
}

bool CUsageDataLogPlugin::initialize()
{
    const auto menus = findService<AppCore::IMenuService>(m_initializer);
    if (menus && findService<IMainWindowService>(m_initializer)) {
        m_action = Windows::addMenuEntry(
            *menus,
            {"UsageDataLog.Action.Show", "NerixViewer.Menu.Help", "NerixViewer.Group.Help.Support"},
            [] { return tr("&Usage Data Log"); }, this);
        connect(m_action, &QAction::triggered, this, &CUsageDataLogPlugin::showWindow);
    }
    return true;
}

bool CUsageDataLogPlugin::uninitialize(const QPointer<Core::Plugin::IPluginInitializer> &)
{
    delete m_action;
    m_action = nullptr;
    delete m_window;
    m_consent.reset();
    m_store.reset();
    return true;
}

void CUsageDataLogPlugin::showWindow()
{
    if (!m_window) {
        m_store = std::make_unique<CEventStore>(
            m_program, QStandardPaths::writableLocation(QStandardPaths::AppDataLocation));
        m_consent = std::make_unique<CConsentWatch>(
            findService<NerixWelcome::CNerixWelcomeController>(m_initializer));
        m_window =
            new CUsageDataLogWindow(*m_store, *m_consent, m_policy,
                                    findService<IMainWindowService>(m_initializer)->window());
    }
    m_window->setWindowState(m_window->windowState() & ~Qt::WindowMinimized);
    m_window->show();
    m_window->raise();
    m_window->activateWindow();
}

} // namespace UsageDataLog
} // namespace Plugin
