// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "GvspPackets.h"

#include <QDataStream>

namespace GvspPackets {

QByteArray packet(Content content, quint64 frame, quint32 number, const QByteArray &payload,
                  Ids ids)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    if (ids == Short) {
        stream << quint16(0) << quint16(frame) << quint32(quint32(content) << 24 | number);
    } else {
        stream << quint16(0) << quint16(0) << quint32((0x80U | quint32(content)) << 24) << frame
               << number;
    }
    return bytes + payload;
}

QByteArray leader(quint64 frame, quint32 width, quint32 height, Payload payload,
                  quint32 pixelFormat, Ids ids)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << quint16(0) << quint16(payload) << quint64(1) << pixelFormat << width << height
           << quint32(0) << quint32(0) << quint32(0);
    return packet(Leader, frame, 0, bytes, ids);
}

QByteArray trailer(quint64 frame, quint32 number, quint32 height, Payload payload, Ids ids)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << quint32(payload) << height;
    return packet(Trailer, frame, number, bytes, ids);
}

QList<QByteArray> image(quint64 frame, quint32 width, quint32 height, char value, Ids ids)
{
    const QByteArray pixels(int(width * height), value);
    const int size = ids == Short ? DataSize : DataSize - 12;
    QList<QByteArray> packets{leader(frame, width, height, Image, 0x01080001, ids)};
    quint32 number = 0;
    for (int offset = 0; offset < pixels.size(); offset += size) {
        packets.append(packet(Data, frame, ++number, pixels.mid(offset, size), ids));
    }
    packets.append(trailer(frame, ++number, height, Image, ids));
    return packets;
}

} // namespace GvspPackets
