// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "CUsbSearch.h"

#include "LeftBehind.h"
#include "Logging.h"

#include <arv.h>

#include <chrono>
#include <mutex>
#include <thread>
#include <utility>

namespace CameraPool {
namespace {

// A search of USB takes some milliseconds for each device.
constexpr std::chrono::seconds Patience(2);

// Aravis' own search of the network (0.8.26) restarts its second with each datagram that arrives,
// so that a device can keep it going for ever, and opens a socket for each interface.
void keepAravisFromTheNetwork()
{
    static std::once_flag once;
    std::call_once(once, [] { arv_disable_interface("GigEVision"); });
}

QString text(const char *value)
{
    return QString::fromUtf8(value).trimmed();
}

CFoundCamera describe(unsigned int index)
{
    CFoundCamera camera;
    camera.vendor = text(arv_get_device_vendor(index));
    camera.model = text(arv_get_device_model(index));
    camera.serial = text(arv_get_device_serial_nbr(index));
    camera.isGigE = false;
    // There is nobody to ask who could tell more.
    camera.isNameKnown = true;
    camera.isControlKnown = true;
    camera.openId = QString::fromUtf8(arv_get_device_id(index));
    return camera;
}

QVector<CFoundCamera> searchOnce()
{
    arv_update_device_list();
    QVector<CFoundCamera> cameras;
    for (unsigned int i = 0; i < arv_get_n_devices(); ++i) {
        cameras.append(describe(i));
    }
    return cameras;
}

} // namespace

CUsbSearch::CUsbSearch()
{
    keepAravisFromTheNetwork();
}

CUsbSearch::~CUsbSearch()
{
    if (m_underWay.valid() && m_underWay.wait_for(Patience) != std::future_status::ready) {
        noteLeftBehind(QStringLiteral("the search for cameras at USB"));
    }
}

QVector<CFoundCamera> CUsbSearch::search()
{
    if (!m_underWay.valid()) {
        std::packaged_task<Found()> task(
            [] { return std::make_shared<QVector<CFoundCamera>>(searchOnce()); });
        m_underWay = task.get_future().share();
        std::thread(std::move(task)).detach();
    }
    const auto patience = m_isLate ? std::chrono::seconds(0) : Patience;
    if (m_underWay.wait_for(patience) == std::future_status::ready) {
        m_last = *m_underWay.get();
        m_underWay = {};
        m_isLate = false;
    } else if (!std::exchange(m_isLate, true)) {
        qCWarning(lcCameraPool, "a device at USB keeps the search for cameras waiting: unplug the "
                                "devices at USB one after the other to find it");
    }
    return m_last;
}

} // namespace CameraPool
