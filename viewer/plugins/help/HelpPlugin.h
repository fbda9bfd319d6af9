// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <Core/Plugin/IPlugin.h>

#include <QSharedPointer>
#include <QString>

namespace Plugin {
namespace Help {

class CHelpViewService;

/// The built-in plug-in "Help": shows documents and web addresses for `CHelpHelper` and
/// `DocumentationHelper`.
class CHelpPlugin : public Core::Plugin::IPlugin
{
    Q_OBJECT

public:
    /// \a documentFolder holds the documents that are installed with the viewer.
    explicit CHelpPlugin(const QString &documentFolder, QObject *parent = nullptr);
    ~CHelpPlugin() override;

    bool preInitialize(const QPointer<Core::Plugin::IPluginInitializer> &initializer) override;
    bool initialize() override;
    bool uninitialize(const QPointer<Core::Plugin::IPluginInitializer> &initializer) override;

private:
    QSharedPointer<CHelpViewService> m_service;
};

} // namespace Help
} // namespace Plugin
