// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "CGvcpSocket.h"

#include "GvcpMessage.h"

#include <arpa/inet.h>
#include <sys/socket.h>
#include <unistd.h>

#include <atomic>

#include <QtEndian>

namespace CameraPool {
namespace {

constexpr int LargestAnswer = 1024;

// A connected socket, unlike an unconnected one, is told that nobody listens.
int connectedSocket(const QByteArray &address)
{
    sockaddr_in target = {};
    target.sin_family = AF_INET;
    target.sin_port = qToBigEndian(GvcpMessage::Port);
    if (inet_pton(AF_INET, address.constData(), &target.sin_addr) != 1) {
        return -1;
    }
    const int handle = ::socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    if (handle >= 0
        && ::connect(handle, reinterpret_cast<const sockaddr *>(&target), sizeof target) != 0) {
        ::close(handle);
        return -1;
    }
    return handle;
}

} // namespace

CGvcpSocket::CGvcpSocket(const QString &address)
    : m_handle(connectedSocket(address.toLatin1()))
{}

CGvcpSocket::~CGvcpSocket()
{
    if (m_handle >= 0) {
        ::close(m_handle);
    }
}

bool CGvcpSocket::send(const QByteArray &question) const
{
    return m_handle >= 0
           && ::send(m_handle, question.constData(), size_t(question.size()), 0) == question.size();
}

std::optional<QByteArray> CGvcpSocket::receive() const
{
    QByteArray datagram(LargestAnswer, '\0');
    const ssize_t size = ::recv(m_handle, datagram.data(), size_t(datagram.size()), MSG_DONTWAIT);
    if (size < 0) {
        return {};
    }
    datagram.resize(int(size));
    return datagram;
}

// The protocol forbids 0.
quint16 CGvcpSocket::nextRequestId()
{
    static std::atomic<quint16> counter{0};
    quint16 id = ++counter;
    while (id == 0) {
        id = ++counter;
    }
    return id;
}

} // namespace CameraPool
