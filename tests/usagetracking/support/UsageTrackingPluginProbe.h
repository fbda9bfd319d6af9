// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "CUsageTrackingPlugin.h"
#include "internal/CDataPrivacyTab.h"
#include "internal/CDataPrivacyTabController.h"
#include "internal/CUsageTrackingProvider.h"

namespace Plugin::UsageTracking {

/// Reads of a plug-in what is there for its subclasses only.
struct UsageTrackingPluginProbe : CUsageTrackingPlugin
{
    static bool trackingActive(const CUsageTrackingPlugin &plugin)
    {
        return plugin.*&UsageTrackingPluginProbe::m_trackingActive;
    }

    static QThread &trackingThread(CUsageTrackingPlugin &plugin)
    {
        return plugin.*&UsageTrackingPluginProbe::m_trackingThread;
    }

    static QObject *provider(const CUsageTrackingPlugin &plugin)
    {
        return plugin.*&UsageTrackingPluginProbe::m_provider;
    }

    static Internal::CDataPrivacyTab *tab(const CUsageTrackingPlugin &plugin)
    {
        return plugin.*&UsageTrackingPluginProbe::m_dataPrivacyTab;
    }

    static Internal::CDataPrivacyTabController *controller(const CUsageTrackingPlugin &plugin)
    {
        const Internal::CDataPrivacyTab *page = tab(plugin);
        return page ? page->dataPrivacyController() : nullptr;
    }
};

} // namespace Plugin::UsageTracking
