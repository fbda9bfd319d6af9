// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "AnalyticsConfiguration.h"

namespace Plugin::UsageTracking::Internal {

const char *productId = NERIX_ANALYTICS_PRODUCT_ID;
const char *serverHost = NERIX_ANALYTICS_SERVER_HOST;

} // namespace Plugin::UsageTracking::Internal
