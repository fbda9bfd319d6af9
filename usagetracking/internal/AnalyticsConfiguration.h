// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

namespace Plugin::UsageTracking::Internal {

/// The ten decimal digits under which the analytics service knows this product, UTF-8. Set when the
/// plug-in is built (CMake: NERIX_ANALYTICS_PRODUCT_ID); may be pointed at another text that lives
/// as long as the plug-in, before tracking starts.
extern const char *productId;

/// Host name of the analytics service, UTF-8; empty keeps every event on this machine. Set when the
/// plug-in is built (CMake: NERIX_ANALYTICS_SERVER_HOST), otherwise as `productId`.
extern const char *serverHost;

} // namespace Plugin::UsageTracking::Internal
