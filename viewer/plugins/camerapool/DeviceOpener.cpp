// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "DeviceOpener.h"

#include "AravisParser.h"
#include "CDeviceReleaser.h"
#include "CGvcpProbe.h"
#include "CSocketGuard.h"
#include "GvcpMessage.h"
#include "IpAddress.h"

#include <algorithm>
#include <future>
#include <memory>
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
// Directly, without Aravis' own search.
ArvDevice *openGigEAt(quint32 host, quint32 camera, GError **error)
{
    const GObjectPtr<GInetAddress> from(
        g_inet_address_new_from_string(qUtf8Printable(ipText(host))));
    const GObjectPtr<GInetAddress> to(
        g_inet_address_new_from_string(qUtf8Printable(ipText(camera))));
    return arv_gv_device_new(from.get(), to.get(), error);
}

bool isLoopback(quint32 address)
{
    return address >> 24 == 127;
}

// Nobody but the camera is believed, from the first answer on.
ArvDevice *openGigE(const CFoundCamera &found, GError **error)
{
    const quint32 camera = ipNumber(found.openId);
    const quint32 host = isLoopback(camera) ? camera : found.hostAddress;
    const CSocketGuard guard(SocketFilter::from({camera, GvcpMessage::Port}));
    GObjectPtr<ArvDevice> device(openGigEAt(host, camera, error));
    if (device && guard.sockets().empty()) {
        g_set_error_literal(error, ARV_DEVICE_ERROR, ARV_DEVICE_ERROR_UNKNOWN,
                            "strangers cannot be kept from its connection");
        return nullptr;
    }
    return device.release();
}

ArvDevice *openAny(const CFoundCamera &found, GError **error)
{
    GObjectPtr<ArvDevice> device(found.isGigE
                                     ? openGigE(found, error)
                                     : arv_open_device(qUtf8Printable(found.openId), error));
    if (device && arv_device_get_genicam(device.get()) && !isParsedOneAtATime()) {
        g_set_error_literal(error, ARV_DEVICE_ERROR, ARV_DEVICE_ERROR_UNKNOWN,
                            "its description cannot be kept apart from those of other cameras");
        return nullptr;
    }
    return device.release();
}

struct Outcome
{
    GObjectPtr<ArvDevice> device;
    CGError error;
};

using Opening = std::shared_future<std::shared_ptr<Outcome>>;

Opening beginOpening(const CFoundCamera &found)
{
    std::packaged_task<std::shared_ptr<Outcome>()> task([found] {
        auto outcome = std::make_shared<Outcome>();
        outcome->device.reset(openAny(found, outcome->error.out()));
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

// What Aravis goes on trying is waited for elsewhere.
[[noreturn]] void giveUp(const CFoundCamera &found, const Opening &opening,
                         CDeviceReleaser &releaser, const QString &why)
{
    releaser.await(found.identity(), [opening] { opening.get()->device.reset(); });
    throw COpenException(COpenException::Other, why.arg(found.displayName()));
}

GObjectPtr<ArvDevice> waitFor(const Opening &opening, const CFoundCamera &found,
                              const std::function<bool()> &isAnswering, CDeviceReleaser &releaser,
                              std::chrono::milliseconds limit)
{
    const auto end = std::chrono::steady_clock::now() + limit;
    while (opening.wait_for(std::min(Suspicion, limit)) != std::future_status::ready) {
        if (!isAnswering()) {
            giveUp(found, opening, releaser,
                   QStringLiteral("%1 does not answer: check its cable and power, then open it "
                                  "again"));
        }
        if (std::chrono::steady_clock::now() > end) {
            giveUp(
                found, opening, releaser,
                QStringLiteral("%1 cannot be opened: it answers, but does not come to the end of "
                               "its description; switch it off and on, then open it again"));
        }
    }
    return std::move(opening.get()->device);
}

} // namespace

QSharedPointer<CDevice> openDevice(const CFoundCamera &found,
                                   const Core::CameraPoolComponents::CameraInfoPtr &info,
                                   std::function<void()> onLost, CDeviceReleaser &releaser,
                                   std::chrono::milliseconds limit)
{
    const Opening opening = beginOpening(found);
    const auto isAnswering = questionTo(found);
    GObjectPtr<ArvDevice> device = waitFor(opening, found, isAnswering, releaser, limit);
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
