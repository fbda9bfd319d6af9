// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/nerixviewer/NerixViewerPlugin.h"

#include "plugins/appcore/IMenuControlService.h"
#include "plugins/localization/ILanguageService.h"
#include "plugins/nerixviewer/CAppearance.h"
#include "plugins/nerixviewer/CApplicationService.h"
#include "plugins/nerixviewer/CMainWindow.h"
#include "plugins/nerixviewer/CMainWindowService.h"
#include "plugins/nerixviewer/CMessagePanel.h"
#include "plugins/nerixviewer/CMessageService.h"
#include "windows/ChoiceMenu.h"
#include "windows/MenuEntry.h"
#include "windows/OnLanguageChange.h"

#include <Core/Plugin/ServiceLookup.h>
#include <Plugin/AppCore/IActionContainer.h>

#include <QAction>
#include <QCoreApplication>
#include <QDockWidget>
#include <QGuiApplication>
#include <QIcon>
#include <QMenu>

// The resources are in a static library, so nothing else asks the linker for them.
static void initResources()
{
    Q_INIT_RESOURCE(catalogues);
    Q_INIT_RESOURCE(icon);
}

namespace Plugin {
namespace NerixViewer {

CNerixViewerPlugin::CNerixViewerPlugin(WindowMode mode, QObject *parent)
    : ALocalizedPlugin(parent)
    , m_applicationService(QSharedPointer<CApplicationService>::create())
    , m_messageService(QSharedPointer<CMessageService>::create())
    , m_entries(std::make_unique<QObject>())
{
    initResources();
    if (mode == WindowMode::WithWindows) {
        m_windowService = QSharedPointer<CMainWindowService>::create(
            [this](QDockWidget &panel) { addPanelEntry(panel); });
        m_appearance = std::make_unique<CAppearance>();
    }
}

CNerixViewerPlugin::~CNerixViewerPlugin() = default;

bool CNerixViewerPlugin::preInitialize(
    const QPointer<Core::Plugin::IPluginInitializer> &initializer)
{
    m_initializer = initializer;
    initializer->addService(m_applicationService);
    initializer->addService(m_messageService);
    if (m_windowService) {
        initializer->addService(m_windowService);
        connect(initializer, &Core::Plugin::IPluginInitializer::initializationDone, this,
                &CNerixViewerPlugin::showWindow);
    }
    return true;
}

bool CNerixViewerPlugin::initialize()
{
    const auto menuService = Core::Plugin::findService<AppCore::IMenuControlService>(m_initializer);
    if (!menuService) {
        return false;
    }
    createMenus(*menuService);
    createQuitEntry(*menuService);
    if (m_windowService) {
        createOptions(*menuService);
        createLanguageMenu(*menuService);
        m_windowService->addPanel(QStringLiteral("NerixViewer.Messages"),
                                  new CMessagePanel(m_messageService->model()),
                                  IMainWindowService::Side::Bottom);
    }
    return true;
}

bool CNerixViewerPlugin::uninitialize(const QPointer<Core::Plugin::IPluginInitializer> &initializer)
{
    m_entries.reset();
    if (m_windowService) {
        initializer->removeService(m_windowService);
        m_windowService.reset();
    }
    initializer->removeService(m_messageService);
    initializer->removeService(m_applicationService);
    return true;
}

void CNerixViewerPlugin::createMenus(AppCore::IMenuControlService &menuService)
{
    const auto menu = [this, &menuService](const char *id, auto title, auto... groups) {
        menuService.createActionContainer(Core::CId(id), title());
        (menuService.addGroup(Core::CId(id), Core::CId(groups)), ...);
        QMenu *made = menuService.menus().constLast();
        Windows::onLanguageChange(m_entries.get(), [made = QPointer<QMenu>(made), title] {
            if (made) {
                made->setTitle(title());
            }
        });
    };
    menu(
        "NerixViewer.Menu.File", [] { return tr("&File"); }, "NerixViewer.Group.File.Features",
        "NerixViewer.Group.File.Image", "NerixViewer.Group.File.Quit");
    menu(
        "NerixViewer.Menu.Camera", [] { return tr("&Camera"); }, "NerixViewer.Group.Camera.Device",
        "NerixViewer.Group.Camera.Grab");
    menu(
        "NerixViewer.Menu.View", [] { return tr("&View"); }, "NerixViewer.Group.View.Image",
        "NerixViewer.Group.View.Screens", "NerixViewer.Group.View.Panels",
        "NerixViewer.Group.View.Options");
    menu(
        "NerixViewer.Menu.Help", [] { return tr("&Help"); }, "NerixViewer.Group.Help.Contents",
        "NerixViewer.Group.Help.Support", "NerixViewer.Group.Help.About");
}

void CNerixViewerPlugin::createQuitEntry(AppCore::IMenuControlService &menuService)
{
    const QAction *quit = Windows::addMenuEntry(
        menuService,
        {"NerixViewer.Action.Quit", "NerixViewer.Menu.File", "NerixViewer.Group.File.Quit",
         QKeySequence::Quit},
        [] { return tr("&Quit"); }, m_entries.get());
    connect(quit, &QAction::triggered, m_applicationService.data(),
            &CApplicationService::requestQuit);
}

void CNerixViewerPlugin::createOptions(AppCore::IMenuControlService &menuService)
{
    Windows::addChoiceMenu(
        menuService,
        {"NerixViewer.Action.Appearance", "NerixViewer.Menu.View",
         "NerixViewer.Group.View.Options"},
        [] { return tr("&Appearance"); },
        {{"NerixViewer.Action.Appearance.System", [] { return tr("As the &System"); },
          QStringLiteral("system")},
         {"NerixViewer.Action.Appearance.Light", [] { return tr("&Light"); },
          QStringLiteral("light")},
         {"NerixViewer.Action.Appearance.Dark", [] { return tr("&Dark"); },
          QStringLiteral("dark")}},
        [this] { return m_appearance->choice(); },
        [this](const QString &choice) { m_appearance->choose(choice); }, m_entries.get());

    const QAction *reset = Windows::addMenuEntry(
        menuService,
        {"NerixViewer.Action.ResetLayout", "NerixViewer.Menu.View",
         "NerixViewer.Group.View.Options"},
        [] { return tr("&Reset Layout"); }, m_entries.get());
    connect(reset, &QAction::triggered, &m_windowService->mainWindow(), &CMainWindow::resetLayout);
}

// Each language by its own name, so that it is found by whoever does not read the present one.
void CNerixViewerPlugin::createLanguageMenu(AppCore::IMenuControlService &menuService)
{
    const auto languages = Core::Plugin::findService<Localization::ILanguageService>(m_initializer);
    if (!languages) {
        return;
    }
    const auto language = [](const char *code, const QString &name) {
        return Windows::Choice{QByteArrayLiteral("NerixViewer.Action.Language.") + code,
                               [name] { return name; }, QString::fromLatin1(code)};
    };
    Windows::addChoiceMenu(
        menuService,
        {"NerixViewer.Action.Language", "NerixViewer.Menu.View", "NerixViewer.Group.View.Options"},
        [] { return tr("&Language"); },
        {{"NerixViewer.Action.Language.System", [] { return tr("As the &System"); }, QString()},
         language("en", QStringLiteral("English")),
         language("ja", QStringLiteral(u"\u65e5\u672c\u8a9e")),
         language("ko", QStringLiteral(u"\ud55c\uad6d\uc5b4")),
         language("zh", QStringLiteral(u"\u4e2d\u6587"))},
        [languages] { return languages->choice(); },
        [languages](const QString &choice) { languages->setLanguage(choice); }, m_entries.get());
}

void CNerixViewerPlugin::addPanelEntry(QDockWidget &panel)
{
    using Core::CId;
    const auto menuService = Core::Plugin::findService<AppCore::IMenuControlService>(m_initializer);
    const QString id = QStringLiteral("NerixViewer.Panel.%1").arg(panel.objectName());
    auto *command = menuService->registerAction(
        panel.toggleViewAction(), CId(id),
        Core::AppCoreComponents::CContext(CId("AppCore.Global.Context")));
    menuService->findActionContainer(CId("NerixViewer.Menu.View"))
        ->addCommand(command, CId("NerixViewer.Group.View.Panels"));
}

void CNerixViewerPlugin::showWindow()
{
    const auto menuService = Core::Plugin::findService<AppCore::IMenuControlService>(m_initializer);
    CMainWindow &window = m_windowService->mainWindow();
    connect(&window, &CMainWindow::closeRequested, m_applicationService.data(),
            &CApplicationService::requestQuit);
    connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, this,
            &CNerixViewerPlugin::leaveWindow);
    connect(m_applicationService.data(), &CApplicationService::layoutIsToBeKept, &window,
            &CMainWindow::saveLayout);
    m_appearance->apply();
    QGuiApplication::setWindowIcon(QIcon(QStringLiteral(":/nerixviewer/icon.svg")));
    window.setMenus(menuService->menus());
    window.restoreLayout();
    window.show();
}

// While the cameras are closed there is nothing more to click at.
void CNerixViewerPlugin::leaveWindow()
{
    CMainWindow &window = m_windowService->mainWindow();
    window.saveLayout();
    window.hide();
}

} // namespace NerixViewer
} // namespace Plugin
