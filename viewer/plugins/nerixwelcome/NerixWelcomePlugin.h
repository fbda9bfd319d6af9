// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "policy/CUsagePolicy.h"

#include <Core/Plugin/IPlugin.h>

#include <QSharedPointer>

class QAction;

namespace Plugin {
namespace NerixWelcome {

class CNerixWelcomeController;
class CNerixWelcomeService;
class CWelcomeWindow;

/// The built-in plug-in "NerixWelcome": the welcome screen with the tabs of other plug-ins, and the
/// entry of the View menu that brings it up. In a run without windows it has all but the window.
class CNerixWelcomePlugin : public Core::Plugin::IPlugin
{
    Q_OBJECT

public:
    /// Where \a policy has switched usage tracking off, the consent page of the plug-in that tracks
    /// is left out, and whoever wants to see it is told why.
    explicit CNerixWelcomePlugin(Policy::CUsagePolicy policy = {}, QObject *parent = nullptr);

    /// The window goes while the tabs of the other plug-ins are still there.
    ~CNerixWelcomePlugin() override;

    bool preInitialize(const QPointer<Core::Plugin::IPluginInitializer> &initializer) override;
    bool initialize() override;
    bool uninitialize(const QPointer<Core::Plugin::IPluginInitializer> &initializer) override;

private:
    void addMenuEntry();
    void addWindow();
    void tellPolicy();

    const Policy::CUsagePolicy m_policy;
    QPointer<Core::Plugin::IPluginInitializer> m_initializer;
    QSharedPointer<CNerixWelcomeController> m_controller;
    QSharedPointer<CNerixWelcomeService> m_service;
    QPointer<CWelcomeWindow> m_window;
    QAction *m_showAction = nullptr;
};

} // namespace NerixWelcome
} // namespace Plugin
