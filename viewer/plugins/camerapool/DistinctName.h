// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <Core/CameraPoolComponents/ICameraInfo.h>

#include <QList>
#include <QString>
#include <QStringList>

namespace CameraPool {

/// The display name of \a camera, with its serial number if more than one of \a all has this name:
/// "Line3", or "Line3 (127000000001)". \a camera is not null.
QString distinctName(const Core::CameraPoolComponents::CameraInfoPtr &camera,
                     const QList<Core::CameraPoolComponents::CameraInfoPtr> &all);

/// The same for each of \a all, in their order, in time that grows with their number alone.
QStringList distinctNames(const QList<Core::CameraPoolComponents::CameraInfoPtr> &all);

} // namespace CameraPool
