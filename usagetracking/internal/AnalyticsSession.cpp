// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

// The session with the analytics library: opening, closing, and the record of a withdrawal.

#include "AnalyticsConfiguration.h"
#include "CUsageTrackingProvider.h"

#include <QDir>
#include <QMessageLogger>
#include <QStandardPaths>

namespace Plugin::UsageTracking::Internal {

namespace {

constexpr int buildNumber = 11271;
constexpr int protocol = 3;

} // namespace

bool CUsageTrackingProvider::prepareSession()
{
    return configureSdk() == 0 && setProductData() == 0 && ruiStartSDK(m_sdkInstance) == 0;
}

void CUsageTrackingProvider::discardInstance()
{
    ruiDestroyInstance(m_sdkInstance);
    m_sdkInstance = nullptr;
}

int CUsageTrackingProvider::configureSdk()
{
    QString directory = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    directory.replace(QLatin1Char('/'), QDir::separator());
    QDir().mkpath(directory);
    return ruiCreateConfig(m_sdkInstance, directory.toUtf8().constData(), productId, "nerixViewer",
                           serverHost, protocol, "", 0, 0);
}

int CUsageTrackingProvider::setProductData()
{
    const QString build = QStringLiteral("%1").arg(buildNumber);
    return ruiSetProductData(m_sdkInstance, "Standard", "US English", "7.1.0",
                             build.toUtf8().constData());
}

void CUsageTrackingProvider::stopTrackingAndOptOut()
{
    if (!m_sdkInstance) {
        return;
    }
    stopTracking();
    m_sdkInstance = ruiCreateInstance(0);
    // A handle that could not be configured is kept: the next start replaces it.
    if (!m_sdkInstance || configureSdk() != 0) {
        return;
    }
    if (setProductData() == 0) {
        recordOptOut();
    }
    discardInstance();
}

// The withdrawal is recorded before the library is started, and started and stopped once so that it
// can deliver it.
void CUsageTrackingProvider::recordOptOut()
{
    if (const int code = ruiOptOut(m_sdkInstance)) {
        logWarning(QStringLiteral("ruiOptOut failed with code %1").arg(code));
    }
    if (const int code = ruiStartSDK(m_sdkInstance)) {
        logWarning(
            QStringLiteral("ruiOptOut succeeding ruiStartSDK failed with code %1").arg(code));
    }
    ruiStopSDK(m_sdkInstance, 0);
}

void CUsageTrackingProvider::logWarning(const QString &text) const
{
    QMessageLogger().warning().noquote() << text;
}

} // namespace Plugin::UsageTracking::Internal
