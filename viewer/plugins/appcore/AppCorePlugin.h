// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <Core/Plugin/IPlugin.h>

#include <QSharedPointer>

namespace Plugin {
namespace AppCore {

class CMenuService;

/// The built-in plug-in "AppCore": offers the menu service.
class CAppCorePlugin : public Core::Plugin::IPlugin
{
    Q_OBJECT

public:
    explicit CAppCorePlugin(QObject *parent = nullptr);
    ~CAppCorePlugin() override;

    bool preInitialize(const QPointer<Core::Plugin::IPluginInitializer> &initializer) override;
    bool initialize() override;
    bool uninitialize(const QPointer<Core::Plugin::IPluginInitializer> &initializer) override;

private:
    QSharedPointer<CMenuService> m_menuService;
};

} // namespace AppCore
} // namespace Plugin
