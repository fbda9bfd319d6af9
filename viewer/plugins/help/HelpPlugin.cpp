// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/help/HelpPlugin.h"

#include "plugins/help/CHelpViewService.h"

#include <CHelpHelper.h>
#include <DocumentationHelper.h>

#include <QUrl>

namespace Plugin {
namespace Help {

CHelpPlugin::CHelpPlugin(const QString &documentFolder, QObject *parent)
    : IPlugin(parent)
    , m_service(QSharedPointer<CHelpViewService>::create(documentFolder))
{}

CHelpPlugin::~CHelpPlugin() = default;

bool CHelpPlugin::preInitialize(const QPointer<Core::Plugin::IPluginInitializer> &initializer)
{
    initializer->addService(m_service);
    return true;
}

bool CHelpPlugin::initialize()
{
    const auto service = m_service;
    CHelpHelper::setHandler(
        [service](CHelpHelper::HelpType type) { return service->showDocument(type); });
    DocumentationHelper::setHandler(
        [service](const QUrl &url, bool /*inViewer*/) { return service->showAddress(url); });
    return true;
}

bool CHelpPlugin::uninitialize(const QPointer<Core::Plugin::IPluginInitializer> &initializer)
{
    CHelpHelper::setHandler({});
    DocumentationHelper::setHandler({});
    initializer->removeService(m_service);
    return true;
}

} // namespace Help
} // namespace Plugin
