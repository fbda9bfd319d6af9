// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "GuardedStream.h"

#include "CSocketGuard.h"
#include "IpAddress.h"

#include <sys/socket.h>

#include <algorithm>

namespace CameraPool {
namespace {

// The register by which a camera tells the port that its first stream comes from (GigE Vision 1.2).
// It is 0 in a camera that does not.
constexpr guint64 StreamSourcePort = 0x0d1c;

// More than fit into any receive buffer, each with what the system adds to it.
constexpr int MostDatagrams = 65536;

quint16 sourcePort(ArvDevice *device)
{
    guint32 value = 0;
    CGError error;
    return arv_device_read_register(device, StreamSourcePort, &value, error.out())
               ? quint16(value & 0xffffU)
               : quint16(0);
}

SocketFilter::FrameIds frameIds(ArvDevice *device)
{
    ArvGcNode *mode = arv_device_get_feature(device, "GevGVSPExtendedIDMode");
    CGError error;
    bool isExtended = false;
    if (ARV_IS_GC_BOOLEAN(mode)) {
        isExtended = arv_gc_boolean_get_value(ARV_GC_BOOLEAN(mode), error.out());
    } else if (ARV_IS_GC_ENUMERATION(mode)) {
        isExtended =
            qstrcmp(arv_gc_enumeration_get_string_value(ARV_GC_ENUMERATION(mode), error.out()),
                    "On")
            == 0;
    }
    return isExtended ? SocketFilter::FrameIds::Extended : SocketFilter::FrameIds::Short;
}

int socketOf(ArvGvStream *stream, const std::vector<int> &sockets)
{
    const quint16 port = arv_gv_stream_get_port(stream);
    const auto found = std::find_if(sockets.rbegin(), sockets.rend(),
                                    [&](int socket) { return localPort(socket) == port; });
    return found == sockets.rend() ? -1 : *found;
}

// Aravis enlarges the buffer by itself when the first image is under way, which is too late for
// that image: a camera sends it faster than a waiting thread gets its turn.
bool narrow(int socket, const SocketFilter::Program &program, int receiveBuffer)
{
    if (socket < 0 || !SocketFilter::attach(socket, program)) {
        return false;
    }
    for (int i = 0; i < MostDatagrams && ::recv(socket, nullptr, 0, MSG_DONTWAIT) >= 0; ++i) {
    }
    ::setsockopt(socket, SOL_SOCKET, SO_RCVBUF, &receiveBuffer, sizeof receiveBuffer);
    return true;
}

// Aravis asks for test packets and begins to listen before it can be known what to let through.
// These come from the camera at least, and nothing of them is copied as long as there are no
// buffers. Its thread is stopped while the rest is decided and what came until then is dropped.
bool guardImages(ArvDevice *device, ArvStream *stream, const std::vector<int> &sockets,
                 quint32 address, int receiveBuffer)
{
    const auto program = SocketFilter::imagesFrom({address, sourcePort(device)}, frameIds(device));
    arv_stream_stop_thread(stream, FALSE);
    const bool isGuarded = narrow(socketOf(ARV_GV_STREAM(stream), sockets), program, receiveBuffer);
    arv_stream_start_thread(stream);
    return isGuarded;
}

GObjectPtr<ArvStream> createGigEStream(ArvDevice *device, int receiveBuffer, GError **error)
{
    // A packet socket, which Aravis prefers where it has the right to, begins to listen some
    // 20 ms after the stream is made: a single image would be missed. It is not guarded either.
    arv_gv_device_set_stream_options(ARV_GV_DEVICE(device),
                                     ARV_GV_STREAM_OPTION_PACKET_SOCKET_DISABLED);
    const quint32 address = ipNumber(arv_gv_device_get_device_address(ARV_GV_DEVICE(device)));
    const CSocketGuard guard(SocketFilter::from({address, 0}));
    GObjectPtr<ArvStream> stream(arv_device_create_stream(device, nullptr, nullptr, error));
    if (stream && !guardImages(device, stream.get(), guard.sockets(), address, receiveBuffer)) {
        g_set_error_literal(error, ARV_DEVICE_ERROR, ARV_DEVICE_ERROR_UNKNOWN,
                            "strangers cannot be kept from its images");
        return {};
    }
    return stream;
}

} // namespace

GObjectPtr<ArvStream> createGuardedStream(ArvDevice *device, int receiveBuffer, GError **error)
{
    if (ARV_IS_GV_DEVICE(device)) {
        return createGigEStream(device, receiveBuffer, error);
    }
    return GObjectPtr<ArvStream>(arv_device_create_stream(device, nullptr, nullptr, error));
}

} // namespace CameraPool
