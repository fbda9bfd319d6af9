// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "StreamCases.h"

#include "GvspPackets.h"

#include <algorithm>

#include <QRandomGenerator>

using namespace GvspPackets;

namespace {

using Packets = QList<QByteArray>;

Packets right(quint64 frame)
{
    return image(frame, 64, 100, 'r');
}

// A right image but for its leader.
Packets withLeader(quint64 frame, const QByteArray &wrong)
{
    Packets packets = right(frame);
    packets[0] = wrong;
    return packets;
}

Packets withSize(quint32 width, quint32 height)
{
    return withLeader(10, leader(10, width, height));
}

Packets withFormat(quint32 pixelFormat)
{
    return withLeader(20, leader(20, 64, 100, Image, pixelFormat));
}

Packets withType(quint16 type)
{
    return withLeader(30, leader(30, 64, 100, Payload(type)));
}

Packets withContent(quint8 content)
{
    Packets packets;
    for (quint32 number = 0; number < 8; ++number) {
        packets.append(packet(Content(content), 40, number, QByteArray(1400, 'k')));
    }
    return packets;
}

Packets withStatus(quint16 status)
{
    Packets packets = right(50);
    for (QByteArray &one : packets) {
        one[0] = char(status >> 8);
        one[1] = char(status & 0xff);
    }
    return packets;
}

Packets withNumber(Content content, quint32 number)
{
    return right(60).mid(0, 1) + Packets{packet(content, 60, number, QByteArray(1464, 'n'))}
           + right(60).mid(1);
}

Packets reversed()
{
    Packets packets = right(70);
    std::reverse(packets.begin(), packets.end());
    return packets;
}

Packets doubled()
{
    Packets packets;
    for (const QByteArray &one : right(71)) {
        packets.append(one);
        packets.append(one);
    }
    return packets;
}

Packets without(int index)
{
    Packets packets = right(72);
    packets.removeAt(index < 0 ? packets.size() + index : index);
    return packets;
}

Packets withDataOf(int size)
{
    return right(73).mid(0, 1)
           + Packets{packet(Data, 73, 1, QByteArray(size, 'd')),
                     packet(Data, 73, 5, QByteArray(size, 'd'))}
           + right(73).mid(5);
}

Packets begunAndLeft()
{
    Packets packets;
    for (quint64 frame = 100; frame < 1100; ++frame) {
        packets.append(leader(frame, 64, 100));
    }
    return packets;
}

Packets mixedUp()
{
    Packets packets;
    for (int index = 0; index < 7; ++index) {
        for (quint64 frame = 80; frame < 90; ++frame) {
            packets.append(right(frame).value(index));
        }
    }
    return packets;
}

Packets noise(int count, bool hasHeader)
{
    QRandomGenerator random(20261122);
    Packets packets;
    for (int i = 0; i < count; ++i) {
        QByteArray bytes(random.bounded(1, 1500), '\0');
        for (char &byte : bytes) {
            byte = char(random.bounded(256));
        }
        packets.append(
            hasHeader ? packet(Content(random.bounded(1, 4)), 90, quint32(random.bounded(8)), bytes)
                      : bytes);
    }
    return packets;
}

Packets flood()
{
    Packets packets;
    for (quint64 frame = 2000; frame < 4000; ++frame) {
        packets.append(right(frame));
    }
    return packets;
}

} // namespace

QList<StreamCase> streamCases()
{
    return {
        {"no pixels", withSize(0, 0)},
        {"wider than announced", withSize(65535, 100)},
        {"higher than announced", withSize(64, 65535)},
        {"the greatest dimensions", withSize(0xffffffff, 0xffffffff)},
        {"dimensions whose product is 0 in 32 bits", withSize(0x10000, 0x10000)},
        {"smaller than announced", withSize(2, 2)},
        {"pixel format 0", withFormat(0)},
        {"pixel format of a maker", withFormat(0x81080001)},
        {"the greatest pixel format", withFormat(0xffffffff)},
        {"pixels of 255 bits", withFormat(0x01ff0001)},
        {"pixels of no bits", withFormat(0x01000001)},
        {"colour that needs three times the bytes", withFormat(0x02180014)},
        {"packed pixels", withFormat(0x010c0006)},
        {"payload type 0", withType(0)},
        {"raw data", withType(2)},
        {"a file", withType(3)},
        {"chunk data", withType(4)},
        {"extended chunk data", withType(5)},
        {"a JPEG picture", withType(6)},
        {"zones", withType(9)},
        {"parts", withType(0x0a)},
        {"the greatest payload type", withType(0xffff)},
        {"content type 0", withContent(0)},
        {"all in one packet", withContent(4)},
        {"H.264", withContent(5)},
        {"content of zones", withContent(6)},
        {"content of parts", withContent(7)},
        {"content of containers", withContent(8)},
        {"the greatest content type", withContent(0x7f)},
        {"packets that are unavailable", withStatus(0x800c)},
        {"packets that are told to be sent again", withStatus(0x0100)},
        {"the greatest status", withStatus(0xffff)},
        {"data with the leader's number", withNumber(Data, 0)},
        {"data with the trailer's number", withNumber(Data, 6)},
        {"data with the greatest number", withNumber(Data, 0xffffff)},
        {"trailer with the greatest number", withNumber(Trailer, 0xffffff)},
        {"leader with the greatest number", withNumber(Leader, 0xffffff)},
        {"frame number 0", right(0)},
        {"the greatest frame number, then 1", right(65535) + right(1)},
        {"a frame from long ago", right(5000) + right(4000)},
        {"from behind", reversed()},
        {"each packet twice", doubled()},
        {"no leader", without(0)},
        {"no trailer", without(-1)},
        {"data missing", without(3)},
        {"packets with a byte of data", withDataOf(1)},
        {"packets longer than announced", withDataOf(8900)},
        {"the longest packets", withDataOf(65000)},
        {"ten frames at once", mixedUp()},
        {"a thousand frames begun and left", begunAndLeft()},
        {"long numbers, which were not announced", image(95, 64, 100, 'e', Extended)},
        {"noise", noise(2000, false)},
        {"noise behind right headers", noise(2000, true)},
        {"nothing, a thousand times", Packets(QVector<QByteArray>(1000).toList())},
        {"a byte, a thousand times", Packets(QVector<QByteArray>(1000, "x").toList())},
        {"fourteen thousand packets at once", flood()},
    };
}
