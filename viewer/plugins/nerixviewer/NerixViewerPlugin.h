// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <Core/Plugin/IPlugin.h>

#include <QSharedPointer>

class QAction;

namespace Plugin {
namespace AppCore {
class IMenuControlService;
}
namespace NerixViewer {

class CApplicationService;

/// The built-in plug-in "NerixViewer": the application itself, with the menus that every other
/// plug-in may count on.
///
/// | menu                      | groups                                           |
/// |---------------------------|--------------------------------------------------|
/// | "NerixViewer.Menu.File"   | "NerixViewer.Group.File.Quit"                    |
/// | "NerixViewer.Menu.Camera" | "NerixViewer.Group.Camera.Device"                |
/// | "NerixViewer.Menu.View"   | "NerixViewer.Group.View.Screens"                 |
/// | "NerixViewer.Menu.Help"   | "NerixViewer.Group.Help.Contents", ".Support", ".About" |
class CNerixViewerPlugin : public Core::Plugin::IPlugin
{
    Q_OBJECT

public:
    explicit CNerixViewerPlugin(QObject *parent = nullptr);
    ~CNerixViewerPlugin() override;

    bool preInitialize(const QPointer<Core::Plugin::IPluginInitializer> &initializer) override;
    bool initialize() override;
    bool uninitialize(const QPointer<Core::Plugin::IPluginInitializer> &initializer) override;

private:
    void createMenus(AppCore::IMenuControlService &menuService);
    void createQuitAction(AppCore::IMenuControlService &menuService);

    QPointer<Core::Plugin::IPluginInitializer> m_initializer;
    QSharedPointer<CApplicationService> m_applicationService;
    QAction *m_quitAction = nullptr;
};

} // namespace NerixViewer
} // namespace Plugin
