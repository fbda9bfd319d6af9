// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "CSearchSocket.h"

#include "GvcpMessage.h"

#include <ifaddrs.h>
#include <linux/errqueue.h>
#include <net/if.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <cstring>

namespace CameraPool {
namespace {

constexpr int LargestAnswer = 1024;

// For the answers of a thousand cameras at once, with what the system adds to each. The system may
// allow less.
constexpr int ReceiveBuffer = 2000000;

int openSocket()
{
    const int handle = ::socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    const int yes = 1;
    ::setsockopt(handle, SOL_SOCKET, SO_BROADCAST, &yes, sizeof yes);
    ::setsockopt(handle, SOL_SOCKET, SO_RCVBUF, &ReceiveBuffer, sizeof ReceiveBuffer);
    ::setsockopt(handle, IPPROTO_IP, IP_PKTINFO, &yes, sizeof yes);
    ::setsockopt(handle, IPPROTO_IP, IP_RECVERR, &yes, sizeof yes);
    return handle;
}

quint32 numberOf(const sockaddr *address)
{
    sockaddr_in native = {};
    std::memcpy(&native, address, sizeof native);
    return ntohl(native.sin_addr.s_addr);
}

struct Message
{
    std::array<char, LargestAnswer> bytes;
    alignas(cmsghdr) std::array<char, 512> control;
    sockaddr_in peer = {};
    iovec part = {bytes.data(), bytes.size()};
    msghdr header = {&peer, sizeof peer, &part, 1, control.data(), control.size(), 0};
};

quint32 hostAddressOf(msghdr *header)
{
    for (cmsghdr *info = CMSG_FIRSTHDR(header); info; info = CMSG_NXTHDR(header, info)) {
        if (info->cmsg_level == IPPROTO_IP && info->cmsg_type == IP_PKTINFO) {
            in_pktinfo where = {};
            std::memcpy(&where, CMSG_DATA(info), sizeof where);
            return ntohl(where.ipi_spec_dst.s_addr);
        }
    }
    return 0;
}

} // namespace

CSearchSocket::CSearchSocket()
    : m_handle(openSocket())
{}

CSearchSocket::~CSearchSocket()
{
    if (m_handle >= 0) {
        ::close(m_handle);
    }
}

// To everybody, and to everybody in the interface's own network: some cameras hear only one of
// them.
void CSearchSocket::broadcast(const QByteArray &question) const
{
    ifaddrs *interfaces = nullptr;
    if (::getifaddrs(&interfaces) != 0) {
        return;
    }
    for (const ifaddrs *one = interfaces; one; one = one->ifa_next) {
        const bool isUp = (one->ifa_flags & IFF_UP) != 0;
        if (!isUp || !one->ifa_addr || one->ifa_addr->sa_family != AF_INET || !one->ifa_netmask) {
            continue;
        }
        const quint32 own = numberOf(one->ifa_addr);
        const quint32 everybodyHere = own | ~numberOf(one->ifa_netmask);
        const quint32 index = ::if_nametoindex(one->ifa_name);
        sendFrom(question, INADDR_BROADCAST, index, own);
        if (everybodyHere != own) {
            sendFrom(question, everybodyHere, index, own);
        }
    }
    ::freeifaddrs(interfaces);
}

void CSearchSocket::send(const QByteArray &question, quint32 address) const
{
    sendFrom(question, address, 0, INADDR_ANY);
}

void CSearchSocket::sendFrom(const QByteArray &question, quint32 address, quint32 interface,
                             quint32 hostAddress) const
{
    Message message;
    message.peer.sin_family = AF_INET;
    message.peer.sin_port = htons(GvcpMessage::Port);
    message.peer.sin_addr.s_addr = htonl(address);
    message.part = {const_cast<char *>(question.data()), size_t(question.size())};
    in_pktinfo where = {};
    where.ipi_ifindex = int(interface);
    where.ipi_spec_dst.s_addr = htonl(hostAddress);
    message.header.msg_controllen = CMSG_SPACE(sizeof where);
    cmsghdr *info = CMSG_FIRSTHDR(&message.header);
    info->cmsg_level = IPPROTO_IP;
    info->cmsg_type = IP_PKTINFO;
    info->cmsg_len = CMSG_LEN(sizeof where);
    std::memcpy(CMSG_DATA(info), &where, sizeof where);
    // A second time, because the first may only fetch the news of an earlier question.
    if (::sendmsg(m_handle, &message.header, 0) < 0) {
        ::sendmsg(m_handle, &message.header, 0);
    }
}

bool CSearchSocket::wait(const QDeadlineTimer &deadline) const
{
    pollfd waiting = {m_handle, POLLIN, 0};
    return ::poll(&waiting, 1, int(deadline.remainingTime())) > 0;
}

std::optional<CSearchSocket::Datagram> CSearchSocket::receive() const
{
    for (;;) {
        if (const auto news = receiveNews()) {
            return news;
        }
        Message message;
        const ssize_t size = ::recvmsg(m_handle, &message.header, 0);
        if (size < 0 && errno != ECONNREFUSED) {
            return {};
        }
        if (size >= 0 && message.peer.sin_port == htons(GvcpMessage::Port)) {
            return Datagram{QByteArray(message.bytes.data(), int(size)),
                            ntohl(message.peer.sin_addr.s_addr), hostAddressOf(&message.header)};
        }
    }
}

std::optional<CSearchSocket::Datagram> CSearchSocket::receiveNews() const
{
    Message message;
    if (::recvmsg(m_handle, &message.header, MSG_ERRQUEUE) < 0) {
        return {};
    }
    return Datagram{{}, ntohl(message.peer.sin_addr.s_addr), 0};
}

} // namespace CameraPool
