// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

// Start and stop of tracking, and the session events.

#include "CUsageTrackingProvider.h"
#include "EventRecord.h"

namespace Plugin::UsageTracking::Internal {

namespace {

const QString generalEvent = QStringLiteral("GeneralEvent");

} // namespace

void CUsageTrackingProvider::startTracking()
{
    m_sdkInstance = ruiCreateInstance(0);
    if (m_sdkInstance) {
        if (!prepareSession()) {
            discardInstance();
            return;
        }
        subscribe();
    }
    // Sent without an instance too: the library answers that with a code.
    trackEvent(m_sdkInstance, generalEvent, QStringLiteral("SessionStarted"));
}

void CUsageTrackingProvider::stopTracking()
{
    if (!m_sdkInstance) {
        return;
    }
    trackEvent(m_sdkInstance, generalEvent, QStringLiteral("SessionEnded"),
               {{QStringLiteral("FinalCameraCount"), m_cameraCount},
                {QStringLiteral("TotalUsedCameraCount"), m_cameraIdentities.size()}});
    ruiStopSDK(m_sdkInstance, 0);
    discardInstance();
    unsubscribe();
    m_parameterHandlers.clear();
}

void CUsageTrackingProvider::onEnumerationChanged()
{
    // Once a session; the next start subscribes again.
    const bool first = m_enumerationService
                       && disconnect(m_enumerationService.data(),
                                     &CameraPool::ICameraEnumerationService::enumerationChanged,
                                     this, &CUsageTrackingProvider::onEnumerationChanged);
    // Changes that were queued before the signal was disconnected still come here.
    const bool alreadySent = m_sdkInstance && !first;
    if (alreadySent) {
        return;
    }
    trackEvent(m_sdkInstance, generalEvent, QStringLiteral("InitialCameraCount"),
               {{QStringLiteral("InitialCameraCount"), m_cameraCount}});
}

} // namespace Plugin::UsageTracking::Internal
