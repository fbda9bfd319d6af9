// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "HelloPlugin.h"

#include <CameraPool/ICameraStatusService.h>
#include <Core/Plugin/ServiceLookup.h>
#include <Plugin/AppCore/IActionContainer.h>
#include <Plugin/AppCore/IMenuService.h>

#include <QAction>
#include <QDebug>

using CameraPool::ICameraStatusService;
using Core::CId;
using Core::CameraPoolComponents::ICameraInfo;
using Plugin::AppCore::IMenuService;

bool HelloPlugin::preInitialize(const QPointer<Core::Plugin::IPluginInitializer> &initializer)
{
    m_initializer = initializer;
    return true;
}

bool HelloPlugin::initialize()
{
    const auto cameras = Core::Plugin::findService<ICameraStatusService>(m_initializer);
    if (!cameras) {
        return false;
    }
    // The pool emits in its own thread; the connection queues the signal to ours.
    connect(cameras.data(), &ICameraStatusService::deviceConnected, this, &HelloPlugin::greet);
    return addMenuEntry();
}

bool HelloPlugin::uninitialize(const QPointer<Core::Plugin::IPluginInitializer> &)
{
    return true;
}

void HelloPlugin::greet(const Core::CameraPoolComponents::DeviceBaseInfoPtr &device)
{
    if (const auto camera = qSharedPointerDynamicCast<ICameraInfo>(device)) {
        qInfo().noquote() << "Hello," << camera->displayName();
    }
}

bool HelloPlugin::addMenuEntry()
{
    const auto menus = Core::Plugin::findService<IMenuService>(m_initializer);
    auto *help = menus ? menus->findActionContainer(CId("NerixViewer.Menu.Help")) : nullptr;
    if (!help) {
        return false;
    }
    auto *action = new QAction(tr("Say Hello"), this);
    connect(action, &QAction::triggered, this, [] { qInfo() << "Hello, user"; });
    const Core::AppCoreComponents::CContext everywhere(CId("AppCore.Global.Context"));
    help->addCommand(menus->registerAction(action, CId("Hello.Say"), everywhere),
                     CId("NerixViewer.Group.Help.Support"));
    return true;
}
