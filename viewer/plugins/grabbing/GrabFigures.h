// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <QMetaType>
#include <QtGlobal>

namespace Grabbing {

/// What the status bar tells of a grab.
struct GrabFigures
{
    int imagesGrabbed = 0;        ///< since the grab began
    int imagesFailed = 0;         ///< since the grab began
    double imagesPerSecond = 0.0; ///< over the last second; of a grab that is over: over all of it
    quint64 bytesPerSecond = 0;   ///< likewise
    bool isRunning = false;       ///< whether the grab goes on
};

} // namespace Grabbing
