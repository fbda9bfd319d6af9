// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "CPoolWorker.h"

#include "CCameraControl.h"
#include "CCameraStatus.h"
#include "CDeviceStore.h"
#include "Logging.h"

#include <algorithm>
#include <utility>

namespace CameraPool {
CPoolWorker::CPoolWorker(const Outlets &outlets, std::unique_ptr<ICameraSearch> search,
                         const CPoolTiming &timing)
    : m_outlets(outlets)
    , m_timing(timing)
    , m_postBox(this)
    , m_search(
          std::move(search),
          [this](const QVector<CFoundCamera> &found) { m_postBox.post([=] { onFound(found); }); })
    , m_searchTimer(this) // a child, so that it moves to the pool's thread too
    , m_releaser(
          std::make_shared<CDeviceReleaser>([this, postBox = m_postBox](const QString &identity) {
              postBox.post([=] { onDeviceReleased(identity); });
          }))
    , m_openings(m_postBox, m_releaser, std::chrono::milliseconds(timing.openingLimit),
                 {[this](const COpenings::Result &result) { onOpeningEnded(result); },
                  [this](const QString &identity) { onDeviceReleased(identity); }})
{
    m_searchTimer.setSingleShot(true);
    connect(&m_searchTimer, &QTimer::timeout, this, &CPoolWorker::searchOnce);
}

CPoolWorker::~CPoolWorker()
{
    m_postBox.close();
    m_releaser->finish();
}

void CPoolWorker::beginSearching()
{
    if (!m_isEnding) {
        m_searchTimer.start(m_timing.firstSearchDelay);
    }
}

void CPoolWorker::searchOnce()
{
    if (m_isSearching) {
        return;
    }
    m_isSearching = true;
    m_lostMeanwhile.clear();
    m_usedMeanwhile.clear();
    m_search.begin();
}

void CPoolWorker::onFound(QVector<CFoundCamera> found)
{
    m_isSearching = false;
    if (m_isEnding) {
        return;
    }
    dropOutdated(&found);
    const auto changes = m_table.update(found, identitiesInUse());
    publish();
    report(changes);
    reportEnumeration();
    m_searchTimer.start(m_timing.searchPause);
}

// A camera may have answered before it was lost, and have told who controlled it before it was
// opened or closed. A camera that was lost and is back is there once its lost connection is given
// back, which takes some seconds: whoever sees it can open it.
void CPoolWorker::dropOutdated(QVector<CFoundCamera> *found) const
{
    const auto isOutdated = [this](const CFoundCamera &camera) {
        const QString identity = camera.identity();
        return m_lostMeanwhile.contains(identity)
               || (!m_table.find(identity) && m_releaser->isReleasing(identity));
    };
    found->erase(std::remove_if(found->begin(), found->end(), isOutdated), found->end());
    for (CFoundCamera &camera : *found) {
        if (m_usedMeanwhile.contains(camera.identity())) {
            camera.isControlKnown = false;
        }
    }
}

void CPoolWorker::report(const CCameraTable::Changes &changes)
{
    for (const CameraInfoPtr &camera : changes.renamed) {
        if (const auto device = m_open.value(camera->identity())) {
            device->setName(camera->displayName());
        }
        Q_EMIT m_outlets.control->renamed(camera);
    }
    for (const CameraInfoPtr &camera : changes.gone) {
        qCInfo(lcCameraPool, "%s is gone", qUtf8Printable(camera->identity()));
        Q_EMIT m_outlets.status->deviceDisconnected(camera);
        failWaiting(camera->identity(),
                    QStringLiteral("is not connected: check its cable and power, then open it"));
    }
    for (const CameraInfoPtr &camera : changes.connected) {
        qCInfo(lcCameraPool, "%s is there", qUtf8Printable(camera->identity()));
        Q_EMIT m_outlets.status->deviceConnected(camera);
    }
    for (const CameraInfoPtr &camera : changes.lost) {
        if (const auto device = m_open.value(camera->identity())) {
            device->markLost(); // onDeviceLost follows
        }
    }
    for (const QString &conflict : changes.conflicts) {
        qCWarning(lcCameraPool, "%s", qUtf8Printable(conflict));
    }
}

void CPoolWorker::reportEnumeration()
{
    QSet<QString> identities;
    for (const CameraInfoPtr &camera : m_table.cameras()) {
        identities.insert(camera->identity());
    }
    if (m_hasReported && identities == m_reported) {
        return;
    }
    m_hasReported = true;
    m_reported = identities;
    Q_EMIT m_outlets.enumeration->enumerationChanged();
}

void CPoolWorker::close(const CameraInfoPtr &camera)
{
    if (camera) {
        m_waiting.remove(camera->identity());
        giveUpOpening(camera, QStringLiteral("was closed before it was open: open it again"));
        shut(camera->identity());
        Q_EMIT m_outlets.control->closed(camera);
    }
}

void CPoolWorker::startGrab(const CameraInfoPtr &camera, GrabMode mode)
{
    if (isOpening(camera)) {
        m_afterOpening[camera->identity()].append([=] { startGrab(camera, mode); });
        return;
    }
    const auto device = camera ? m_open.value(camera->identity()) : nullptr;
    if (!device) {
        const QString name = camera ? m_table.nameOf(camera) : QStringLiteral("no camera");
        return failGrab(camera, QStringLiteral("%1 is not open: open it, then grab").arg(name));
    }
    const QString identity = camera->identity();
    if (m_grabs.contains(identity) && !m_grabs.value(identity)->hasEnded()) {
        return failGrab(camera, QStringLiteral("%1 is grabbing: stop that grab, then start another")
                                    .arg(m_table.nameOf(camera)));
    }
    m_grabs.remove(identity); // waits until the earlier one has told its end
    CGrab::Listeners listeners;
    listeners.status = m_outlets.status;
    listeners.images = m_outlets.images;
    listeners.onStopping = [control = m_outlets.control, identity] {
        control->noteGrabEnd(identity);
    };
    listeners.onEnded = [this, camera = device->info()](const QString &reason) {
        QMetaObject::invokeMethod(
            this, [=] { onGrabEnded(camera, reason); }, Qt::QueuedConnection);
    };
    const auto grab = QSharedPointer<CGrab>::create(device, mode, listeners);
    m_grabs.insert(identity, grab);
    m_outlets.control->setStopFlag(identity, grab->stopFlag());
    publish();
}

void CPoolWorker::stopGrab(const CameraInfoPtr &camera)
{
    if (isOpening(camera)) {
        m_afterOpening[camera->identity()].append([=] { stopGrab(camera); });
        return;
    }
    const auto grab = camera ? m_grabs.value(camera->identity()) : nullptr;
    if (grab) {
        grab->stop();
    }
}

// A new grab may have taken the place of the one that ended.
void CPoolWorker::onGrabEnded(const CameraInfoPtr &camera, const QString &reason)
{
    const auto grab = m_grabs.value(camera->identity());
    if (grab && grab->hasEnded()) {
        m_grabs.remove(camera->identity());
        publish();
    }
    if (!reason.isEmpty()) {
        failGrab(camera, reason);
    }
}

void CPoolWorker::failGrab(const CameraInfoPtr &camera, const QString &message)
{
    qCWarning(lcCameraPool, "%s", qUtf8Printable(message));
    Q_EMIT m_outlets.control->grabFailed(camera, message);
}

void CPoolWorker::closeAll()
{
    m_isEnding = true;
    m_searchTimer.stop();
    const auto devices = m_open.values();
    for (const CameraInfoPtr &camera : m_openings.cameras()) {
        giveUpOpening(camera,
                      QStringLiteral("is not opened: the viewer is closing; start it again"));
    }
    for (const QSharedPointer<CDevice> &device : devices) {
        close(device->info());
    }
    Q_EMIT m_outlets.control->allClosed();
}

void CPoolWorker::waitForSearch()
{
    m_search.wait();
}

void CPoolWorker::onDeviceLost(const QString &identity, quint64 session)
{
    const auto device = m_open.value(identity);
    if (!device || m_sessions.value(identity) != session) {
        return;
    }
    shut(identity);
    Q_EMIT m_outlets.control->closed(device->info());
    // Gone even if it has come back already: what was set in it is lost. The next search finds it.
    m_table.remove(identity);
    m_lostMeanwhile.insert(identity);
    publish();
    Q_EMIT m_outlets.status->deviceDisconnected(device->info());
}

// The signal comes while the camera is still in m_open, that is, while it can be read.
void CPoolWorker::shut(const QString &identity)
{
    const auto device = m_open.value(identity);
    if (!device) {
        return;
    }
    device->limitPatience(std::chrono::milliseconds(m_timing.closingLimit));
    m_grabs.remove(identity); // waits for its end
    Q_EMIT m_outlets.status->deviceClosing(device->info());
    m_releaser->release(device);
    m_open.remove(identity);
    m_table.setControlled(identity, false);
    m_usedMeanwhile.insert(identity);
    publish();
    qCInfo(lcCameraPool, "%s is closed", qUtf8Printable(identity));
}

void CPoolWorker::publish()
{
    QHash<QString, ICameraControlService::CameraState> states;
    const QList<CameraInfoPtr> cameras = m_table.cameras();
    for (const CameraInfoPtr &camera : cameras) {
        const QString identity = camera->identity();
        states.insert(identity, m_table.find(identity)->isControlled
                                    ? ICameraControlService::InUseElsewhere
                                    : ICameraControlService::Free);
    }
    for (const QString &identity : m_open.keys()) {
        const auto grab = m_grabs.value(identity);
        states.insert(identity, grab && !grab->hasEnded() ? ICameraControlService::Grabbing
                                                          : ICameraControlService::Open);
    }
    m_outlets.control->publish(cameras, states);
}

} // namespace CameraPool
