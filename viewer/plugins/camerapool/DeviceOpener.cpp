// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "DeviceOpener.h"

#include <utility>

namespace CameraPool {
namespace {

[[noreturn]] void throwInUse(const QString &name)
{
    throw COpenException(COpenException::InUse,
                         QStringLiteral("%1 is in use: another program controls it; close the "
                                        "camera there, then open it here again")
                             .arg(name));
}

[[noreturn]] void throwFailed(const QString &name, const CGError &error)
{
    if (error.is(ARV_DEVICE_ERROR, ARV_DEVICE_ERROR_PROTOCOL_ERROR_ACCESS_DENIED)
        || error.is(ARV_DEVICE_ERROR, ARV_DEVICE_ERROR_NOT_CONTROLLER)) {
        throwInUse(name);
    }
    throw COpenException(COpenException::Other,
                         QStringLiteral("%1 cannot be opened: %2; check its cable and power, then "
                                        "open it again")
                             .arg(name, error.message()));
}

// By address and not by id: what Aravis knows of an id may come from an interface that is gone.
// Directly, without Aravis' own search, which would broadcast.
ArvDevice *openGigE(const QString &address, GError **error)
{
    const QByteArray bytes = address.toLatin1();
    const GObjectPtr<GInetAddress> target(g_inet_address_new_from_string(bytes.constData()));
    if (target && g_inet_address_get_is_loopback(target.get())) {
        return arv_gv_device_new(target.get(), target.get(), error);
    }
    return arv_open_device(bytes.constData(), error);
}

ArvDevice *openAny(const CFoundCamera &found, GError **error)
{
    return found.isGigE ? openGigE(found.openId, error)
                        : arv_open_device(found.openId.toUtf8().constData(), error);
}

} // namespace

QSharedPointer<CDevice> openDevice(const CFoundCamera &found,
                                   const Core::CameraPoolComponents::CameraInfoPtr &info,
                                   std::function<void()> onLost)
{
    CGError error;
    GObjectPtr<ArvDevice> device(openAny(found, error.out()));
    if (!device) {
        throwFailed(info->displayName(), error);
    }
    // A second program gets a connection too, but one that may only read.
    if (ARV_IS_GV_DEVICE(device.get())
        && !arv_gv_device_is_controller(ARV_GV_DEVICE(device.get()))) {
        throwInUse(info->displayName());
    }
    if (!arv_device_get_genicam(device.get())) {
        throw COpenException(COpenException::Other,
                             QStringLiteral("%1 cannot be opened: its description of features "
                                            "cannot be read; update the camera's firmware")
                                 .arg(info->displayName()));
    }
    arv_device_set_range_check_policy(device.get(), ARV_RANGE_CHECK_POLICY_ENABLE);
    arv_device_set_access_check_policy(device.get(), ARV_ACCESS_CHECK_POLICY_ENABLE);
    return QSharedPointer<CDevice>::create(info, std::move(device), std::move(onLost));
}

} // namespace CameraPool
