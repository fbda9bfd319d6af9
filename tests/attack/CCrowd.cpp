// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "CCrowd.h"

#include <netinet/in.h>
#include <poll.h>
#include <sys/eventfd.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <cstring>
#include <utility>

#include <QtEndian>

namespace {

constexpr quint32 FirstAddress = 0x7f010001;

int listeningSocket()
{
    sockaddr_in own = {};
    own.sin_family = AF_INET;
    own.sin_port = htons(3956);
    const int handle = ::socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    const int yes = 1;
    ::setsockopt(handle, IPPROTO_IP, IP_PKTINFO, &yes, sizeof yes);
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

QByteArray bytesOf(quint32 value)
{
    const quint32 bigEndian = qToBigEndian(value);
    return {reinterpret_cast<const char *>(&bigEndian), int(sizeof bigEndian)};
}

} // namespace

CCrowd::CCrowd(int count, Serial serial)
    : m_count(count)
    , m_serial(std::move(serial))
    , m_handle(listeningSocket())
    , m_end(::eventfd(0, EFD_CLOEXEC))
    , m_thread([this] { run(); })
{}

CCrowd::~CCrowd()
{
    ::eventfd_write(m_end, 1);
    m_thread.join();
    ::close(m_handle);
    ::close(m_end);
}

void CCrowd::run()
{
    std::array<pollfd, 2> waiting{{{m_end, POLLIN, 0}, {m_handle, POLLIN, 0}}};
    while (::poll(waiting.data(), waiting.size(), -1) > 0 && waiting.front().revents == 0) {
        answer();
    }
}

void CCrowd::answer()
{
    QByteArray question(64, '\0');
    sockaddr_in asker = {};
    alignas(cmsghdr) std::array<char, 256> control{};
    iovec part = {question.data(), size_t(question.size())};
    msghdr header = {&asker, sizeof asker, &part, 1, control.data(), control.size(), 0};
    const ssize_t size = ::recvmsg(m_handle, &header, 0);
    const cmsghdr *info = CMSG_FIRSTHDR(&header);
    if (size < 8 || !info) {
        return;
    }
    in_pktinfo where = {};
    std::memcpy(&where, CMSG_DATA(info), sizeof where);
    const quint32 asked = ntohl(where.ipi_addr.s_addr);
    if (question.at(3) != 0x02) {
        send(QByteArray::fromHex("000000810004") + question.mid(6, 2) + bytesOf(0), &asker, asked);
    } else if (asked == INADDR_BROADCAST) {
        announceAll(question, &asker);
    } else if (asked >= FirstAddress && asked < FirstAddress + quint32(m_count)) {
        send(discoveryAnswer(question, int(asked - FirstAddress)), &asker, asked);
    }
}

void CCrowd::announceAll(const QByteArray &question, const void *asker)
{
    for (int index = 0; index < m_count; ++index) {
        send(discoveryAnswer(question, index), asker, FirstAddress + quint32(index));
    }
}

QByteArray CCrowd::discoveryAnswer(const QByteArray &question, int index) const
{
    QByteArray answer =
        QByteArray::fromHex("0000000300f8") + question.mid(6, 2) + QByteArray(0xf8, '\0');
    put(&answer, 0x0a, QByteArray::fromHex("0200") + bytesOf(quint32(index)));
    put(&answer, 0x24, bytesOf(FirstAddress + quint32(index)));
    put(&answer, 0x48, "Ostrand");
    put(&answer, 0x68, "XQZ-2000");
    put(&answer, 0xd8, m_serial(index));
    return answer;
}

void CCrowd::send(const QByteArray &bytes, const void *asker, quint32 from) const
{
    alignas(cmsghdr) std::array<char, CMSG_SPACE(sizeof(in_pktinfo))> control{};
    iovec part = {const_cast<char *>(bytes.data()), size_t(bytes.size())};
    msghdr header = {const_cast<void *>(asker),
                     sizeof(sockaddr_in),
                     &part,
                     1,
                     control.data(),
                     control.size(),
                     0};
    cmsghdr *info = CMSG_FIRSTHDR(&header);
    info->cmsg_level = IPPROTO_IP;
    info->cmsg_type = IP_PKTINFO;
    info->cmsg_len = CMSG_LEN(sizeof(in_pktinfo));
    in_pktinfo where = {};
    where.ipi_spec_dst.s_addr = htonl(from);
    std::memcpy(CMSG_DATA(info), &where, sizeof where);
    ::sendmsg(m_handle, &header, 0);
}
