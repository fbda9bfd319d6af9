// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <Core/Plugin/IPlugin.h>

#include <memory>

namespace CameraPool {

class CCameraPool;

/// The built-in plug-in "CameraPool". Offers `ICameraStatusService`, `ICameraEnumerationService`,
/// `ICameraControlService`, `IDeviceProvider` and `IImageService`.
class CCameraPoolPlugin : public Core::Plugin::IPlugin
{
    Q_OBJECT

public:
    CCameraPoolPlugin();
    ~CCameraPoolPlugin() override;

    bool preInitialize(const QPointer<Core::Plugin::IPluginInitializer> &initializer) override;
    bool initialize() override;
    bool uninitialize(const QPointer<Core::Plugin::IPluginInitializer> &initializer) override;

private:
    std::unique_ptr<CCameraPool> m_pool;
};

} // namespace CameraPool
