// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "application/DeviceClosing.h"

#include "plugins/camerapool/ICameraControlService.h"

#include <Core/Plugin/ServiceLookup.h>

#include <chrono>

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QLoggingCategory>
#include <QThread>
#include <QTimer>

namespace Application {

namespace {

Q_LOGGING_CATEGORY(log, "nerix.application", QtInfoMsg)

// Far above what a camera that is gone costs: only a plug-in that hangs takes this long.
constexpr std::chrono::seconds closingLimit(30);

// Short for who waits, long for a processor.
constexpr std::chrono::milliseconds step(20);

void runEvents(Waiting waiting)
{
    if (waiting == Waiting::WithEvents) {
        QEventLoop loop;
        QTimer::singleShot(step, &loop, &QEventLoop::quit);
        loop.exec();
    } else {
        QCoreApplication::sendPostedEvents();
        QThread::msleep(step.count());
    }
}

} // namespace

void closeDevices(const Core::Plugin::IPluginInitializer &services, Waiting waiting,
                  const std::function<bool()> &isCutShort)
{
    using CameraPool::ICameraControlService;
    const auto control = Core::Plugin::findService<ICameraControlService>(&services);
    if (!control) {
        return;
    }
    bool isClosed = false;
    QObject context;
    QObject::connect(control.data(), &ICameraControlService::allClosed, &context,
                     [&isClosed] { isClosed = true; });
    const QDeadlineTimer deadline(closingLimit);
    control->closeAll();
    while (!isClosed && !deadline.hasExpired() && !isCutShort()) {
        runEvents(waiting);
    }
    if (deadline.hasExpired() && !isClosed) {
        qCWarning(log).nospace()
            << "the cameras are not closed after " << closingLimit.count()
            << " s, because a plug-in does not let them go; the viewer closes all the same";
    }
}

} // namespace Application
