// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/appcore/AppCorePlugin.h"

#include "plugins/appcore/CMenuService.h"

namespace Plugin {
namespace AppCore {

CAppCorePlugin::CAppCorePlugin(QObject *parent)
    : IPlugin(parent)
    , m_menuService(QSharedPointer<CMenuService>::create())
{}

CAppCorePlugin::~CAppCorePlugin() = default;

bool CAppCorePlugin::preInitialize(const QPointer<Core::Plugin::IPluginInitializer> &initializer)
{
    initializer->addService(m_menuService);
    return true;
}

bool CAppCorePlugin::initialize()
{
    return true;
}

bool CAppCorePlugin::uninitialize(const QPointer<Core::Plugin::IPluginInitializer> &initializer)
{
    initializer->removeService(m_menuService);
    return true;
}

} // namespace AppCore
} // namespace Plugin
