// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "plugins/localization/CLanguageService.h"

#include <Core/Plugin/IPlugin.h>

#include <QSharedPointer>

namespace Plugin {
namespace Localization {

/// The built-in plug-in "Localization": switches every plug-in to the user's language, before the
/// plug-ins that depend on this one make their texts, and again whenever the user chooses another
/// one.
class CLocalizationPlugin : public Core::Plugin::IPlugin
{
    Q_OBJECT

public:
    explicit CLocalizationPlugin(CLanguageService::Switch switchPlugins, QObject *parent = nullptr);
    ~CLocalizationPlugin() override;

    bool preInitialize(const QPointer<Core::Plugin::IPluginInitializer> &initializer) override;
    bool initialize() override;
    bool uninitialize(const QPointer<Core::Plugin::IPluginInitializer> &initializer) override;

private:
    QSharedPointer<CLanguageService> m_languageService;
};

} // namespace Localization
} // namespace Plugin
