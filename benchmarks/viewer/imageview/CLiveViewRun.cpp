// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "CLiveViewRun.h"

#include "MemoryUse.h"
#include "plugins/camerapool/CDevice.h"
#include "plugins/camerapool/IDeviceProvider.h"
#include "plugins/camerapool/IImageService.h"
#include "plugins/imageview/CImageArea.h"
#include "plugins/imageview/CImagePane.h"
#include "plugins/imageview/CImageView.h"
#include "plugins/imageview/CLiveCamera.h"

#include <CameraPool/ICameraStatusService.h>
#include <Core/Plugin/ServiceLookup.h>

#include <QApplication>
#include <QFile>

namespace {

using CameraPool::ICameraStatusService;
using Core::CameraPoolComponents::CameraInfoPtr;
using Core::Plugin::findService;

constexpr int missedFrameCounter = 6;

const char script[] = R"(
var camera = cameras.waitFor(1, 20000)[0];
cameras.open(camera);
cameras.select(camera);
features.set(camera, "Width", "1920");
features.set(camera, "Height", "1080");
features.set(camera, "AcquisitionFrameRate", "60");
features.set(camera, "ExposureTime", "1000");
grab.start(camera);
var end = Date.now() + SECONDS * 1000;
waitUntil(function () { return Date.now() > end; }, SECONDS * 1000 + 10000, "the time is over");
grab.stop(camera);
cameras.close(camera);
)";

ImageView::CImageArea *findArea()
{
    const auto windows = QApplication::topLevelWidgets();
    for (const QWidget *window : windows) {
        if (auto *area = window->findChild<ImageView::CImageArea *>()) {
            return area;
        }
    }
    return nullptr;
}

} // namespace

CLiveViewRun::CLiveViewRun(bool withWindows, double seconds)
    : m_withWindows(withWindows)
{
    writeScript(seconds);
    Application::CommandLine commandLine;
    commandLine.settingsFolder = m_folder.path();
    commandLine.pluginFolders = QStringList(m_folder.path());
    commandLine.scriptFile = m_folder.filePath(QStringLiteral("grab.js"));
    commandLine.showsWindows = withWindows;
    m_viewer = std::make_unique<Application::CViewer>(commandLine);
    connect(&m_second, &QTimer::timeout, this, &CLiveViewRun::onSecond);
}

CLiveViewRun::~CLiveViewRun() = default;

void CLiveViewRun::writeScript(double seconds) const
{
    QFile file(m_folder.filePath(QStringLiteral("grab.js")));
    if (file.open(QIODevice::WriteOnly)) {
        file.write(QByteArray(script).replace("SECONDS", QByteArray::number(seconds)));
    }
}

CLiveViewRun::Result CLiveViewRun::run()
{
    m_viewer->start();
    listen();
    m_result.hasSucceeded = QApplication::exec() == 0;
    m_probe.reset();
    m_viewer->shutDown();
    m_result.images = m_images;
    m_result.failures = m_failures;
    return m_result;
}

void CLiveViewRun::listen()
{
    const auto *registry = &m_viewer->plugins().registry();
    const auto images = findService<CameraPool::IImageService>(registry);
    connect(
        images.data(), &CameraPool::IImageService::resultArrived, images.data(),
        [this](const CameraInfoPtr &, const Nerix::CGrabResultPtr &result) {
            ++(result->GrabSucceeded() ? m_images : m_failures);
        },
        Qt::DirectConnection);
    const auto status = findService<ICameraStatusService>(registry);
    connect(status.data(), &ICameraStatusService::cameraGrabStarted, this,
            &CLiveViewRun::watchView);
    connect(
        status.data(), &ICameraStatusService::cameraStatisticUpdated, this,
        [this](const CameraInfoPtr &, int, int, double fps) { m_result.imagesPerSecond = fps; });
    connect(status.data(), &ICameraStatusService::cameraGrabStopped, this,
            [this, registry](const CameraInfoPtr &camera) {
                const auto devices = findService<CameraPool::IDeviceProvider>(registry);
                const auto counters = devices->device(camera)->counters();
                m_result.missedFrames = counters.at(missedFrameCounter).value_or(-1);
                onGrabStopped();
            });
}

void CLiveViewRun::watchView()
{
    m_second.start(1000);
    ImageView::CImageArea *area = m_withWindows ? findArea() : nullptr;
    if (!area || area->panes().isEmpty()) {
        return;
    }
    area->window()->resize(1920, 1200);
    ImageView::CImagePane *pane = area->panes().constFirst();
    connect(&pane->camera(), &ImageView::CLiveCamera::imageChanged, this,
            [this] { ++m_result.shown; });
    m_probe = std::make_unique<CInputProbe>(pane->view());
}

void CLiveViewRun::onSecond()
{
    m_result.memory.append(residentMemory());
}

void CLiveViewRun::onGrabStopped()
{
    m_second.stop();
    if (m_probe) {
        m_probe->stop();
        m_result.latencies = m_probe->latencies();
        m_probe.reset();
    }
}
