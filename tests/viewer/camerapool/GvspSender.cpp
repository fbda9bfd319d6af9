// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "GvspSender.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <QDataStream>
#include <QtEndian>

namespace GvspSender {

namespace {

enum PacketFormat { Leader = 1, Trailer = 2, Data = 3 };

constexpr quint32 Mono8 = 0x01080001;

void writeHeader(QDataStream &packet, quint16 id, PacketFormat format, quint32 number)
{
    packet << quint16(0) << id << quint32(quint32(format) << 24 | number);
}

QByteArray leader(quint16 id, PayloadType type, quint32 width, quint32 height)
{
    QByteArray bytes;
    QDataStream packet(&bytes, QIODevice::WriteOnly);
    writeHeader(packet, id, Leader, 0);
    packet << quint16(0) << quint16(type) << quint64(1) << Mono8 << width << height << quint32(0)
           << quint32(0) << quint32(0);
    return bytes;
}

QByteArray payload(quint16 id, const QByteArray &data)
{
    QByteArray bytes;
    QDataStream packet(&bytes, QIODevice::WriteOnly);
    writeHeader(packet, id, Data, 1);
    return bytes + data;
}

QByteArray trailer(quint16 id, PayloadType type, quint32 height)
{
    QByteArray bytes;
    QDataStream packet(&bytes, QIODevice::WriteOnly);
    writeHeader(packet, id, Trailer, 2);
    packet << quint32(type) << height;
    return bytes;
}

} // namespace

bool send(quint16 port, quint16 id, PayloadType type, quint32 width, const QByteArray &data)
{
    sockaddr_in target = {};
    target.sin_family = AF_INET;
    target.sin_port = qToBigEndian(port);
    target.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    const int handle = ::socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    const quint32 height = quint32(data.size()) / width;
    bool isSent = handle >= 0;
    for (const QByteArray &packet :
         {leader(id, type, width, height), payload(id, data), trailer(id, type, height)}) {
        isSent = isSent
                 && ::sendto(handle, packet.constData(), std::size_t(packet.size()), 0,
                             reinterpret_cast<const sockaddr *>(&target), sizeof target)
                        == packet.size();
    }
    ::close(handle);
    return isSent;
}

} // namespace GvspSender
