// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "CDevice.h"

#include "Logging.h"

#include <ParameterCollection/CParameterException.h>

#include <utility>

namespace CameraPool {
namespace {

// How long Aravis tries a single access before it gives up. It may take twice as long, when the
// heartbeat is trying at the same time.
constexpr std::chrono::milliseconds Patience(2500);

// How often a waiting thread looks whether the device was lost meanwhile.
constexpr std::chrono::milliseconds LookInterval(50);

} // namespace

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
    // Aravis also reports the loss of a connection that is being given back.
    if (m_isOpen && !m_isLost.exchange(true)) {
        qCWarning(lcCameraPool, "%s has stopped answering", qUtf8Printable(m_info->identity()));
        m_onLost();
    }
}

void CDevice::throwIfUnusable() const
{
    const QString name = m_info->displayName();
    if (m_isLost) {
        throw ParameterCollection::CParameterException(
            QStringLiteral("%1 is gone: check its cable and power, then open it again").arg(name));
    }
    if (!m_isOpen) {
        throw ParameterCollection::CParameterException(
            QStringLiteral("%1 is closed: open it again").arg(name));
    }
}

void CDevice::waitFor(const std::function<bool(std::chrono::milliseconds)> &isDone)
{
    const auto deadline = std::chrono::steady_clock::now() + Patience;
    do {
        throwIfUnusable();
        if (std::chrono::steady_clock::now() > deadline) {
            markLost();
        }
    } while (!isDone(LookInterval));
}

void CDevice::keepUntilClosed(std::shared_ptr<void> object)
{
    const std::lock_guard<std::mutex> lock(m_keptMutex);
    m_kept.push_back(std::move(object));
}

void CDevice::close()
{
    m_isOpen = false;
    m_thread.stop();
    std::vector<std::shared_ptr<void>> kept;
    {
        const std::lock_guard<std::mutex> lock(m_keptMutex);
        kept.swap(m_kept);
    }
    kept.clear();
    GObjectPtr<ArvDevice> device;
    {
        const std::lock_guard<CDeviceLock> lock(m_lock);
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
