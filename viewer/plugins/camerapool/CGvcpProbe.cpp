// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "CGvcpProbe.h"

#include "GvcpMessage.h"

#include <poll.h>

#include <QDeadlineTimer>

namespace CameraPool {
namespace {

// As long as a whole GigE Vision discovery takes: the standard gives a camera one second.
constexpr int AnswerTimeoutMs = 1000;

} // namespace

CGvcpProbe::CGvcpProbe(const QString &address)
    : m_socket(address)
{}

bool CGvcpProbe::isAnswering() const
{
    return answersOnce() || answersOnce();
}

// Skips what is no answer to this request, such as a late answer to an earlier one.
bool CGvcpProbe::answersOnce() const
{
    const quint16 requestId = CGvcpSocket::nextRequestId();
    if (!m_socket.send(GvcpMessage::discovery(requestId))) {
        return false;
    }
    const QDeadlineTimer deadline(AnswerTimeoutMs);
    pollfd waiting = {m_socket.handle(), POLLIN, 0};
    while (::poll(&waiting, 1, int(deadline.remainingTime())) > 0) {
        const auto datagram = m_socket.receive();
        if (!datagram) {
            return false;
        }
        if (GvcpMessage::requestId(*datagram) == requestId) {
            return true;
        }
    }
    return false;
}

} // namespace CameraPool
