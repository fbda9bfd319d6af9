// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "support/CTestPlugin.h"

CTestPlugin::CTestPlugin(Behaviour &behaviour)
    : IPlugin(nullptr)
    , m_behaviour(behaviour)
{}

CTestPlugin::~CTestPlugin()
{
    m_behaviour.calls.append(QStringLiteral("destroyed"));
}

bool CTestPlugin::preInitialize(const QPointer<Core::Plugin::IPluginInitializer> &initializer)
{
    for (const auto &service : qAsConst(m_behaviour.services)) {
        initializer->addService(service);
    }
    return true;
}

bool CTestPlugin::initialize()
{
    if (m_behaviour.work) {
        m_behaviour.work();
    }
    return true;
}

bool CTestPlugin::uninitialize(const QPointer<Core::Plugin::IPluginInitializer> &)
{
    m_behaviour.calls.append(QStringLiteral("uninitialize"));
    return true;
}

bool CTestPlugin::checkPluginClosability()
{
    ++m_behaviour.closabilityQuestions;
    return m_behaviour.closable;
}

void CTestPlugin::aboutToUninitialize()
{
    m_behaviour.calls.append(QStringLiteral("aboutToUninitialize"));
}
