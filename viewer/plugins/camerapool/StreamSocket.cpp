// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "StreamSocket.h"

#include <netinet/in.h>
#include <sys/socket.h>

#include <QDir>
#include <QtEndian>

namespace CameraPool {
namespace {

bool isUdpSocketAt(int handle, quint16 port)
{
    int type = 0;
    socklen_t size = sizeof type;
    if (::getsockopt(handle, SOL_SOCKET, SO_TYPE, &type, &size) != 0 || type != SOCK_DGRAM) {
        return false;
    }
    sockaddr_in address = {};
    size = sizeof address;
    return ::getsockname(handle, reinterpret_cast<sockaddr *>(&address), &size) == 0
           && address.sin_family == AF_INET && qFromBigEndian(address.sin_port) == port;
}

} // namespace

void enlargeReceiveBuffer(quint16 port, int bytes)
{
    const QStringList handles = QDir(QStringLiteral("/proc/self/fd")).entryList(QDir::System);
    for (const QString &name : handles) {
        const int handle = name.toInt();
        if (isUdpSocketAt(handle, port)) {
            ::setsockopt(handle, SOL_SOCKET, SO_RCVBUF, &bytes, sizeof bytes);
        }
    }
}

} // namespace CameraPool
