// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// How the pool's worker opens cameras.
#include "CCameraControl.h"
#include "CCameraStatus.h"
#include "CDeviceStore.h"
#include "CPoolWorker.h"
#include "Logging.h"

namespace CameraPool {
namespace {

// How long an opening waits for the end of the camera's last connection.
constexpr std::chrono::milliseconds ReleasePatience(400);

} // namespace

void CPoolWorker::open(const CameraInfoPtr &camera)
{
    if (!camera) {
        return fail(camera, QStringLiteral("no camera is chosen: choose one, then open it"));
    }
    const QString identity = camera->identity();
    if (m_open.contains(identity) || m_openings.isWanted(identity)) {
        return;
    }
    const CFoundCamera *found = m_table.find(identity);
    if (m_isEnding) {
        fail(camera, QStringLiteral("%1 is not opened: the viewer is closing; start it again")
                         .arg(m_table.nameOf(camera)));
    } else if (!found) {
        fail(camera, QStringLiteral("%1 is not connected: check its cable and power, then open it")
                         .arg(m_table.nameOf(camera)));
    } else if (m_releaser->isReleasing(identity) || m_openings.isUnderWay(identity)) {
        waitForRelease(camera);
    } else {
        beginOpening(*found, camera);
    }
}

void CPoolWorker::waitForRelease(const CameraInfoPtr &camera)
{
    const QString identity = camera->identity();
    const quint64 request = ++m_lastSession;
    m_waiting.insert(identity, {camera, request});
    QTimer::singleShot(ReleasePatience, this, [this, identity, request] {
        if (m_waiting.value(identity).second == request) {
            failWaiting(identity, QStringLiteral("is still being closed, since it has not answered "
                                                 "for a while: open it again in some seconds"));
        }
    });
}

void CPoolWorker::failWaiting(const QString &identity, const QString &reason)
{
    if (const CameraInfoPtr camera = m_waiting.take(identity).first) {
        fail(camera, QStringLiteral("%1 %2").arg(m_table.nameOf(camera), reason));
    }
}

void CPoolWorker::beginOpening(const CFoundCamera &found, const CameraInfoPtr &camera)
{
    const QString identity = camera->identity();
    const quint64 session = ++m_lastSession;
    m_sessions.insert(identity, session);
    m_usedMeanwhile.insert(identity);
    m_openings.begin(found, camera, [this, postBox = m_postBox, identity, session] {
        postBox.post([=] { onDeviceLost(identity, session); });
    });
}

void CPoolWorker::onOpeningEnded(const COpenings::Result &result)
{
    const QString identity = result.camera->identity();
    m_usedMeanwhile.insert(identity);
    if (result.device) {
        result.device->setName(m_table.nameOf(result.camera));
        m_open.insert(identity, result.device);
        m_outlets.devices->put(result.device);
        const CameraInfoPtr news = m_outlets.control->noteOpening(result.camera);
        publish();
        qCInfo(lcCameraPool, "%s is open", qUtf8Printable(identity));
        Q_EMIT m_outlets.status->deviceOpened(news);
    } else {
        m_table.setControlled(identity, result.isInUse);
        publish();
        fail(result.camera, result.failure);
    }
    for (const auto &request : m_afterOpening.take(identity)) {
        request();
    }
}

bool CPoolWorker::isOpening(const CameraInfoPtr &camera) const
{
    return camera && m_openings.isWanted(camera->identity());
}

void CPoolWorker::giveUpOpening(const CameraInfoPtr &camera, const QString &reason)
{
    if (isOpening(camera)) {
        m_openings.giveUp(camera->identity());
        m_afterOpening.remove(camera->identity());
        fail(camera, QStringLiteral("%1 %2").arg(m_table.nameOf(camera), reason));
    }
}

// A camera that is being opened may be as slow to answer a search as one that is open.
QSet<QString> CPoolWorker::identitiesInUse() const
{
    const QList<QString> open = m_open.keys();
    QSet<QString> identities(open.begin(), open.end());
    for (const CameraInfoPtr &camera : m_openings.cameras()) {
        identities.insert(camera->identity());
    }
    return identities;
}

void CPoolWorker::fail(const CameraInfoPtr &camera, const QString &message)
{
    qCWarning(lcCameraPool, "%s", qUtf8Printable(message));
    Q_EMIT m_outlets.control->openFailed(camera, message);
}

void CPoolWorker::onDeviceReleased(const QString &identity)
{
    if (const CameraInfoPtr camera = m_waiting.take(identity).first) {
        open(camera);
    }
}

} // namespace CameraPool
