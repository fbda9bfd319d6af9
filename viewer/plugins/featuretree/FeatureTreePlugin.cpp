// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/featuretree/FeatureTreePlugin.h"

#include "plugins/featuretree/CFeatureSelectionService.h"

namespace FeatureTree {

CFeatureTreePlugin::CFeatureTreePlugin(QObject *parent)
    : IPlugin(parent)
    , m_service(QSharedPointer<CFeatureSelectionService>::create())
{}

CFeatureTreePlugin::~CFeatureTreePlugin() = default;

bool CFeatureTreePlugin::preInitialize(
    const QPointer<Core::Plugin::IPluginInitializer> &initializer)
{
    initializer->addService(m_service);
    return true;
}

bool CFeatureTreePlugin::initialize()
{
    return true;
}

bool CFeatureTreePlugin::uninitialize(const QPointer<Core::Plugin::IPluginInitializer> &initializer)
{
    initializer->removeService(m_service);
    return true;
}

} // namespace FeatureTree
