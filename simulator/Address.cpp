// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "Address.h"

#include <arpa/inet.h>
#include <dirent.h>
#include <ifaddrs.h>
#include <net/if.h>
#include <netinet/in.h>
#include <sys/socket.h>

#include <cstdlib>
#include <memory>
#include <stdexcept>

namespace Simulator {

namespace {

// Host byte order; 0 for a text that is no address.
std::uint32_t parsed(const std::string &address)
{
    in_addr result{};
    return inet_pton(AF_INET, address.c_str(), &result) == 1 ? ntohl(result.s_addr) : 0;
}

bool isBoundTo(int descriptor, std::uint32_t address)
{
    sockaddr_in name{};
    socklen_t size = sizeof name;
    int type = 0;
    socklen_t typeSize = sizeof type;
    return getsockname(descriptor, reinterpret_cast<sockaddr *>(&name), &size) == 0
           && name.sin_family == AF_INET && ntohs(name.sin_port) == ControlPort
           && ntohl(name.sin_addr.s_addr) == address
           && getsockopt(descriptor, SOL_SOCKET, SO_TYPE, &type, &typeSize) == 0
           && type == SOCK_DGRAM;
}

} // namespace

bool isLoopbackAddress(const std::string &address)
{
    return parsed(address) >> 24 == 127;
}

bool isAddressConfigured(const std::string &address)
{
    ifaddrs *list = nullptr;
    if (getifaddrs(&list) != 0) {
        return false;
    }
    const std::unique_ptr<ifaddrs, void (*)(ifaddrs *)> guard(list, freeifaddrs);
    for (const ifaddrs *entry = list; entry; entry = entry->ifa_next) {
        const auto *name = reinterpret_cast<const sockaddr_in *>(entry->ifa_addr);
        if (name && name->sin_family == AF_INET && (entry->ifa_flags & IFF_UP) != 0
            && ntohl(name->sin_addr.s_addr) == parsed(address)) {
            return true;
        }
    }
    return false;
}

void requireConfigured(const std::string &address)
{
    if (!isAddressConfigured(address)) {
        throw std::runtime_error("no interface carries the address " + address
                                 + ": as root run ip link set lo up; ip addr add " + address
                                 + "/8 dev lo");
    }
}

bool ownsControlPort(const std::string &address)
{
    const std::unique_ptr<DIR, int (*)(DIR *)> folder(opendir("/proc/self/fd"), closedir);
    if (!folder) {
        return false;
    }
    while (const dirent *entry = readdir(folder.get())) {
        if (entry->d_name[0] != '.' && isBoundTo(std::atoi(entry->d_name), parsed(address))) {
            return true;
        }
    }
    return false;
}

} // namespace Simulator
