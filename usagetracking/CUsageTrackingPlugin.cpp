// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "CUsageTrackingPlugin.h"

#include "internal/CDataPrivacyTab.h"
#include "internal/CUsageTrackingProvider.h"

#include <Core/Plugin/ServiceLookup.h>

namespace Plugin::UsageTracking {

using Core::Plugin::IPluginInitializer;
using Internal::CUsageTrackingProvider;

CUsageTrackingPlugin::CUsageTrackingPlugin()
    : m_provider(new CUsageTrackingProvider)
{}

CUsageTrackingPlugin::~CUsageTrackingPlugin()
{
    // The thread frees the provider when it ends. Of a plug-in that was never initialised the
    // thread never ran.
    if (!m_trackingThread.isRunning() && !m_trackingThread.isFinished()) {
        delete m_provider;
    }
}

bool CUsageTrackingPlugin::preInitialize(const QPointer<IPluginInitializer> &initializer)
{
    m_initializer = initializer;
    m_dataPrivacyTab = new Internal::CDataPrivacyTab(this);
    connect(m_initializer, &IPluginInitializer::initializationDone, this,
            &CUsageTrackingPlugin::onInitializationDone);
    return true;
}

bool CUsageTrackingPlugin::initialize()
{
    const bool servicesFound = m_provider->acquireServices(m_initializer);
    startTrackingThread();
    loadConsent();
    addWelcomeTab();
    addHelpMenuEntry();
    return servicesFound;
}

bool CUsageTrackingPlugin::uninitialize(const QPointer<IPluginInitializer> & /*initializer*/)
{
    saveConsent();
    if (m_trackingThread.isRunning()) {
        m_trackingThread.quit();
        m_trackingThread.wait();
        m_provider = nullptr; // the thread has deleted it
    }
    return true;
}

void CUsageTrackingPlugin::startTrackingThread()
{
    m_provider->moveToThread(&m_trackingThread);
    connect(&m_trackingThread, &QThread::finished, m_provider,
            &CUsageTrackingProvider::stopTracking);
    connect(&m_trackingThread, &QThread::finished, m_provider, &QObject::deleteLater);
    m_trackingThread.setObjectName(QStringLiteral("UsageTracking")); // debuggers show it
    m_trackingThread.start(QThread::InheritPriority);
}

void CUsageTrackingPlugin::addWelcomeTab()
{
    m_welcomeService = Core::Plugin::findService<NerixWelcome::INerixWelcomeService>(m_initializer);
    if (m_welcomeService) {
        m_welcomeService->addTab(m_dataPrivacyTab.data());
    }
}

} // namespace Plugin::UsageTracking
