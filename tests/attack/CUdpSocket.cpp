// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "CUdpSocket.h"

#include <arpa/inet.h>
#include <sys/socket.h>
#include <unistd.h>

#include <utility>

namespace {

constexpr int LargestDatagram = 65536;

sockaddr_in socketAddress(const QByteArray &address, quint16 port)
{
    sockaddr_in result = {};
    result.sin_family = AF_INET;
    result.sin_port = htons(port);
    inet_pton(AF_INET, address.constData(), &result.sin_addr);
    return result;
}

int boundSocket(const QByteArray &address, quint16 port)
{
    const sockaddr_in own = socketAddress(address, port);
    const int handle = ::socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    const int yes = 1;
    if (address.endsWith(".255")) {
        ::setsockopt(handle, SOL_SOCKET, SO_REUSEADDR, &yes, sizeof yes);
        ::setsockopt(handle, SOL_SOCKET, SO_REUSEPORT, &yes, sizeof yes);
    }
    if (::bind(handle, reinterpret_cast<const sockaddr *>(&own), sizeof own) != 0) {
        ::close(handle);
        return -1;
    }
    return handle;
}

} // namespace

CUdpSocket::CUdpSocket(const QByteArray &address, quint16 port)
    : m_handle(boundSocket(address, port))
{}

CUdpSocket::CUdpSocket(CUdpSocket &&other) noexcept
    : m_handle(std::exchange(other.m_handle, -1))
{}

CUdpSocket::~CUdpSocket()
{
    if (m_handle >= 0) {
        ::close(m_handle);
    }
}

quint16 CUdpSocket::port() const
{
    sockaddr_in own = {};
    socklen_t size = sizeof own;
    ::getsockname(m_handle, reinterpret_cast<sockaddr *>(&own), &size);
    return ntohs(own.sin_port);
}

bool CUdpSocket::send(const QByteArray &bytes, const QByteArray &address, quint16 port) const
{
    return send(bytes, socketAddress(address, port));
}

bool CUdpSocket::send(const QByteArray &bytes, const sockaddr_in &target) const
{
    return ::sendto(m_handle, bytes.constData(), size_t(bytes.size()), 0,
                    reinterpret_cast<const sockaddr *>(&target), sizeof target)
           == bytes.size();
}

std::optional<CUdpSocket::Datagram> CUdpSocket::receive() const
{
    Datagram datagram{QByteArray(LargestDatagram, '\0'), {}};
    socklen_t size = sizeof datagram.sender;
    const ssize_t count =
        ::recvfrom(m_handle, datagram.bytes.data(), size_t(datagram.bytes.size()), MSG_DONTWAIT,
                   reinterpret_cast<sockaddr *>(&datagram.sender), &size);
    if (count < 0) {
        return {};
    }
    datagram.bytes.truncate(int(count));
    return datagram;
}
