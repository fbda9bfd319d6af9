// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

// Start and stop of tracking, and the session events.

#include "CUsageTrackingProvider.h"
#include "EventRecord.h"

namespace Plugin {
namespace UsageTracking {
namespace Internal {

namespace {

QJsonObject sessionRecord(const QString &name)
{
    return {
        {QStringLiteral("EventCategory"), QStringLiteral("GeneralEvent")},
        {QStringLiteral("EventName"), name},
    };
}

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
    trackRecord(m_sdkInstance, sessionRecord(QStringLiteral("SessionStarted")));
}

void CUsageTrackingProvider::stopTracking()
{
    if (!m_sdkInstance) {
        return;
    }
    QJsonObject record = sessionRecord(QStringLiteral("SessionEnded"));
    record.insert(QStringLiteral("FinalCameraCount"), m_cameraCount);
    record.insert(QStringLiteral("TotalUsedCameraCount"), m_cameraIdentities.size());
    trackRecord(m_sdkInstance, record);
    ruiStopSDK(m_sdkInstance, 0);
    discardInstance();
    unsubscribe();
    m_parameterHandlers.clear();
}

void CUsageTrackingProvider::onEnumerationChanged()
{
    // Once a session; the next start subscribes again.
    const bool first = disconnect(m_enumerationService.data(),
                                  &CameraPool::ICameraEnumerationService::enumerationChanged, this,
                                  &CUsageTrackingProvider::onEnumerationChanged);
    // Changes that were queued before the signal was disconnected still come here.
    const bool alreadySent = m_sdkInstance && !first;
    if (alreadySent) {
        return;
    }
    QJsonObject record = sessionRecord(QStringLiteral("InitialCameraCount"));
    record.insert(QStringLiteral("InitialCameraCount"), m_cameraCount);
    trackRecord(m_sdkInstance, record);
}

} // namespace Internal
} // namespace UsageTracking
} // namespace Plugin
