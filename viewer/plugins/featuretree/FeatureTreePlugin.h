// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <Core/Plugin/IPlugin.h>

#include <QSharedPointer>

namespace FeatureTree {

class CFeatureSelectionService;

/// The built-in plug-in "FeatureTree": tells which feature is current.
class CFeatureTreePlugin : public Core::Plugin::IPlugin
{
    Q_OBJECT

public:
    explicit CFeatureTreePlugin(QObject *parent = nullptr);
    ~CFeatureTreePlugin() override;

    bool preInitialize(const QPointer<Core::Plugin::IPluginInitializer> &initializer) override;
    bool initialize() override;
    bool uninitialize(const QPointer<Core::Plugin::IPluginInitializer> &initializer) override;

private:
    QSharedPointer<CFeatureSelectionService> m_service;
};

} // namespace FeatureTree
