// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

// The user's answer: from the settings into the consent page, and from there into requests to the
// tracking provider and back into the settings.

#include "CUsageTrackingPlugin.h"
#include "internal/CDataPrivacyTab.h"
#include "internal/CDataPrivacyTabController.h"
#include "internal/CUsageTrackingProvider.h"

#include <QSettings>
#include <QTimer>

namespace Plugin::UsageTracking {

using Internal::CDataPrivacyTabController;
using Internal::CUsageTrackingProvider;

namespace {

const QString settingsGroup = QStringLiteral("UsageTracking");
const QString optInEnabledKey = QStringLiteral("OptInEnabled");
const QString optInSelectedKey = QStringLiteral("OptInSelected");

/// Time that the viewer gets to settle before the provider acts.
constexpr int requestDelayMs = 100;

} // namespace

CDataPrivacyTabController *CUsageTrackingPlugin::controller() const
{
    return m_dataPrivacyTab ? m_dataPrivacyTab->dataPrivacyController() : nullptr;
}

void CUsageTrackingPlugin::loadConsent()
{
    CDataPrivacyTabController *consent = controller();
    if (!consent) {
        return;
    }
    QSettings settings(nullptr);
    settings.beginGroup(settingsGroup);
    consent->setDataPrivacyOptInEnabled(settings.value(optInEnabledKey, QVariant(false)).toBool(),
                                        false);
    consent->setDataPrivacyOptInSelected(
        settings.value(optInSelectedKey, QVariant(false)).toBool());
    settings.endGroup();
    connect(consent, &CDataPrivacyTabController::dataPrivacyApplyClicked, this,
            &CUsageTrackingPlugin::onDataPrivacyApplyClicked);
}

void CUsageTrackingPlugin::saveConsent() const
{
    const CDataPrivacyTabController *consent = controller();
    if (!consent) {
        return;
    }
    QSettings settings(nullptr);
    settings.beginGroup(settingsGroup);
    settings.setValue(optInEnabledKey, consent->appliedOptInEnabled());
    settings.setValue(optInSelectedKey, consent->dataPrivacyOptInSelected());
    settings.endGroup();
}

void CUsageTrackingPlugin::onInitializationDone()
{
    const CDataPrivacyTabController *consent = controller();
    requestTracking(consent && consent->dataPrivacyOptInSelected()
                    && consent->appliedOptInEnabled());
}

void CUsageTrackingPlugin::onDataPrivacyApplyClicked()
{
    const CDataPrivacyTabController *consent = controller();
    if (!consent || !consent->dataPrivacyOptInSelected()) {
        return;
    }
    const bool active = consent->appliedOptInEnabled();
    if (active != m_trackingActive) {
        requestTracking(active);
    }
}

void CUsageTrackingPlugin::requestTracking(bool active)
{
    if (!m_provider) {
        return; // uninitialised already
    }
    QTimer::singleShot(requestDelayMs, m_provider,
                       active ? &CUsageTrackingProvider::startTracking
                              : &CUsageTrackingProvider::stopTrackingAndOptOut);
    m_trackingActive = active;
}

} // namespace Plugin::UsageTracking
