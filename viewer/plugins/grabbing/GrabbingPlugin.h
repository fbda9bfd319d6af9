// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <Core/Plugin/IPlugin.h>

#include <memory>

namespace Grabbing {

class CFiguresBar;
class CGrabController;
class CGrabEntries;

/// The built-in plug-in "Grabbing": grabs with the selected camera by menu, key or tool bar, and
/// shows the figures of its grab in the status bar. A grab that could not be started needs no
/// report from here: the camera pool's warning is among the messages.
class CGrabbingPlugin : public Core::Plugin::IPlugin
{
    Q_OBJECT

public:
    explicit CGrabbingPlugin(QObject *parent = nullptr);
    ~CGrabbingPlugin() override;

    bool preInitialize(const QPointer<Core::Plugin::IPluginInitializer> &initializer) override;
    bool initialize() override;
    bool uninitialize(const QPointer<Core::Plugin::IPluginInitializer> &initializer) override;

private:
    void addToWindow();

    QPointer<Core::Plugin::IPluginInitializer> m_initializer;
    std::unique_ptr<CGrabController> m_controller;
    std::unique_ptr<CGrabEntries> m_entries;
    QPointer<CFiguresBar> m_figures;
};

} // namespace Grabbing
