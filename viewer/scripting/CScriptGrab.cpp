// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "scripting/CScriptGrab.h"

#include <CameraPool/ICameraStatusService.h>

namespace Scripting {

using CameraPool::ICameraControlService;
using CameraPool::ICameraStatusService;

namespace {

QString doesNotGrab(const CameraInfoPtr &camera)
{
    return QStringLiteral("camera \"%1\" does not grab: call grab.start first")
        .arg(camera->identity());
}

} // namespace

CScriptGrab::CScriptGrab(const Core::Plugin::IPluginInitializer &services, CScriptWait &wait,
                         QObject *parent)
    : CScriptCameraObject(services, wait, parent)
{
    if (const auto status = Core::Plugin::findService<ICameraStatusService>(&services)) {
        listenTo(*status);
    }
    if (const auto pool = Core::Plugin::findService<ICameraControlService>(&services)) {
        listenTo(*pool);
    }
}

CScriptGrab::~CScriptGrab() = default;

void CScriptGrab::single(const QJSValue &camera, int ms)
{
    request(&ICameraControlService::grabSingle, &Grab::stops, camera, ms,
            QStringLiteral("has not grabbed its image"));
}

void CScriptGrab::start(const QJSValue &camera, int ms)
{
    request(&ICameraControlService::grabContinuous, &Grab::starts, camera, ms,
            QStringLiteral("has not begun to grab"));
}

void CScriptGrab::stop(const QJSValue &camera, int ms)
{
    const CameraInfoPtr found = find(camera);
    if (!found) {
        return;
    }
    if (!grabOf(found).isGrabbing()) {
        fail(doesNotGrab(found));
        return;
    }
    request(&ICameraControlService::stopGrab, &Grab::stops, camera, ms,
            QStringLiteral("has not stopped its grab"));
}

void CScriptGrab::waitFor(const QJSValue &camera, int images, int ms)
{
    const CameraInfoPtr found = find(camera);
    if (!found) {
        return;
    }
    const Grab &grab = grabOf(found);
    const auto haveArrived = [&] { return grab.images + grab.failures >= images; };
    const bool isInTime = waitUntil([&] { return haveArrived() || !grab.isGrabbing(); }, ms,
                                    QStringLiteral("camera \"%1\" has not grabbed %2 images")
                                        .arg(found->identity(), QString::number(images)));
    if (isInTime && !haveArrived()) {
        fail(doesNotGrab(found));
    }
}

QVariantMap CScriptGrab::figures(const QJSValue &camera)
{
    const CameraInfoPtr found = find(camera, camerasThatGrabbed());
    if (!found) {
        return {};
    }
    const Grab &grab = grabOf(found);
    return {
        {QStringLiteral("isGrabbing"), grab.isGrabbing()},
        {QStringLiteral("images"), grab.images},
        {QStringLiteral("failures"), grab.failures},
        {QStringLiteral("lastFailure"), grab.lastFailure},
        {QStringLiteral("imagesGrabbedCount"), grab.imagesGrabbedCount},
        {QStringLiteral("imagesFailedCount"), grab.imagesFailedCount},
        {QStringLiteral("fps"), grab.fps},
        {QStringLiteral("bps"), grab.bps},
    };
}

void CScriptGrab::listenTo(const ICameraStatusService &status)
{
    connect(&status, &ICameraStatusService::cameraGrabStarted, this,
            [this](const CameraInfoPtr &camera) {
                Grab &grab = grabOf(camera);
                grab.images = 0;
                grab.failures = 0;
                ++grab.starts;
            });
    connect(&status, &ICameraStatusService::cameraGrabStopped, this,
            [this](const CameraInfoPtr &camera) { ++grabOf(camera).stops; });
    connect(&status, &ICameraStatusService::cameraImageGrabbed, this,
            [this](const CameraInfoPtr &camera, const Nerix::CGrabResultPtr &result) {
                noteImage(grabOf(camera), *result);
            });
    connect(&status, &ICameraStatusService::cameraStatisticUpdated, this,
            [this](const CameraInfoPtr &camera, int grabbed, int failed, double fps, quint64 bps) {
                Grab &grab = grabOf(camera);
                grab.imagesGrabbedCount = grabbed;
                grab.imagesFailedCount = failed;
                grab.fps = fps;
                grab.bps = static_cast<double>(bps);
            });
}

void CScriptGrab::listenTo(const ICameraControlService &pool)
{
    connect(&pool, &ICameraControlService::grabFailed, this,
            [this](const CameraInfoPtr &camera, const QString &message) {
                grabOf(camera).refusal = message;
            });
}

CScriptGrab::Grab &CScriptGrab::grabOf(const CameraInfoPtr &camera)
{
    Grab &grab = m_grabs[camera->identity()];
    grab.camera = camera;
    return grab;
}

QList<CameraInfoPtr> CScriptGrab::camerasThatGrabbed() const
{
    QList<CameraInfoPtr> cameras;
    for (const Grab &grab : m_grabs) {
        cameras.append(grab.camera);
    }
    return cameras;
}

void CScriptGrab::noteImage(Grab &grab, const Nerix::CGrabResultData &result)
{
    if (result.GrabSucceeded()) {
        ++grab.images;
    } else {
        ++grab.failures;
        grab.lastFailure = QString::fromUtf8(result.GetErrorDescription().c_str());
    }
}

void CScriptGrab::request(Request operation, int Grab::*count, const QJSValue &camera, int ms,
                          const QString &what)
{
    const auto pool = control();
    const CameraInfoPtr found = pool ? find(camera) : nullptr;
    if (!found) {
        return;
    }
    Grab &grab = grabOf(found);
    grab.refusal.clear();
    const int before = grab.*count;
    (pool.data()->*operation)(found);
    waitUntil([&] { return grab.*count > before || !grab.refusal.isEmpty(); }, ms,
              QStringLiteral("camera \"%1\" %2").arg(found->identity(), what));
    if (!grab.refusal.isEmpty()) {
        fail(grab.refusal);
    }
}

} // namespace Scripting
