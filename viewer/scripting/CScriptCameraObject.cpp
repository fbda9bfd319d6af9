// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "scripting/CScriptCameraObject.h"

#include "scripting/CScriptWait.h"

#include <QJSValue>

namespace Scripting {

using CameraPool::ICameraControlService;

namespace {

// Several only if they have one display name.
QList<CameraInfoPtr> named(const QList<CameraInfoPtr> &cameras, const QString &name)
{
    QList<CameraInfoPtr> found;
    for (const CameraInfoPtr &camera : cameras) {
        if (camera->identity() == name) {
            return {camera};
        }
        if (camera->displayName() == name) {
            found.append(camera);
        }
    }
    return found;
}

QString ambiguity(const QString &name, const QList<CameraInfoPtr> &cameras)
{
    QStringList identities;
    for (const CameraInfoPtr &camera : cameras) {
        identities.append(camera->identity());
    }
    return QStringLiteral("%1 cameras have the name \"%2\": give the identity of one (%3)")
        .arg(QString::number(cameras.size()), name, identities.join(QStringLiteral(", ")));
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

CameraInfoPtr CScriptCameraObject::find(const QJSValue &camera,
                                        const QList<CameraInfoPtr> &others) const
{
    const auto pool = control();
    if (!pool) {
        return {};
    }
    const QString name = cameraName(camera);
    QList<CameraInfoPtr> found = named(pool->cameras(), name);
    if (found.isEmpty()) {
        found = named(others, name);
    }
    if (found.size() == 1) {
        return found.first();
    }
    fail(found.isEmpty()
             ? QStringLiteral("there is no camera \"%1\" (%2)").arg(name, namesOf(pool->cameras()))
             : ambiguity(name, found));
    return {};
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
