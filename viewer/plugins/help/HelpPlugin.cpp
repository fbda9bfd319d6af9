// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/help/HelpPlugin.h"

#include "plugins/help/CHelpEntries.h"
#include "plugins/help/CHelpViewService.h"
#include "plugins/help/CHelpWindow.h"
#include "plugins/localization/ILanguageService.h"
#include "plugins/nerixviewer/IMainWindowService.h"

#include <CHelpHelper.h>
#include <Core/Plugin/ServiceLookup.h>
#include <DocumentationHelper.h>
#include <Plugin/AppCore/IMenuService.h>

#include <QApplication>
#include <QUrl>

namespace Plugin {
namespace Help {

CHelpPlugin::CHelpPlugin(const QString &documentFolder, QObject *parent)
    : IPlugin(parent)
    , m_documents(documentFolder,
                  [this] { return m_languages ? m_languages->language() : QString(); })
    , m_service(QSharedPointer<CHelpViewService>::create(m_documents))
{}

CHelpPlugin::~CHelpPlugin()
{
    delete m_window;
}

bool CHelpPlugin::preInitialize(const QPointer<Core::Plugin::IPluginInitializer> &initializer)
{
    m_initializer = initializer;
    initializer->addService(m_service);
    return true;
}

bool CHelpPlugin::initialize()
{
    const auto service = m_service;
    CHelpHelper::setHandler(
        [service](CHelpHelper::HelpType type) { return service->showDocument(type); });
    DocumentationHelper::setHandler(
        [service](const QUrl &url, bool /*inViewer*/) { return service->showAddress(url); });
    followTheLanguage();
    addWindow();
    if (const auto menus = Core::Plugin::findService<AppCore::IMenuService>(m_initializer)) {
        m_entries = std::make_unique<CHelpEntries>(*menus, m_documents, m_mainWindow);
    }
    return true;
}

bool CHelpPlugin::uninitialize(const QPointer<Core::Plugin::IPluginInitializer> &initializer)
{
    CHelpHelper::setHandler({});
    DocumentationHelper::setHandler({});
    m_service->setViewer({});
    m_entries.reset();
    delete m_window;
    if (m_languages) {
        m_languages->disconnect(this);
        m_languages.reset();
    }
    initializer->removeService(m_service);
    return true;
}

void CHelpPlugin::followTheLanguage()
{
    m_languages = Core::Plugin::findService<Localization::ILanguageService>(m_initializer);
    if (m_languages) {
        connect(m_languages.data(), &Localization::ILanguageService::languageChanged, this, [this] {
            if (m_window) {
                m_window->readAnew();
            }
        });
    }
}

void CHelpPlugin::addWindow()
{
    const auto windows = Core::Plugin::findService<NerixViewer::IMainWindowService>(m_initializer);
    if (windows) {
        m_mainWindow = windows->window();
        m_service->setViewer([this](const QString &path) { showInWindow(path); });
    }
}

void CHelpPlugin::showInWindow(const QString &path)
{
    if (!m_window) {
        m_window = new CHelpWindow(m_documents);
    }
    // The link of a page that blocks the other windows should still be readable.
    const QWidget *blocking = QApplication::activeModalWidget();
    m_window->showDocument(path, blocking ? blocking->windowHandle() : nullptr);
}

} // namespace Help
} // namespace Plugin
