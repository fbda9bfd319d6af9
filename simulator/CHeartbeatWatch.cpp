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

// A discovery request of the control protocol; everybody may send one.
constexpr std::array<unsigned char, 8> Greeting{0x42, 0x01, 0x00, 0x02, 0x00, 0x00, 0x00, 0x01};

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

CHeartbeatWatch::CHeartbeatWatch(const std::string &address, ArvFakeCamera *camera)
    : m_camera(camera)
    , m_socket(connectedSocket(address))
    , m_timer(g_timeout_add(Interval, onTime, this))
{}

CHeartbeatWatch::~CHeartbeatWatch()
{
    g_source_remove(m_timer);
    close(m_socket);
}

gboolean CHeartbeatWatch::onTime(gpointer self)
{
    static_cast<CHeartbeatWatch *>(self)->look();
    return G_SOURCE_CONTINUE;
}

void CHeartbeatWatch::look()
{
    if (arv_fake_camera_get_control_channel_privilege(m_camera) != 0) {
        speak();
    } else if (arv_fake_camera_get_acquisition_status(m_camera) != 0) {
        arv_fake_camera_write_register(m_camera, ARV_FAKE_CAMERA_REGISTER_ACQUISITION, 0);
    }
}

// The answer does not matter, but must not fill the socket.
void CHeartbeatWatch::speak()
{
    std::array<char, 512> answer{};
    while (recv(m_socket, answer.data(), answer.size(), 0) > 0) {
    }
    send(m_socket, Greeting.data(), Greeting.size(), 0);
}

} // namespace Simulator
