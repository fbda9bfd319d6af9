// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "scripting/CScriptCameraObject.h"

#include "scripting/CScriptWait.h"

#include <QJSValue>

namespace Scripting {

using CameraPool::ICameraControlService;

namespace {

CameraInfoPtr named(const QList<CameraInfoPtr> &cameras, const QString &name)
{
    for (const CameraInfoPtr &camera : cameras) {
        if (camera->identity() == name) {
            return camera;
        }
    }
    for (const CameraInfoPtr &camera : cameras) {
        if (camera->displayName() == name) {
            return camera;
        }
    }
    return {};
}

} // namespace

CScriptCameraObject::CScriptCameraObject(const Core::Plugin::IPluginInitializer &services,
                                         CScriptWait &wait, QObject *parent)
    : CScriptObject(services, parent)
    , m_wait(wait)
{}

QSharedPointer<ICameraControlService> CScriptCameraObject::control() const
{
    return service<ICameraControlService>("CameraPool");
}

CameraInfoPtr CScriptCameraObject::find(const QJSValue &camera) const
{
    const auto pool = control();
    if (!pool) {
        return {};
    }
    const QString name = cameraName(camera);
    const CameraInfoPtr found = named(pool->cameras(), name);
    if (!found) {
        fail(QStringLiteral("there is no camera \"%1\" (%2)").arg(name, namesOf(pool->cameras())));
    }
    return found;
}

// A wait that was stopped needs no exception: the script is being ended.
bool CScriptCameraObject::waitUntil(const std::function<bool()> &condition, int ms,
                                    const QString &what) const
{
    const auto result = m_wait.until(condition, std::chrono::milliseconds(ms));
    if (result == CScriptWait::Result::TimedOut) {
        const auto pool = control();
        fail(QStringLiteral("%1 after %2 ms (%3)")
                 .arg(what, QString::number(ms), namesOf(pool->cameras())));
    }
    return result == CScriptWait::Result::Met;
}

} // namespace Scripting
