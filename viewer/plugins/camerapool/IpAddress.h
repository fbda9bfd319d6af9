// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <gio/gio.h>

#include <QString>

namespace CameraPool {

/// IPv4 addresses as numbers: 0x7f000001 is 127.0.0.1; 0 for what is none.
quint32 ipNumber(const QString &address);
quint32 ipNumber(GSocketAddress *address);
QString ipText(quint32 number);

/// The port that the UDP socket \a socket has; 0 for what is none, or has none any more.
quint16 localPort(int socket);

} // namespace CameraPool
