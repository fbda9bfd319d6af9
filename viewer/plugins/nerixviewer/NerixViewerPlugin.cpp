// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/nerixviewer/NerixViewerPlugin.h"

#include "plugins/appcore/IMenuControlService.h"
#include "plugins/nerixviewer/CApplicationService.h"

#include <Core/Plugin/ServiceLookup.h>
#include <Plugin/AppCore/IActionContainer.h>

#include <QAction>

namespace Plugin {
namespace NerixViewer {

CNerixViewerPlugin::CNerixViewerPlugin(QObject *parent)
    : IPlugin(parent)
    , m_applicationService(QSharedPointer<CApplicationService>::create())
{}

CNerixViewerPlugin::~CNerixViewerPlugin() = default;

bool CNerixViewerPlugin::preInitialize(
    const QPointer<Core::Plugin::IPluginInitializer> &initializer)
{
    m_initializer = initializer;
    initializer->addService(m_applicationService);
    return true;
}

bool CNerixViewerPlugin::initialize()
{
    const auto menuService = Core::Plugin::findService<AppCore::IMenuControlService>(m_initializer);
    if (!menuService) {
        return false;
    }
    createMenus(*menuService);
    createQuitAction(*menuService);
    return true;
}

bool CNerixViewerPlugin::uninitialize(const QPointer<Core::Plugin::IPluginInitializer> &initializer)
{
    delete m_quitAction;
    m_quitAction = nullptr;
    initializer->removeService(m_applicationService);
    return true;
}

void CNerixViewerPlugin::createMenus(AppCore::IMenuControlService &menuService)
{
    const auto menu = [&menuService](const char *id, const QString &title, auto... groups) {
        menuService.createActionContainer(Core::CId(id), title);
        (menuService.addGroup(Core::CId(id), Core::CId(groups)), ...);
    };
    menu("NerixViewer.Menu.File", tr("&File"), "NerixViewer.Group.File.Quit");
    menu("NerixViewer.Menu.Camera", tr("&Camera"), "NerixViewer.Group.Camera.Device");
    menu("NerixViewer.Menu.View", tr("&View"), "NerixViewer.Group.View.Screens");
    menu("NerixViewer.Menu.Help", tr("&Help"), "NerixViewer.Group.Help.Contents",
         "NerixViewer.Group.Help.Support", "NerixViewer.Group.Help.About");
}

void CNerixViewerPlugin::createQuitAction(AppCore::IMenuControlService &menuService)
{
    using Core::AppCoreComponents::CContext;
    m_quitAction = new QAction(tr("&Quit"), this);
    m_quitAction->setShortcut(QKeySequence::Quit);
    connect(m_quitAction, &QAction::triggered, m_applicationService.data(),
            &CApplicationService::requestQuit);
    auto *command = menuService.registerAction(m_quitAction, Core::CId("NerixViewer.Action.Quit"),
                                               CContext(Core::CId("AppCore.Global.Context")));
    menuService.findActionContainer(Core::CId("NerixViewer.Menu.File"))
        ->addCommand(command, Core::CId("NerixViewer.Group.File.Quit"));
}

} // namespace NerixViewer
} // namespace Plugin
