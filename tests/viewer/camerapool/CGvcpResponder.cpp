// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "CGvcpResponder.h"

#include <arpa/inet.h>
#include <poll.h>
#include <sys/eventfd.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <utility>

namespace {

constexpr quint16 GvcpPort = 3956;

int listeningSocket(const char *address)
{
    sockaddr_in own = {};
    own.sin_family = AF_INET;
    own.sin_port = htons(GvcpPort);
    inet_pton(AF_INET, address, &own.sin_addr);
    const int handle = ::socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    const int yes = 1;
    if (qstrcmp(address + qstrlen(address) - 4, ".255") == 0) {
        // Every camera hears a broadcast.
        ::setsockopt(handle, SOL_SOCKET, SO_REUSEADDR, &yes, sizeof yes);
        ::setsockopt(handle, SOL_SOCKET, SO_REUSEPORT, &yes, sizeof yes);
    }
    if (::bind(handle, reinterpret_cast<const sockaddr *>(&own), sizeof own) != 0) {
        ::close(handle);
        return -1;
    }
    return handle;
}

void put(QByteArray *answer, int offset, const QByteArray &bytes)
{
    answer->replace(8 + offset, bytes.size(), bytes);
}

} // namespace

CGvcpResponder::CGvcpResponder(Camera camera)
    : m_camera(std::move(camera))
    , m_sockets{listeningSocket(m_camera.address.constData()), listeningSocket("255.255.255.255"),
                listeningSocket("127.255.255.255")}
    , m_end(::eventfd(0, EFD_CLOEXEC))
    , m_thread([this] { run(); })
{}

CGvcpResponder::~CGvcpResponder()
{
    ::eventfd_write(m_end, 1);
    m_thread.join();
    for (const int socket : m_sockets) {
        ::close(socket);
    }
    ::close(m_end);
}

bool CGvcpResponder::isListening() const
{
    return std::all_of(m_sockets.begin(), m_sockets.end(), [](int socket) { return socket >= 0; });
}

void CGvcpResponder::run()
{
    std::vector<pollfd> waiting{{m_end, POLLIN, 0}};
    for (const int socket : m_sockets) {
        waiting.push_back({socket, POLLIN, 0});
    }
    while (::poll(waiting.data(), waiting.size(), -1) > 0 && waiting.front().revents == 0) {
        for (const pollfd &one : waiting) {
            if (one.revents != 0) {
                answer(one.fd);
            }
        }
    }
}

void CGvcpResponder::answer(int socket)
{
    QByteArray question(64, '\0');
    sockaddr_in asker = {};
    socklen_t askerSize = sizeof asker;
    const ssize_t size = ::recvfrom(socket, question.data(), size_t(question.size()), 0,
                                    reinterpret_cast<sockaddr *>(&asker), &askerSize);
    if (size < 8) {
        return;
    }
    question.resize(int(size));
    const bool isDirect = socket == m_sockets.front();
    if (isDirect && m_camera.onDirectQuestion && !m_camera.onDirectQuestion()) {
        return;
    }
    const QByteArray reply = answerTo(question);
    ::sendto(m_sockets.front(), reply.constData(), size_t(reply.size()), 0,
             reinterpret_cast<const sockaddr *>(&asker), askerSize);
}

// A discovery, or else what can only be the question for the control privilege register.
QByteArray CGvcpResponder::answerTo(const QByteArray &question) const
{
    QByteArray reply;
    if (question.at(3) == 0x02) {
        reply = discoveryAnswer();
    } else {
        const quint32 privilege = htonl(m_camera.privilege);
        reply = QByteArray::fromHex("0000008100040000")
                + QByteArray(reinterpret_cast<const char *>(&privilege), 4);
    }
    return reply.replace(6, 2, question.mid(6, 2));
}

QByteArray CGvcpResponder::discoveryAnswer() const
{
    QByteArray reply = QByteArray::fromHex("0000000300f80000") + QByteArray(0xf8, '\0');
    in_addr address = {};
    inet_pton(AF_INET, m_camera.address.constData(), &address);
    put(&reply, 0x0a, QByteArray::fromHex(m_camera.mac));
    put(&reply, 0x24, QByteArray(reinterpret_cast<const char *>(&address), 4));
    put(&reply, 0x48, "Ostrand");
    put(&reply, 0x68, "XQZ-2000");
    put(&reply, 0xd8, m_camera.serial);
    put(&reply, 0xe8, m_camera.userName);
    return reply;
}
