// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "CAddressHold.h"

#include "Address.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <stdexcept>

namespace Simulator {

namespace {

[[noreturn]] void fail(const std::string &address, int code)
{
    if (code == EADDRINUSE) {
        throw std::runtime_error("address " + address
                                 + " is taken by another camera: end that one or choose another"
                                   " with --address");
    }
    throw std::runtime_error("address " + address + " cannot be used (" + std::strerror(code)
                             + "): choose another with --address");
}

} // namespace

CAddressHold::CAddressHold(const std::string &address)
    : m_socket(socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0))
{
    sockaddr_in name{};
    name.sin_family = AF_INET;
    name.sin_port = htons(ControlPort);
    inet_pton(AF_INET, address.c_str(), &name.sin_addr);
    // Packets for an absent camera need no room.
    const int room = 0;
    setsockopt(m_socket, SOL_SOCKET, SO_RCVBUF, &room, sizeof room);
    if (bind(m_socket, reinterpret_cast<const sockaddr *>(&name), sizeof name) != 0) {
        const int code = errno;
        close(m_socket);
        fail(address, code);
    }
}

CAddressHold::~CAddressHold()
{
    close(m_socket);
}

} // namespace Simulator
