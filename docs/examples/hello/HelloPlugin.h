// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <Core/CameraPoolComponents/ICameraInfo.h>
#include <Core/Plugin/IPlugin.h>

/// Greets each camera that is plugged in, and adds an entry to the Help menu.
class HelloPlugin : public Core::Plugin::IPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID NERIX_PLUGIN_IID FILE "Hello.json")

public:
    bool preInitialize(const QPointer<Core::Plugin::IPluginInitializer> &initializer) override;
    bool initialize() override;
    bool uninitialize(const QPointer<Core::Plugin::IPluginInitializer> &initializer) override;

private:
    void greet(const Core::CameraPoolComponents::DeviceBaseInfoPtr &device);
    bool addMenuEntry();

    QPointer<Core::Plugin::IPluginInitializer> m_initializer;
};
