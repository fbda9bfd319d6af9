// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/localization/LocalizationPlugin.h"

#include <utility>

namespace Plugin {
namespace Localization {

CLocalizationPlugin::CLocalizationPlugin(CLanguageService::Switch switchPlugins, QObject *parent)
    : IPlugin(parent)
    , m_languageService(QSharedPointer<CLanguageService>::create(std::move(switchPlugins)))
{}

CLocalizationPlugin::~CLocalizationPlugin() = default;

bool CLocalizationPlugin::preInitialize(
    const QPointer<Core::Plugin::IPluginInitializer> &initializer)
{
    initializer->addService(m_languageService);
    m_languageService->apply();
    return true;
}

bool CLocalizationPlugin::initialize()
{
    return true;
}

bool CLocalizationPlugin::uninitialize(
    const QPointer<Core::Plugin::IPluginInitializer> &initializer)
{
    initializer->removeService(m_languageService);
    return true;
}

} // namespace Localization
} // namespace Plugin
