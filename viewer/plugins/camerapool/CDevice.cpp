// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "CDevice.h"

#include "Logging.h"

#include <utility>

namespace CameraPool {

CDevice::CDevice(Core::CameraPoolComponents::CameraInfoPtr info, GObjectPtr<ArvDevice> device,
                 std::function<void()> onLost)
    : m_info(std::move(info))
    , m_onLost(std::move(onLost))
    , m_device(std::move(device))
    , m_counters(CStreamCounters::none(ARV_IS_GV_DEVICE(m_device.get())))
{
    g_signal_connect(m_device.get(), "control-lost", G_CALLBACK(&CDevice::onControlLost), this);
}

CDevice::~CDevice()
{
    close();
}

void CDevice::markLost()
{
    if (!m_isLost.exchange(true)) {
        qCWarning(lcCameraPool, "%s has stopped answering", qUtf8Printable(m_info->identity()));
        m_onLost();
    }
}

void CDevice::close()
{
    GObjectPtr<ArvDevice> device;
    {
        const std::lock_guard<std::recursive_timed_mutex> lock(m_lock);
        m_isOpen = false;
        device = std::move(m_device);
    }
    // Given back without the lock: of a dead device this takes seconds, which nobody shall wait
    // for. It also ends Aravis' heartbeat thread, so that onControlLost is not called any more.
    device.reset();
}

CStreamCounters CDevice::counters() const
{
    const std::lock_guard<std::mutex> lock(m_countersMutex);
    return m_counters;
}

void CDevice::noteCounters(const CStreamCounters &counters)
{
    const std::lock_guard<std::mutex> lock(m_countersMutex);
    m_counters = counters;
}

void CDevice::onControlLost(ArvDevice *, gpointer self)
{
    static_cast<CDevice *>(self)->markLost();
}

} // namespace CameraPool
