// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/cameraselector/CameraSelectorPlugin.h"

#include "plugins/camerapool/ICameraControlService.h"
#include "plugins/cameraselector/CDeviceSelectionService.h"

#include <CameraPool/ICameraEnumerationService.h>
#include <Core/Plugin/ServiceLookup.h>

#include <QLoggingCategory>

namespace CameraSelector {

namespace {

Q_LOGGING_CATEGORY(log, "nerix.cameraselector", QtInfoMsg)

} // namespace

CCameraSelectorPlugin::CCameraSelectorPlugin(QObject *parent)
    : IPlugin(parent)
    , m_service(QSharedPointer<CDeviceSelectionService>::create())
{}

CCameraSelectorPlugin::~CCameraSelectorPlugin() = default;

bool CCameraSelectorPlugin::preInitialize(
    const QPointer<Core::Plugin::IPluginInitializer> &initializer)
{
    m_initializer = initializer;
    initializer->addService(m_service);
    return true;
}

bool CCameraSelectorPlugin::initialize()
{
    using CameraPool::ICameraEnumerationService;
    if (const auto search = Core::Plugin::findService<ICameraEnumerationService>(m_initializer)) {
        m_firstSearch = connect(search.data(), &ICameraEnumerationService::enumerationChanged, this,
                                &CCameraSelectorPlugin::onFirstSearchEnded);
    }
    return true;
}

bool CCameraSelectorPlugin::uninitialize(
    const QPointer<Core::Plugin::IPluginInitializer> &initializer)
{
    initializer->removeService(m_service);
    return true;
}

void CCameraSelectorPlugin::onFirstSearchEnded()
{
    disconnect(m_firstSearch);
    const auto control =
        Core::Plugin::findService<CameraPool::ICameraControlService>(m_initializer);
    if (control && control->cameras().isEmpty()) {
        qCInfo(log) << "no camera found: plug one in, and check its power and that its address is "
                       "in a network of this computer; the viewer goes on looking";
    }
}

} // namespace CameraSelector
