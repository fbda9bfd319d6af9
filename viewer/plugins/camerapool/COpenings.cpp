// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "COpenings.h"

#include "CDevice.h"
#include "CDeviceReleaser.h"

#include <utility>

namespace CameraPool {
namespace {

COpenings::Result open(const CFoundCamera &found, const COpenings::CameraInfoPtr &camera,
                       std::function<void()> onLost, CDeviceReleaser &releaser,
                       std::chrono::milliseconds limit)
{
    COpenings::Result result;
    result.camera = camera;
    try {
        result.device = openDevice(found, camera, std::move(onLost), releaser, limit);
        result.device->setName(found.displayName());
    } catch (const COpenException &exception) {
        result.isInUse = exception.reason() == COpenException::InUse;
        result.failure = QString::fromUtf8(exception.what());
    }
    return result;
}

} // namespace

COpenings::COpenings(CPostBox postBox, std::shared_ptr<CDeviceReleaser> releaser,
                     std::chrono::milliseconds limit, Listeners listeners)
    : m_postBox(std::move(postBox))
    , m_releaser(std::move(releaser))
    , m_limit(limit)
    , m_listeners(std::move(listeners))
{}

// The releaser waits for the thread at the end, under another name than for the end of a
// connection.
void COpenings::begin(const CFoundCamera &found, const CameraInfoPtr &camera,
                      std::function<void()> onLost)
{
    m_wanted.insert(camera->identity(), camera);
    m_underWay.insert(camera->identity());
    m_releaser->await(
        QStringLiteral("the opening of ") + camera->identity(),
        [this, found, camera, onLost, postBox = m_postBox, releaser = m_releaser, limit = m_limit] {
            const Result result = open(found, camera, onLost, *releaser, limit);
            postBox.post([this, result] { end(result); });
        });
}

// A camera that was given up and asked for again meanwhile is not under way twice.
void COpenings::end(const Result &result)
{
    const QString identity = result.camera->identity();
    m_underWay.remove(identity);
    if (m_wanted.remove(identity) > 0) {
        m_listeners.onEnded(result);
    } else if (result.device) {
        m_releaser->await(identity, [device = result.device] { device->close(); });
    } else {
        m_listeners.onGivenBack(identity);
    }
}

} // namespace CameraPool
