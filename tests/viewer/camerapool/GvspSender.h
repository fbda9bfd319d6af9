// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

/// Sends images to a GigE Vision stream of this computer, as a camera does (GVSP).
namespace GvspSender {

/// What a frame says that it is, as the standard numbers it.
enum PayloadType { Image = 0x0001, ExtendedChunkData = 0x0005 };

/// Sends frame \a id with the pixels \a data, 8 bits each, to the stream that listens at \a port.
/// They must fit into one packet. @return false if the system refuses.
bool send(quint16 port, quint16 id, PayloadType type, quint32 width, const QByteArray &data);

} // namespace GvspSender
