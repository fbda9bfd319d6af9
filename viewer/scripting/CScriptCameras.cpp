// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "scripting/CScriptCameras.h"

#include "plugins/cameraselector/IDeviceSelectionService.h"
#include "scripting/CCameraJournal.h"

#include <CameraPool/ICameraStatusService.h>

#include <algorithm>

namespace Scripting {

using CameraPool::ICameraControlService;

namespace {

CameraInfoPtr firstMatch(const QList<CameraInfoPtr> &cameras, const QString &pattern)
{
    const auto found = std::find_if(cameras.begin(), cameras.end(), [&pattern](const auto &camera) {
        return matches(camera, pattern);
    });
    return found == cameras.end() ? CameraInfoPtr() : *found;
}

bool isOpen(const ICameraControlService &control, const CameraInfoPtr &camera)
{
    const auto state = control.state(camera);
    return state == ICameraControlService::Open || state == ICameraControlService::Grabbing;
}

} // namespace

CScriptCameras::CScriptCameras(const Core::Plugin::IPluginInitializer &services, CScriptWait &wait,
                               QObject *parent)
    : CScriptCameraObject(services, wait, parent)
    , m_journal(new CCameraJournal(this))
{
    if (const auto status =
            Core::Plugin::findService<CameraPool::ICameraStatusService>(&services)) {
        m_journal->listenTo(*status);
    }
}

CScriptCameras::~CScriptCameras() = default;

QVariantList CScriptCameras::list()
{
    QVariantList descriptions;
    if (const auto pool = control()) {
        const auto cameras = pool->cameras();
        for (const CameraInfoPtr &camera : cameras) {
            descriptions.append(describeCamera(camera, *pool));
        }
    }
    return descriptions;
}

QVariant CScriptCameras::waitFor(const QJSValue &numberOrPattern, int ms)
{
    return numberOrPattern.isNumber() ? waitForCount(numberOrPattern.toInt(), ms)
                                      : waitForMatch(numberOrPattern.toString(), ms);
}

void CScriptCameras::waitForGone(const QString &pattern, int ms)
{
    if (const auto pool = control()) {
        waitUntil([&] { return !firstMatch(pool->cameras(), pattern); }, ms,
                  QStringLiteral("camera \"%1\" is still there").arg(pattern));
    }
}

QVariant CScriptCameras::open(const QJSValue &camera, int ms)
{
    const auto pool = control();
    const CameraInfoPtr found = pool ? find(camera) : nullptr;
    if (!found) {
        return {};
    }
    QString failure;
    const QObject context;
    connect(pool.data(), &ICameraControlService::openFailed, &context,
            [&](const CameraInfoPtr &failed, const QString &message) {
                if (failed->identity() == found->identity()) {
                    failure = message;
                }
            });
    pool->open(found);
    const bool isDone =
        waitUntil([&] { return !failure.isEmpty() || isOpen(*pool, found); }, ms,
                  QStringLiteral("camera \"%1\" is not open").arg(found->identity()));
    if (!failure.isEmpty()) {
        fail(failure);
        return {};
    }
    // Else what the script does next could be missed by a plug-in that watches an open camera.
    if (isDone) {
        waitUntil([&] { return pool->isOpeningHandled(found) || !isOpen(*pool, found); }, ms,
                  QStringLiteral("camera \"%1\" is open, but a plug-in is not done with the news "
                                 "of it")
                      .arg(found->identity()));
    }
    return describeCamera(found, *pool);
}

void CScriptCameras::close(const QJSValue &camera, int ms)
{
    const auto pool = control();
    const CameraInfoPtr found = pool ? find(camera) : nullptr;
    if (!found) {
        return;
    }
    bool isClosed = false;
    const QObject context;
    connect(pool.data(), &ICameraControlService::closed, &context,
            [&](const CameraInfoPtr &closed) {
                isClosed = isClosed || closed->identity() == found->identity();
            });
    pool->close(found);
    waitUntil([&] { return isClosed; }, ms,
              QStringLiteral("camera \"%1\" is not closed").arg(found->identity()));
}

void CScriptCameras::select(const QJSValue &cameraOrNull)
{
    const auto selection = service<CameraSelector::IDeviceSelectionService>("CameraSelector");
    if (!selection) {
        return;
    }
    if (cameraOrNull.isNull()) {
        selection->select({});
    } else if (const CameraInfoPtr found = find(cameraOrNull)) {
        selection->select(found);
    }
}

QVariant CScriptCameras::selected()
{
    using Core::CameraPoolComponents::ICameraInfo;
    const auto selection = service<CameraSelector::IDeviceSelectionService>("CameraSelector");
    const auto pool = selection ? control() : nullptr;
    if (!pool) {
        return {};
    }
    const auto camera = qSharedPointerDynamicCast<ICameraInfo>(selection->selected());
    return camera ? describeCamera(camera, *pool) : QVariant::fromValue(nullptr);
}

QVariantList CScriptCameras::takeEvents()
{
    return m_journal->take();
}

QVariant CScriptCameras::waitForCount(int count, int ms)
{
    if (const auto pool = control()) {
        waitUntil([&] { return pool->cameras().size() >= count; }, ms,
                  QStringLiteral("there are not %1 cameras").arg(count));
        return list();
    }
    return {};
}

QVariant CScriptCameras::waitForMatch(const QString &pattern, int ms)
{
    const auto pool = control();
    if (!pool) {
        return {};
    }
    CameraInfoPtr camera;
    waitUntil([&] { return (camera = firstMatch(pool->cameras(), pattern)) != nullptr; }, ms,
              QStringLiteral("there is no camera \"%1\"").arg(pattern));
    return camera ? describeCamera(camera, *pool) : QVariant();
}

} // namespace Scripting
