// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "application/DeviceClosing.h"

#include "plugins/camerapool/ICameraControlService.h"

#include <Core/Plugin/ServiceLookup.h>

#include <chrono>

#include <QEventLoop>
#include <QLoggingCategory>
#include <QTimer>

namespace Application {

namespace {

Q_LOGGING_CATEGORY(log, "nerix.application", QtInfoMsg)

// Far above what a camera that is gone costs: only a plug-in that hangs takes this long.
constexpr std::chrono::seconds closingLimit(30);

} // namespace

void closeDevices(const Core::Plugin::IPluginInitializer &services)
{
    using CameraPool::ICameraControlService;
    const auto control = Core::Plugin::findService<ICameraControlService>(&services);
    if (!control) {
        return;
    }
    QEventLoop loop;
    QObject::connect(control.data(), &ICameraControlService::allClosed, &loop,
                     [&loop] { loop.exit(0); });
    QTimer::singleShot(closingLimit, &loop, [&loop] { loop.exit(1); });
    control->closeAll();
    if (loop.exec() != 0) {
        qCWarning(log).nospace()
            << "the cameras are not closed after " << closingLimit.count()
            << " s, because a plug-in does not let them go; the viewer closes all the same";
    }
}

} // namespace Application
