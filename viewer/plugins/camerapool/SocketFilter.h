// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <linux/filter.h>

#include <vector>

#include <QtGlobal>

namespace CameraPool {

/// Programs by which the system throws away what a UDP socket shall not receive, before anybody
/// reads it (classic BPF; it needs no rights). A datagram that a program does not expect is thrown
/// away: unknown kinds as well as wrong ones. Pure functions but for `attach`.
namespace SocketFilter {

using Program = std::vector<sock_filter>;

/// From where datagrams count.
struct Sender
{
    quint32 address = 0; ///< IPv4, as a number: 0x7f000001 is 127.0.0.1
    quint16 port = 0;    ///< 0: any
};

/// How the packets of a stream number its frames. A stream keeps to one: Aravis (0.8.26) counts the
/// packets of a frame by the first and places them by each, and writes before or behind the image
/// if these differ.
enum class FrameIds {
    Short,   ///< 16 bits, in a header of 8 bytes
    Extended ///< 64 bits, in a header of 20 bytes (GigE Vision 2)
};

/// Every datagram of \a sender.
Program from(const Sender &sender);

/// Those packets of an image stream (GVSP) of \a sender that Aravis (0.8.26) reads no further than
/// they are long: leaders, data and trailers with a whole header. Aravis copies a negative length
/// where one is shorter, and never looks where the parts of a multi-part image end.
Program imagesFrom(const Sender &sender, FrameIds ids);

/// Lets \a socket receive what \a program lets through, and no longer what an earlier one did.
/// @return false if the system refuses; then the socket receives what it did before.
bool attach(int socket, const Program &program);

} // namespace SocketFilter
} // namespace CameraPool
