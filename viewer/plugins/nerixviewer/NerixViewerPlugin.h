// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <Core/Plugin/ALocalizedPlugin.h>

#include <memory>

#include <QSharedPointer>

class QDockWidget;

namespace Plugin {
namespace AppCore {
class IMenuControlService;
}
namespace NerixViewer {

class CAppearance;
class CApplicationService;
class CMainWindowService;
class CMessageService;

/// Whether the viewer shows windows. A script runs without.
enum class WindowMode { WithWindows, WithoutWindows };

/// The built-in plug-in "NerixViewer": the application itself, with its main window, its messages
/// and the menus that every other plug-in may count on. It brings the translations of all built-in
/// plug-ins.
///
/// | menu                      | groups "NerixViewer.Group.<menu>.<group>"         |
/// |---------------------------|---------------------------------------------------|
/// | "NerixViewer.Menu.File"   | Features, Image, Quit                             |
/// | "NerixViewer.Menu.Camera" | Device, Grab                                      |
/// | "NerixViewer.Menu.View"   | Image, Screens, Panels, Options                   |
/// | "NerixViewer.Menu.Help"   | Contents, Support, About                          |
class CNerixViewerPlugin : public Core::Plugin::ALocalizedPlugin
{
    Q_OBJECT

public:
    explicit CNerixViewerPlugin(WindowMode mode, QObject *parent = nullptr);
    ~CNerixViewerPlugin() override;

    bool preInitialize(const QPointer<Core::Plugin::IPluginInitializer> &initializer) override;
    bool initialize() override;
    bool uninitialize(const QPointer<Core::Plugin::IPluginInitializer> &initializer) override;

private:
    void createMenus(AppCore::IMenuControlService &menuService);
    void createQuitEntry(AppCore::IMenuControlService &menuService);
    void createOptions(AppCore::IMenuControlService &menuService);
    void createLanguageMenu(AppCore::IMenuControlService &menuService);
    void addPanelEntry(QDockWidget &panel);
    void showWindow();
    void leaveWindow();

    QPointer<Core::Plugin::IPluginInitializer> m_initializer;
    QSharedPointer<CApplicationService> m_applicationService;
    QSharedPointer<CMessageService> m_messageService;
    QSharedPointer<CMainWindowService> m_windowService; // null without windows
    std::unique_ptr<CAppearance> m_appearance;          // likewise
    std::unique_ptr<QObject> m_entries;                 // owns the actions
};

} // namespace NerixViewer
} // namespace Plugin
