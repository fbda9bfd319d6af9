// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "CGvcpProbe.h"

#include "GvcpMessage.h"

#include <arpa/inet.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <atomic>

#include <QDeadlineTimer>
#include <QtEndian>

namespace CameraPool {
namespace {

// As long as a whole GigE Vision discovery takes: the standard gives a camera one second.
constexpr int AnswerTimeoutMs = 1000;
constexpr int LargestAnswer = 1024;

// The protocol forbids 0; one counter for all, so that a late answer never fits another question.
quint16 nextRequestId()
{
    static std::atomic<quint16> counter{0};
    quint16 id = ++counter;
    while (id == 0) {
        id = ++counter;
    }
    return id;
}

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

CGvcpProbe::CGvcpProbe(const QString &address)
    : m_address(address)
    , m_socket(connectedSocket(address.toLatin1()))
{}

CGvcpProbe::~CGvcpProbe()
{
    if (m_socket >= 0) {
        ::close(m_socket);
    }
}

bool CGvcpProbe::ask(CFoundCamera *camera)
{
    CFoundCamera found = *camera;
    const quint16 discoveryId = nextRequestId();
    if (!GvcpMessage::parseDiscoveryAnswer(discover(discoveryId), discoveryId, &found)) {
        return false;
    }
    const quint16 privilegeId = nextRequestId();
    GvcpMessage::parsePrivilegeAnswer(
        exchange(GvcpMessage::readControlPrivilege(privilegeId), privilegeId), privilegeId, &found);
    found.openId = m_address;
    *camera = found;
    return true;
}

bool CGvcpProbe::isAnswering()
{
    return !discover(nextRequestId()).isEmpty() || !discover(nextRequestId()).isEmpty();
}

QByteArray CGvcpProbe::discover(quint16 requestId) const
{
    return exchange(GvcpMessage::discovery(requestId), requestId);
}

QByteArray CGvcpProbe::exchange(const QByteArray &question, quint16 requestId) const
{
    if (m_socket < 0
        || ::send(m_socket, question.constData(), size_t(question.size()), 0) != question.size()) {
        return {};
    }
    return receive(requestId);
}

// Skips what is no answer to this request, such as a late answer to an earlier one.
QByteArray CGvcpProbe::receive(quint16 requestId) const
{
    const QDeadlineTimer deadline(AnswerTimeoutMs);
    pollfd waiting = {m_socket, POLLIN, 0};
    while (::poll(&waiting, 1, int(deadline.remainingTime())) > 0) {
        QByteArray datagram(LargestAnswer, '\0');
        const ssize_t size = ::recv(m_socket, datagram.data(), size_t(datagram.size()), 0);
        if (size < 0) {
            return {};
        }
        datagram.resize(int(size));
        if (datagram.size() >= 8
            && qFromBigEndian<quint16>(datagram.constData() + 6) == requestId) {
            return datagram;
        }
    }
    return {};
}

} // namespace CameraPool
