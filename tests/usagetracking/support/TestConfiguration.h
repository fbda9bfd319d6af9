// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <internal/AnalyticsConfiguration.h>

/// Points the plug-in at a product and a server that no build is configured for, so that what a
/// test expects does not depend on the build. Once: the threads of plug-ins that run already read
/// it.
inline void useTestAnalyticsConfiguration()
{
    static const bool isUsed = [] {
        Plugin::UsageTracking::Internal::productId = "1234567890";
        Plugin::UsageTracking::Internal::serverHost = "https://analytics.example";
        return true;
    }();
    Q_UNUSED(isUsed)
}
