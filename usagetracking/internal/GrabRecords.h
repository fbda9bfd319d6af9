// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <unordered_map>

#include <QString>
#include <QtGlobal>

namespace Plugin::UsageTracking::Internal {

/// The figures that the viewer last showed in its status bar for a camera. All zero before the
/// first.
struct GrabStatistics
{
    qint64 imagesGrabbedCount = 0;
    qint64 imagesFailedCount = 0;
    double fps = 0.0;      ///< images per second
    std::uint64_t bps = 0; ///< bytes per second
};

/// How often grabbing failed with one error code since the last report.
struct GrabFailure
{
    qint64 count = 0;
    /// The masked description of the first failure; later ones do not replace it.
    QString text;
};

/// The failures of one camera by error code.
using GrabFailures = std::unordered_map<std::uint32_t, GrabFailure>;

} // namespace Plugin::UsageTracking::Internal
