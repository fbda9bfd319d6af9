// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "plugins/help/CHelpDocuments.h"

#include <Core/Plugin/IPlugin.h>

#include <memory>

#include <QSharedPointer>
#include <QString>

namespace Plugin {

namespace Localization {
class ILanguageService;
}

namespace Help {

class CHelpEntries;
class CHelpViewService;
class CHelpWindow;

/// The built-in plug-in "Help": shows documents and web addresses for `CHelpHelper` and
/// `DocumentationHelper`, and has the entries of the Help menu for them.
class CHelpPlugin : public Core::Plugin::IPlugin
{
    Q_OBJECT

public:
    /// \a documentFolder holds the documents that are installed with the viewer. They are shown in
    /// the language of the viewer, in English without an `ILanguageService`.
    explicit CHelpPlugin(const QString &documentFolder, QObject *parent = nullptr);
    ~CHelpPlugin() override;

    bool preInitialize(const QPointer<Core::Plugin::IPluginInitializer> &initializer) override;
    bool initialize() override;
    bool uninitialize(const QPointer<Core::Plugin::IPluginInitializer> &initializer) override;

private:
    void followTheLanguage();
    void addWindow();
    void showInWindow(const QString &path);

    QSharedPointer<Localization::ILanguageService> m_languages; // null before and after the run
    CHelpDocuments m_documents;
    QPointer<Core::Plugin::IPluginInitializer> m_initializer;
    QSharedPointer<CHelpViewService> m_service;
    std::unique_ptr<CHelpEntries> m_entries;
    QPointer<QWidget> m_mainWindow; // null in a run without windows
    QPointer<CHelpWindow> m_window; // null until it is needed
};

} // namespace Help
} // namespace Plugin
