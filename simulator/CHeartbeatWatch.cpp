// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "CHeartbeatWatch.h"

#include "Address.h"

#include <arpa/inet.h>
#include <arv.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>

namespace Simulator {

namespace {

constexpr guint Interval = 250; // milliseconds: half the shortest heartbeat

// Write the number 0 to the register of the acquisition command.
constexpr std::array<unsigned char, 16> StopRequest{
    0x42, 0x01, 0x00, 0x82, 0x00, 0x08, 0x00, 0x01, // header: write a register
    0x00, 0x00, 0x01, 0x24, 0x00, 0x00, 0x00, 0x00};
static_assert(ARV_FAKE_CAMERA_REGISTER_ACQUISITION == 0x124);

int connectedSocket(const std::string &address)
{
    const int result = socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    sockaddr_in name{};
    name.sin_family = AF_INET;
    name.sin_port = htons(ControlPort);
    inet_pton(AF_INET, address.c_str(), &name.sin_addr);
    connect(result, reinterpret_cast<const sockaddr *>(&name), sizeof name);
    return result;
}

} // namespace

CHeartbeatWatch::CHeartbeatWatch(const std::string &address)
    : m_socket(connectedSocket(address))
    , m_timer(g_timeout_add(Interval, onTime, this))
{}

CHeartbeatWatch::~CHeartbeatWatch()
{
    g_source_remove(m_timer);
    close(m_socket);
}

gboolean CHeartbeatWatch::onTime(gpointer self)
{
    static_cast<CHeartbeatWatch *>(self)->ask();
    return G_SOURCE_CONTINUE;
}

void CHeartbeatWatch::ask()
{
    // The answers do not matter, but must not fill the socket.
    std::array<char, 64> answer{};
    while (recv(m_socket, answer.data(), answer.size(), 0) > 0) {
    }
    send(m_socket, StopRequest.data(), StopRequest.size(), 0);
}

} // namespace Simulator
