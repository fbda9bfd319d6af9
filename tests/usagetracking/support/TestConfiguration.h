// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <internal/AnalyticsConfiguration.h>

/// Points the plug-in at a product and a server that no build is configured for, so that what a
/// test expects does not depend on the build.
inline void useTestAnalyticsConfiguration()
{
    Plugin::UsageTracking::Internal::productId = "1234567890";
    Plugin::UsageTracking::Internal::serverHost = "https://analytics.example";
}
