// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "delivery/CurlDescriptors.h"

#include <fcntl.h>
#include <linux/sockios.h>
#include <sys/ioctl.h>
#include <sys/socket.h>
#include <unistd.h>

#include <filesystem>
#include <set>
#include <string>

namespace rui {

namespace {

// A local socket that an executed program would inherit.
bool isCandidate(int descriptor)
{
    sockaddr_storage address = {};
    socklen_t size = sizeof(address);
    return getsockname(descriptor, reinterpret_cast<sockaddr *>(&address), &size) == 0
           && address.ss_family == AF_UNIX && (fcntl(descriptor, F_GETFD) & FD_CLOEXEC) == 0;
}

std::set<int> candidates()
{
    std::set<int> found;
    std::error_code error;
    for (const auto &entry : std::filesystem::directory_iterator("/proc/self/fd", error)) {
        const int descriptor = std::stoi(entry.path().filename().string());
        const std::string target = std::filesystem::read_symlink(entry.path(), error).string();
        if (target.rfind("socket:", 0) == 0 && isCandidate(descriptor)) {
            found.insert(descriptor);
        }
    }
    return found;
}

// It is the end that is read, or the end that is written, of a pair with something in between.
bool carriesSomething(int descriptor)
{
    int unread = 0;
    int untaken = 0;
    return (ioctl(descriptor, FIONREAD, &unread) == 0 && unread > 0)
           || (ioctl(descriptor, SIOCOUTQ, &untaken) == 0 && untaken > 0);
}

template <typename Keep>
std::set<int> only(const std::set<int> &descriptors, Keep keep)
{
    std::set<int> kept;
    for (const int descriptor : descriptors) {
        if (keep(descriptor)) {
            kept.insert(descriptor);
        }
    }
    return kept;
}

// Other threads open sockets, too, so what is new need not be libcurl's. Its own are those that
// carry something after a wake-up, and nothing once it was taken.
void closeWakeUpOnExec(CURLM *multi, const std::set<int> &before)
{
    const auto fresh = only(candidates(), [&](int descriptor) {
        return before.count(descriptor) == 0 && !carriesSomething(descriptor);
    });
    curl_multi_wakeup(multi);
    const auto woken = only(fresh, carriesSomething);
    curl_multi_poll(multi, nullptr, 0, 0, nullptr);
    for (const int descriptor : only(woken, [](int one) { return !carriesSomething(one); })) {
        fcntl(descriptor, F_SETFD, FD_CLOEXEC);
    }
}

} // namespace

curl_socket_t openClosingSocket(void *, curlsocktype, curl_sockaddr *address)
{
    return socket(address->family, address->socktype | SOCK_CLOEXEC, address->protocol);
}

CURLM *newClosingMulti()
{
    const std::set<int> before = candidates();
    CURLM *multi = curl_multi_init();
    if (multi != nullptr) {
        closeWakeUpOnExec(multi, before);
    }
    return multi;
}

} // namespace rui
