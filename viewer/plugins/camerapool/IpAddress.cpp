// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "IpAddress.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>

namespace CameraPool {

quint32 ipNumber(const QString &address)
{
    in_addr number = {};
    return ::inet_pton(AF_INET, qUtf8Printable(address), &number) == 1 ? ntohl(number.s_addr) : 0;
}

quint32 ipNumber(GSocketAddress *address)
{
    sockaddr_in native = {};
    const bool isIPv4 = g_socket_address_get_family(address) == G_SOCKET_FAMILY_IPV4
                        && g_socket_address_to_native(address, &native, sizeof native, nullptr);
    return isIPv4 ? ntohl(native.sin_addr.s_addr) : 0;
}

QString ipText(quint32 number)
{
    return QStringLiteral("%1.%2.%3.%4")
        .arg(number >> 24)
        .arg(number >> 16 & 0xffU)
        .arg(number >> 8 & 0xffU)
        .arg(number & 0xffU);
}

quint16 localPort(int socket)
{
    sockaddr_in own = {};
    socklen_t size = sizeof own;
    const bool isIPv4 = ::getsockname(socket, reinterpret_cast<sockaddr *>(&own), &size) == 0
                        && own.sin_family == AF_INET;
    return isIPv4 ? ntohs(own.sin_port) : quint16(0);
}

} // namespace CameraPool
