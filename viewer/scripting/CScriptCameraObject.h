// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "scripting/CameraDescription.h"
#include "scripting/CScriptObject.h"

#include <functional>

class QJSValue;

namespace Scripting {

class CScriptWait;

/// Base of the objects whose operations take a camera. A camera is meant by its identity, its
/// display name, or an object that `cameras.list` gave. GUI thread.
class CScriptCameraObject : public CScriptObject
{
    Q_OBJECT

public:
    /// \a services and \a wait must outlive the object.
    CScriptCameraObject(const Core::Plugin::IPluginInitializer &services, CScriptWait &wait,
                        QObject *parent);

protected:
    /// Null, and an exception in the script, if the camera pool is not there.
    QSharedPointer<CameraPool::ICameraControlService> control() const;

    /// The connected camera that is meant, else the one among \a others. Null, and an exception in
    /// the script, if there is none, or several of one display name.
    CameraInfoPtr find(const QJSValue &camera, const QList<CameraInfoPtr> &others = {}) const;

    /// Waits for \a condition. @return whether it is met; if it is not in time, an exception in the
    /// script says \a what.
    bool waitUntil(const std::function<bool()> &condition, int ms, const QString &what) const;

private:
    CScriptWait &m_wait;
};

} // namespace Scripting
