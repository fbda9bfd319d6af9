// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <Core/CameraPoolComponents/ICameraInfo.h>

#include <QString>

namespace Plugin::UsageTracking::Internal {

/// The camera's name in every event: maker, blank, model name.
///
/// A model name may be a customer's own, and such names carry capitals: each run of three capital
/// ASCII letters becomes "***", from left to right, so "ABCDEFG7" becomes "******G7". A name that
/// contains one of the codes of the public series (KUV, TOG, ZAW, YEL) anywhere is kept whole. The
/// maker's name is never masked.
///
/// `ptrCameraInfo` must not be null. Pure apart from asking the camera for its two texts; may be
/// called in any thread in which the camera's description may be read.
QString modelLabel(const Core::CameraPoolComponents::CameraInfoPtr &ptrCameraInfo);

} // namespace Plugin::UsageTracking::Internal
