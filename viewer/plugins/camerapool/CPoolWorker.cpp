// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "CPoolWorker.h"

#include "CCameraControl.h"
#include "CCameraStatus.h"
#include "CDeviceStore.h"
#include "DeviceOpener.h"
#include "Logging.h"

#include <algorithm>
#include <utility>

namespace CameraPool {
namespace {

// How long an opening waits for the end of the camera's last connection.
constexpr std::chrono::milliseconds ReleasePatience(400);

} // namespace

CPoolWorker::CPoolWorker(const Outlets &outlets, std::unique_ptr<ICameraSearch> search,
                         const CPoolTiming &timing)
    : m_outlets(outlets)
    , m_timing(timing)
    , m_search(std::move(search),
               [this](const QVector<CFoundCamera> &found) {
                   QMetaObject::invokeMethod(
                       this, [=] { onFound(found); }, Qt::QueuedConnection);
               })
    , m_searchTimer(this) // a child, so that it moves to the pool's thread too
    , m_releaser([this](const QString &identity) {
        QMetaObject::invokeMethod(
            this, [=] { onDeviceReleased(identity); }, Qt::QueuedConnection);
    })
{
    m_searchTimer.setSingleShot(true);
    connect(&m_searchTimer, &QTimer::timeout, this, &CPoolWorker::searchOnce);
}

CPoolWorker::~CPoolWorker() = default;

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
    const QList<QString> open = m_open.keys();
    const auto changes = m_table.update(found, QSet<QString>(open.begin(), open.end()));
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
               || (!m_table.find(identity) && m_releaser.isReleasing(identity));
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
        m_open.value(camera->identity())->markLost(); // onDeviceLost follows
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

void CPoolWorker::open(const CameraInfoPtr &camera)
{
    if (!camera) {
        return fail(camera, QStringLiteral("no camera is chosen: choose one, then open it"));
    }
    const QString identity = camera->identity();
    if (m_open.contains(identity)) {
        return;
    }
    const CFoundCamera *found = m_table.find(identity);
    if (m_isEnding) {
        fail(camera, QStringLiteral("%1 is not opened: the viewer is closing; start it again")
                         .arg(m_table.nameOf(camera)));
    } else if (!found) {
        fail(camera, QStringLiteral("%1 is not connected: check its cable and power, then open it")
                         .arg(m_table.nameOf(camera)));
    } else if (m_releaser.isReleasing(identity)) {
        waitForRelease(camera);
    } else {
        connectDevice(*found, camera);
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

void CPoolWorker::connectDevice(const CFoundCamera &found, const CameraInfoPtr &camera)
{
    const QString identity = camera->identity();
    const quint64 session = ++m_lastSession;
    m_usedMeanwhile.insert(identity);
    const auto postLoss = [this, identity, session] {
        QMetaObject::invokeMethod(
            this, [=] { onDeviceLost(identity, session); }, Qt::QueuedConnection);
    };
    try {
        const auto device = openDevice(found, camera, postLoss, m_releaser);
        device->setName(found.displayName());
        m_open.insert(identity, device);
        m_sessions.insert(identity, session);
        m_outlets.devices->put(device);
    } catch (const COpenException &exception) {
        m_table.setControlled(identity, exception.reason() == COpenException::InUse);
        publish();
        return fail(camera, QString::fromUtf8(exception.what()));
    }
    const CameraInfoPtr news = m_outlets.control->noteOpening(camera);
    publish();
    qCInfo(lcCameraPool, "%s is open", qUtf8Printable(identity));
    Q_EMIT m_outlets.status->deviceOpened(news);
}

void CPoolWorker::fail(const CameraInfoPtr &camera, const QString &message)
{
    qCWarning(lcCameraPool, "%s", qUtf8Printable(message));
    Q_EMIT m_outlets.control->openFailed(camera, message);
}

void CPoolWorker::close(const CameraInfoPtr &camera)
{
    if (camera) {
        m_waiting.remove(camera->identity());
        shut(camera->identity());
        Q_EMIT m_outlets.control->closed(camera);
    }
}

void CPoolWorker::startGrab(const CameraInfoPtr &camera, GrabMode mode)
{
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

void CPoolWorker::onDeviceReleased(const QString &identity)
{
    if (const CameraInfoPtr camera = m_waiting.take(identity).first) {
        open(camera);
    }
}

// The signal comes while the camera is still in m_open, that is, while it can be read.
void CPoolWorker::shut(const QString &identity)
{
    const auto device = m_open.value(identity);
    if (!device) {
        return;
    }
    m_grabs.remove(identity); // waits for its end
    Q_EMIT m_outlets.status->deviceClosing(device->info());
    m_releaser.release(device);
    m_open.remove(identity);
    m_table.setControlled(identity, false);
    m_usedMeanwhile.insert(identity);
    publish();
    qCInfo(lcCameraPool, "%s is closed", qUtf8Printable(identity));
}

void CPoolWorker::publish()
{
    QHash<QString, ICameraControlService::CameraState> states;
    for (const CameraInfoPtr &camera : m_table.cameras()) {
        const bool isControlled = m_table.find(camera->identity())->isControlled;
        states.insert(camera->identity(), isControlled ? ICameraControlService::InUseElsewhere
                                                       : ICameraControlService::Free);
    }
    for (const QString &identity : m_open.keys()) {
        const auto grab = m_grabs.value(identity);
        states.insert(identity, grab && !grab->hasEnded() ? ICameraControlService::Grabbing
                                                          : ICameraControlService::Open);
    }
    m_outlets.control->publish(m_table.cameras(), states);
}

} // namespace CameraPool
