// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "CUsageTrackingPlugin.h"
#include "internal/CDataPrivacyTab.h"
#include "internal/CDataPrivacyTabController.h"
#include "internal/CUsageTrackingProvider.h"

namespace Plugin {
namespace UsageTracking {

/// Reads what the plug-in tells nobody.
struct UsageTrackingPluginProbe
{
    static bool trackingActive(const CUsageTrackingPlugin &plugin)
    {
        return plugin.m_trackingActive;
    }

    static QThread &trackingThread(CUsageTrackingPlugin &plugin)
    {
        return plugin.m_trackingThread;
    }

    static QObject *provider(const CUsageTrackingPlugin &plugin)
    {
        return plugin.m_provider;
    }

    static Internal::CDataPrivacyTab *tab(const CUsageTrackingPlugin &plugin)
    {
        return plugin.m_dataPrivacyTab;
    }

    static Internal::CDataPrivacyTabController *controller(const CUsageTrackingPlugin &plugin)
    {
        return plugin.controller();
    }
};

} // namespace UsageTracking
} // namespace Plugin
