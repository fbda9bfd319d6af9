// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "CPoolRig.h"

#include "plugins/camerapool/CCameraControl.h"
#include "plugins/camerapool/CCameraStatus.h"
#include "plugins/camerapool/CDeviceStore.h"
#include "plugins/camerapool/CLoopbackSearch.h"

#include <utility>

#include <QTest>

using namespace CameraPool;
using Core::CameraPoolComponents::DeviceBaseInfoPtr;
using Core::CameraPoolComponents::ICameraInfo;

namespace {

constexpr int LimitMs = 30000;

} // namespace

CPoolTiming CPoolRig::shortTiming()
{
    CPoolTiming timing;
    timing.firstSearchDelay = 0;
    timing.searchPause = 20;
    return timing;
}

CPoolRig::CPoolRig(CPoolTiming timing)
    : CPoolRig(std::make_unique<CLoopbackSearch>(), timing)
{}

CPoolRig::CPoolRig(std::unique_ptr<ICameraSearch> search, CPoolTiming timing)
    : m_pool(std::make_unique<CCameraPool>(std::move(search), timing))
{
    const auto noteDevice = [this](const char *signal) {
        return [this, signal](const DeviceBaseInfoPtr &device) {
            note(signal, qSharedPointerDynamicCast<ICameraInfo>(device));
        };
    };
    const auto status = m_pool->status();
    connect(status.get(), &CCameraStatus::deviceConnected, this, noteDevice("connected"));
    connect(status.get(), &CCameraStatus::deviceDisconnected, this, noteDevice("disconnected"));
    connect(status.get(), &CCameraStatus::deviceOpened, this, noteDevice("opened"));
    connect(status.get(), &CCameraStatus::deviceClosing, this, noteDevice("closing"));
    connect(m_pool->enumeration().get(), &CCameraEnumeration::enumerationChanged, this,
            [this] { note("enumeration", {}); });
    const auto control = m_pool->control();
    connect(control.get(), &CCameraControl::closed, this,
            [this](const CameraInfoPtr &camera) { note("closed", camera); });
    connect(control.get(), &CCameraControl::allClosed, this, [this] { note("allClosed", {}); });
    connect(control.get(), &CCameraControl::openFailed, this,
            [this](const CameraInfoPtr &camera, const QString &message) {
                m_lastFailure = message;
                note("openFailed", camera);
            });
    listenToGrabs();
    m_pool->start();
}

void CPoolRig::listenToGrabs()
{
    const auto status = m_pool->status();
    const auto serial = [](const CameraInfoPtr &camera) {
        return camera->identity().section(u'-', -1);
    };
    connect(status.get(), &CCameraStatus::cameraGrabStarted, this,
            [this](const CameraInfoPtr &camera) { note("grabStarted", camera); });
    connect(status.get(), &CCameraStatus::cameraGrabStopped, this,
            [this](const CameraInfoPtr &camera) { note("grabStopped", camera); });
    connect(m_pool->control().get(), &CCameraControl::grabFailed, this,
            [this](const CameraInfoPtr &camera, const QString &message) {
                m_lastFailure = message;
                note("grabFailed", camera);
            });
    connect(m_pool->images().get(), &CImageNews::resultArrived, this,
            [=](const CameraInfoPtr &camera, const Nerix::CGrabResultPtr &result) {
                Grabbed &grabbed = m_grabbed[serial(camera)];
                (result->GrabSucceeded() ? grabbed.images : grabbed.failures).append(result);
            });
    connect(status.get(), &CCameraStatus::cameraStatisticUpdated, this,
            [=](const CameraInfoPtr &camera, int images, int failed, double fps, quint64 bps) {
                Grabbed &grabbed = m_grabbed[serial(camera)];
                ++grabbed.figureCount;
                grabbed.imagesGrabbed = images;
                grabbed.imagesFailed = failed;
                grabbed.fps = fps;
                grabbed.bps = bps;
            });
}

bool CPoolRig::waitForImages(const QString &serial, int count)
{
    return QTest::qWaitFor([&] { return m_grabbed[serial].images.size() >= count; }, LimitMs);
}

bool CPoolRig::waitForFailures(const QString &serial, int count)
{
    return QTest::qWaitFor([&] { return m_grabbed[serial].failures.size() >= count; }, LimitMs);
}

CPoolRig::~CPoolRig()
{
    m_pool->stop();
}

bool CPoolRig::search()
{
    m_pool->beginSearching();
    return waitFor(QStringLiteral("enumeration"));
}

bool CPoolRig::waitFor(const QString &line)
{
    return waitFor(line, 1);
}

bool CPoolRig::waitFor(const QString &line, int count)
{
    return QTest::qWaitFor([&] { return m_log.count(line) >= count; }, LimitMs);
}

bool CPoolRig::open(const CameraInfoPtr &camera)
{
    const QString opened = QStringLiteral("opened ") + camera->identity().section(u'-', -1);
    const QString failed = QStringLiteral("openFailed ") + camera->identity().section(u'-', -1);
    const int before = m_log.count(opened);
    const int failedBefore = m_log.count(failed);
    m_pool->control()->open(camera);
    return QTest::qWaitFor(
               [&] { return m_log.count(opened) > before || m_log.count(failed) > failedBefore; },
               LimitMs)
           && m_log.count(opened) > before;
}

bool CPoolRig::close(const CameraInfoPtr &camera)
{
    const QString closed = QStringLiteral("closed ") + camera->identity().section(u'-', -1);
    const int before = m_log.count(closed);
    m_pool->control()->close(camera);
    return waitFor(closed, before + 1);
}

bool CPoolRig::closeAll()
{
    m_pool->control()->closeAll();
    return waitFor(QStringLiteral("allClosed"));
}

CPoolRig::CameraInfoPtr CPoolRig::camera(const QString &serial) const
{
    const auto cameras = m_pool->control()->cameras();
    for (const CameraInfoPtr &camera : cameras) {
        if (camera->identity().endsWith(u'-' + serial)) {
            return camera;
        }
    }
    return {};
}

void CPoolRig::note(const char *signal, const CameraInfoPtr &camera)
{
    const QString word = QString::fromLatin1(signal);
    m_log.append(camera ? word + u' ' + camera->identity().section(u'-', -1) : word);
}
