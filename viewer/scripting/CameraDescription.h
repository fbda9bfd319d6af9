// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "plugins/camerapool/ICameraControlService.h"

#include <QString>
#include <QVariantMap>

class QJSValue;

namespace Scripting {

using Core::CameraPoolComponents::CameraInfoPtr;

/// What a script reads of \a camera, never null: "identity", "displayName", "model", "vendor".
QVariantMap describeCamera(const CameraInfoPtr &camera);

/// The same with the "state": "gone", "free", "in use elsewhere", "open" or "grabbing".
QVariantMap describeCamera(const CameraInfoPtr &camera,
                           const CameraPool::ICameraControlService &control);

/// The cameras that a user can name now, as the end of an error message.
QString namesOf(const QList<CameraInfoPtr> &cameras);

/// Whether \a pattern, in which * and ? stand for anything, is the identity, the display name or
/// the model of \a camera.
bool matches(const CameraInfoPtr &camera, const QString &pattern);

/// The name by which a script means a camera: a text, or an object with an "identity".
QString cameraName(const QJSValue &value);

} // namespace Scripting
