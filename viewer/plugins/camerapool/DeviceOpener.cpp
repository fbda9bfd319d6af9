// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "DeviceOpener.h"

#include "CDeviceReleaser.h"
#include "CGvcpProbe.h"
#include "CSocketGuard.h"
#include "GvcpMessage.h"
#include "IpAddress.h"

#include <chrono>
#include <future>
#include <memory>
#include <string>
#include <thread>
#include <utility>

namespace CameraPool {
namespace {

// How long an opening may take before the camera is asked whether it is still there, and then from
// time to time.
constexpr std::chrono::milliseconds Suspicion(500);

[[noreturn]] void throwInUse(const QString &name)
{
    throw COpenException(COpenException::InUse,
                         QStringLiteral("%1 is in use: another program controls it; close the "
                                        "camera there, then open it here again")
                             .arg(name));
}

// Who holds a camera alone keeps others from reading it, too; but so may the camera itself.
[[noreturn]] void throwDenied(const QString &name, const CGError &error)
{
    throw COpenException(COpenException::InUse,
                         QStringLiteral("%1 denies access (%2): if another program has it open, "
                                        "close it there, else switch it off and on; then open it "
                                        "again")
                             .arg(name, error.message()));
}

// A camera that refuses something is connected and switched on.
bool isAnswer(const CGError &error)
{
    for (const int code :
         {ARV_DEVICE_ERROR_PROTOCOL_ERROR, ARV_DEVICE_ERROR_PROTOCOL_ERROR_NOT_IMPLEMENTED,
          ARV_DEVICE_ERROR_PROTOCOL_ERROR_INVALID_PARAMETER,
          ARV_DEVICE_ERROR_PROTOCOL_ERROR_INVALID_ADDRESS,
          ARV_DEVICE_ERROR_PROTOCOL_ERROR_WRITE_PROTECT,
          ARV_DEVICE_ERROR_PROTOCOL_ERROR_BAD_ALIGNMENT, ARV_DEVICE_ERROR_PROTOCOL_ERROR_BUSY}) {
        if (error.is(ARV_DEVICE_ERROR, code)) {
            return true;
        }
    }
    return false;
}

[[noreturn]] void throwFailed(const QString &name, const CGError &error)
{
    if (error.is(ARV_DEVICE_ERROR, ARV_DEVICE_ERROR_NOT_CONTROLLER)) {
        throwInUse(name);
    }
    if (error.is(ARV_DEVICE_ERROR, ARV_DEVICE_ERROR_PROTOCOL_ERROR_ACCESS_DENIED)) {
        throwDenied(name, error);
    }
    const QString failed = isAnswer(error)
                               ? QStringLiteral("%1 cannot be opened, since it refuses: %2; switch "
                                                "it off and on, then open it again")
                               : QStringLiteral("%1 cannot be opened: %2; check its cable and "
                                                "power, then open it again");
    throw COpenException(COpenException::Other, failed.arg(name, error.message()));
}

// By address and not by id: what Aravis knows of an id may come from an interface that is gone.
// Directly, without Aravis' own search, which would broadcast. What is not on loopback waits for a
// broadcast that is under way, a second at most: Aravis (0.8.26) holds one lock for both.
ArvDevice *openGigEAt(const std::string &address, GError **error)
{
    const GObjectPtr<GInetAddress> target(g_inet_address_new_from_string(address.c_str()));
    if (target && g_inet_address_get_is_loopback(target.get())) {
        return arv_gv_device_new(target.get(), target.get(), error);
    }
    return arv_open_device(address.c_str(), error);
}

// Nobody but the camera is believed, from the first answer on.
ArvDevice *openGigE(const std::string &address, GError **error)
{
    const quint32 number = ipNumber(QString::fromStdString(address));
    const CSocketGuard guard(SocketFilter::from({number, GvcpMessage::Port}));
    GObjectPtr<ArvDevice> device(openGigEAt(address, error));
    if (device && guard.sockets().empty()) {
        g_set_error_literal(error, ARV_DEVICE_ERROR, ARV_DEVICE_ERROR_UNKNOWN,
                            "strangers cannot be kept from its connection");
        return nullptr;
    }
    return device.release();
}

ArvDevice *openAny(bool isGigE, const std::string &id, GError **error)
{
    return isGigE ? openGigE(id, error) : arv_open_device(id.c_str(), error);
}

struct Outcome
{
    GObjectPtr<ArvDevice> device;
    CGError error;
};

using Opening = std::shared_future<std::shared_ptr<Outcome>>;

Opening beginOpening(const CFoundCamera &found)
{
    std::packaged_task<std::shared_ptr<Outcome>()> task(
        [isGigE = found.isGigE, id = found.openId.toStdString()] {
            auto outcome = std::make_shared<Outcome>();
            outcome->device.reset(openAny(isGigE, id, outcome->error.out()));
            return outcome;
        });
    const Opening opening = task.get_future().share();
    std::thread(std::move(task)).detach();
    return opening;
}

// Aravis knows of no other way to ask a camera that is not GigE than by its connection.
std::function<bool()> questionTo(const CFoundCamera &found)
{
    if (!found.isGigE) {
        return [] { return true; };
    }
    return [address = found.openId] { return CGvcpProbe(address).isAnswering(); };
}

} // namespace

QSharedPointer<CDevice> openDevice(const CFoundCamera &found,
                                   const Core::CameraPoolComponents::CameraInfoPtr &info,
                                   std::function<void()> onLost, CDeviceReleaser &releaser)
{
    const Opening opening = beginOpening(found);
    const auto isAnswering = questionTo(found);
    while (opening.wait_for(Suspicion) != std::future_status::ready) {
        if (!isAnswering()) {
            releaser.await(found.identity(), [opening] { opening.get()->device.reset(); });
            throw COpenException(COpenException::Other,
                                 QStringLiteral("%1 does not answer: check its cable and power, "
                                                "then open it again")
                                     .arg(found.displayName()));
        }
    }
    GObjectPtr<ArvDevice> device = std::move(opening.get()->device);
    if (!device) {
        throwFailed(found.displayName(), opening.get()->error);
    }
    // A second program gets a connection too, but one that may only read.
    if (ARV_IS_GV_DEVICE(device.get())
        && !arv_gv_device_is_controller(ARV_GV_DEVICE(device.get()))) {
        throwInUse(found.displayName());
    }
    if (!arv_device_get_genicam(device.get())) {
        throw COpenException(COpenException::Other,
                             QStringLiteral("%1 cannot be opened: its description of features "
                                            "cannot be read; update the camera's firmware")
                                 .arg(found.displayName()));
    }
    arv_device_set_range_check_policy(device.get(), ARV_RANGE_CHECK_POLICY_ENABLE);
    arv_device_set_access_check_policy(device.get(), ARV_ACCESS_CHECK_POLICY_ENABLE);
    return QSharedPointer<CDevice>::create(info, std::move(device), std::move(onLost), isAnswering);
}

} // namespace CameraPool
