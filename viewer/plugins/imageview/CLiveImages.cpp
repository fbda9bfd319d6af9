// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/imageview/CLiveImages.h"

#include "plugins/camerapool/DistinctName.h"
#include "plugins/camerapool/SameCamera.h"
#include "plugins/imageview/CLiveCamera.h"
#include "plugins/imageview/CMailbox.h"

#include <algorithm>

namespace ImageView {

using CameraPool::ICameraControlService;
using CameraPool::ICameraStatusService;
using CameraPool::IImageService;
using Core::CameraPoolComponents::CameraInfoPtr;
using Core::CameraPoolComponents::DeviceBaseInfoPtr;
using Core::CameraPoolComponents::ICameraInfo;

namespace {

// Enough for several cameras, and leaves the others to the grabs.
constexpr int mostWorkers = 2;

} // namespace

CLiveImages::CLiveImages(const Services &services)
    : m_control(services.control)
    , m_mailbox(std::make_shared<CMailbox>([this](const QString &identity) {
        QMetaObject::invokeMethod(
            this, [this, identity] { onNews(identity); }, Qt::QueuedConnection);
    }))
{
    m_workers.setMaxThreadCount(mostWorkers);
    listen(services);
}

CLiveImages::~CLiveImages()
{
    m_mailbox->close();
    m_workers.clear();
    m_workers.waitForDone();
}

void CLiveImages::listen(const Services &services)
{
    const auto *status = services.status.data();
    connect(status, &ICameraStatusService::deviceOpened, this, &CLiveImages::add);
    connect(services.control.data(), &ICameraControlService::closed, this, &CLiveImages::remove);
    connect(status, &ICameraStatusService::deviceDisconnected, this, &CLiveImages::remove);
    connect(services.control.data(), &ICameraControlService::renamed, this,
            &CLiveImages::onRenamed);
    connect(status, &ICameraStatusService::deviceConnected, this, &CLiveImages::updateNames);
    connect(status, &ICameraStatusService::deviceDisconnected, this, &CLiveImages::updateNames);
    connect(status, &ICameraStatusService::cameraGrabStarted, this,
            [this](const CameraInfoPtr &info) {
                if (CLiveCamera *camera = find(info)) {
                    camera->onGrabStarted();
                }
            });
    connect(status, &ICameraStatusService::cameraGrabStopped, this,
            [this](const CameraInfoPtr &info) {
                if (CLiveCamera *camera = find(info)) {
                    camera->onGrabStopped();
                }
            });
    // Connected as long as there is the service, which is what it asks for.
    connect(
        services.images.data(), &IImageService::resultArrived, services.images.data(),
        [mailbox = m_mailbox](const CameraInfoPtr &info, const Nerix::CGrabResultPtr &result) {
            mailbox->put(info->identity(), result);
        },
        Qt::DirectConnection);
}

QList<CLiveCamera *> CLiveImages::cameras() const
{
    QList<CLiveCamera *> cameras;
    for (const auto &camera : m_cameras) {
        cameras.append(camera.get());
    }
    return cameras;
}

CLiveCamera *CLiveImages::find(const DeviceBaseInfoPtr &device) const
{
    const auto info = qSharedPointerDynamicCast<ICameraInfo>(device);
    return info ? find(info->identity()) : nullptr;
}

CLiveCamera *CLiveImages::find(const QString &identity) const
{
    const auto found =
        std::find_if(m_cameras.begin(), m_cameras.end(), [&identity](const auto &camera) {
            return camera->info()->identity() == identity;
        });
    return found == m_cameras.end() ? nullptr : found->get();
}

void CLiveImages::add(const DeviceBaseInfoPtr &device)
{
    const auto info = qSharedPointerDynamicCast<ICameraInfo>(device);
    if (!info || find(info->identity())) {
        return;
    }
    m_cameras.push_back(std::make_unique<CLiveCamera>(
        CameraPool::newestDescription(*m_control, info), m_mailbox, m_workers));
    CLiveCamera *camera = m_cameras.back().get();
    connect(camera, &CLiveCamera::imagesFailed, this,
            [this, camera](const QString &text, int count) {
                Q_EMIT imagesFailed(camera, text, count);
            });
    updateNames();
    Q_EMIT cameraAdded(camera);
}

void CLiveImages::remove(const DeviceBaseInfoPtr &device)
{
    const CLiveCamera *gone = find(device);
    const auto found = std::find_if(m_cameras.begin(), m_cameras.end(),
                                    [gone](const auto &camera) { return camera.get() == gone; });
    if (found == m_cameras.end()) {
        return;
    }
    const std::unique_ptr<CLiveCamera> camera = std::move(*found);
    m_cameras.erase(found);
    Q_EMIT cameraRemoved(camera.get());
}

void CLiveImages::onRenamed(const CameraInfoPtr &info)
{
    if (CLiveCamera *camera = find(info)) {
        camera->setInfo(info);
    }
    updateNames();
}

void CLiveImages::updateNames()
{
    for (const auto &camera : m_cameras) {
        camera->setName(CameraPool::distinctName(camera->info(), m_control->cameras()));
    }
}

void CLiveImages::onNews(const QString &identity)
{
    if (CLiveCamera *camera = find(identity)) {
        camera->onNews();
    } else {
        m_mailbox->take(identity); // of a camera that is closed by now
    }
}

} // namespace ImageView
