// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "CDevice.h"

#include "Logging.h"

#include <ParameterCollection/CParameterException.h>

#include <thread>
#include <utility>

namespace CameraPool {
namespace {

// How often a waiting thread looks whether the device was lost meanwhile.
constexpr std::chrono::milliseconds LookInterval(50);

// How long a device may keep a thread waiting before it is asked, and asked again, whether it is
// there: most answers come in some milliseconds.
constexpr std::chrono::milliseconds Suspicion(500);

// How long a device that says that it is there may keep a thread waiting: longer than a camera
// takes to save its settings, or to tell all of its features over a slow line.
constexpr std::chrono::seconds Patience(60);

// Longer than any signal of Aravis is on its way.
constexpr std::chrono::milliseconds SignalPatience(2000);

// Aravis' heartbeat thread (0.8.26) holds a reference while it emits "control-lost". Were that the
// last one, the thread would end the device and with it wait for its own end, which GLib answers by
// ending the program.
void waitForLastReference(ArvDevice *device)
{
    const auto deadline = std::chrono::steady_clock::now() + SignalPatience;
    while (g_atomic_int_get(&G_OBJECT(device)->ref_count) > 1
           && std::chrono::steady_clock::now() < deadline) {
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
}

} // namespace

CDevice::CDevice(Core::CameraPoolComponents::CameraInfoPtr info, GObjectPtr<ArvDevice> device,
                 std::function<void()> onLost, std::function<bool()> isAnswering)
    : m_info(std::move(info))
    , m_onLost(std::move(onLost))
    , m_isAnswering(std::move(isAnswering))
    , m_device(std::move(device))
    , m_name(m_info->displayName())
    , m_counters(CStreamCounters::none(ARV_IS_GV_DEVICE(m_device.get())))
{
    g_signal_connect(m_device.get(), "control-lost", G_CALLBACK(&CDevice::onControlLost), this);
}

CDevice::~CDevice()
{
    close();
}

QString CDevice::name() const
{
    const std::lock_guard<std::mutex> lock(m_nameMutex);
    return m_name;
}

void CDevice::setName(const QString &name)
{
    const std::lock_guard<std::mutex> lock(m_nameMutex);
    m_name = name;
}

void CDevice::markLost()
{
    // Aravis also reports the loss of a connection that is being given back.
    if (m_isOpen && !m_isLost.exchange(true)) {
        qCWarning(lcCameraPool, "%s has stopped answering", qUtf8Printable(name()));
        m_onLost();
    }
}

void CDevice::throwIfUnusable() const
{
    if (m_isLost) {
        throw ParameterCollection::CParameterException(
            QStringLiteral("%1 is gone: check its cable and power, then open it again")
                .arg(name()));
    }
    if (!m_isOpen) {
        throw ParameterCollection::CParameterException(
            QStringLiteral("%1 is closed: open it again").arg(name()));
    }
}

void CDevice::waitFor(const std::function<bool(std::chrono::milliseconds)> &isDone)
{
    using Clock = std::chrono::steady_clock;
    const Clock::time_point begin = Clock::now();
    Clock::time_point asked = begin;
    do {
        throwIfUnusable();
        if (Clock::now() > m_end.load()) {
            markLost();
        } else if (Clock::now() - asked > Suspicion) {
            if (Clock::now() - begin > Patience || !m_isAnswering()) {
                markLost();
            }
            asked = Clock::now();
        }
    } while (!isDone(LookInterval));
}

void CDevice::limitPatience(std::chrono::milliseconds patience)
{
    m_end = std::chrono::steady_clock::now() + patience;
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
    if (device) {
        g_signal_handlers_disconnect_by_data(device.get(), this);
        waitForLastReference(device.get());
    }
    // Given back without the lock: of a dead device this takes seconds, which nobody shall wait
    // for. It also ends Aravis' heartbeat thread.
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
