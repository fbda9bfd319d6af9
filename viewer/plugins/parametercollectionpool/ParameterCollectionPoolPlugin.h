// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <Core/Plugin/IPlugin.h>

#include <QSharedPointer>

namespace ParameterCollectionPool {

class CParameterService;

/// The built-in plug-in "ParameterCollectionPool". Offers `IParameterService`; needs "CameraPool".
class CParameterCollectionPoolPlugin : public Core::Plugin::IPlugin
{
    Q_OBJECT

public:
    CParameterCollectionPoolPlugin();
    ~CParameterCollectionPoolPlugin() override;

    bool preInitialize(const QPointer<Core::Plugin::IPluginInitializer> &initializer) override;
    bool initialize() override;
    bool uninitialize(const QPointer<Core::Plugin::IPluginInitializer> &initializer) override;

private:
    QPointer<Core::Plugin::IPluginInitializer> m_initializer;
    QSharedPointer<CParameterService> m_service;
};

} // namespace ParameterCollectionPool
