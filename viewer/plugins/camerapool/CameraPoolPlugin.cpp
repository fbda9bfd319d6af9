// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "CameraPoolPlugin.h"

#include "CCameraControl.h"
#include "CCameraPool.h"
#include "CCameraStatus.h"
#include "CDeviceStore.h"

namespace CameraPool {

using Core::Plugin::IPluginInitializer;

CCameraPoolPlugin::CCameraPoolPlugin() = default;

CCameraPoolPlugin::~CCameraPoolPlugin() = default;

bool CCameraPoolPlugin::preInitialize(const QPointer<IPluginInitializer> &initializer)
{
    m_pool = std::make_unique<CCameraPool>(createCameraSearch(), CPoolTiming());
    initializer->addService(m_pool->status());
    initializer->addService(m_pool->enumeration());
    initializer->addService(m_pool->control());
    initializer->addService(m_pool->devices());
    initializer->addService(m_pool->images());
    connect(initializer, &IPluginInitializer::initializationDone, this,
            [this] { m_pool->beginSearching(); });
    return true;
}

bool CCameraPoolPlugin::initialize()
{
    m_pool->start();
    return true;
}

bool CCameraPoolPlugin::uninitialize(const QPointer<IPluginInitializer> &initializer)
{
    if (!m_pool) {
        return true;
    }
    m_pool->stop();
    if (initializer) {
        initializer->removeService(m_pool->images());
        initializer->removeService(m_pool->devices());
        initializer->removeService(m_pool->control());
        initializer->removeService(m_pool->enumeration());
        initializer->removeService(m_pool->status());
    }
    return true;
}

} // namespace CameraPool
