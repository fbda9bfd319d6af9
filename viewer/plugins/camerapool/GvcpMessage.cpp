// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "GvcpMessage.h"

#include <QtEndian>

namespace CameraPool {
namespace GvcpMessage {
namespace {

// Layout and numbers of GigE Vision 2.0, chapters 15 (headers) and 28 (bootstrap registers).
constexpr quint8 CommandKey = 0x42;
constexpr quint8 AnswerExpected = 0x01;
constexpr quint16 DiscoveryCommand = 0x0002;
constexpr quint16 DiscoveryAnswer = 0x0003;
constexpr quint16 ReadRegisterCommand = 0x0080;
constexpr quint16 ReadRegisterAnswer = 0x0081;
constexpr quint32 ControlPrivilegeRegister = 0x0a00;
constexpr quint32 ExclusiveOrControl = 0x3;
constexpr quint16 StatusSuccess = 0x0000;
constexpr quint16 StatusAccessDenied = 0x8006;
constexpr int HeaderSize = 8;

struct Field
{
    int offset;
    int size;
};
constexpr Field MacAddress{0x0a, 6};
constexpr int IpAddress = 0x24;
constexpr Field Vendor{0x48, 32};
constexpr Field Model{0x68, 32};
constexpr Field Serial{0xd8, 16};
constexpr Field UserName{0xe8, 16};
constexpr int DiscoveryAnswerSize = HeaderSize + 0xf8;

template <class Integer>
void append(QByteArray *message, Integer value)
{
    const Integer bigEndian = qToBigEndian(value);
    message->append(reinterpret_cast<const char *>(&bigEndian), sizeof bigEndian);
}

template <class Integer>
Integer at(const QByteArray &message, int offset)
{
    return qFromBigEndian<Integer>(message.constData() + offset);
}

QByteArray command(quint16 code, quint16 payloadSize, quint16 requestId)
{
    QByteArray message;
    append(&message, CommandKey);
    append(&message, AnswerExpected);
    append(&message, code);
    append(&message, payloadSize);
    append(&message, requestId);
    return message;
}

bool isAnswer(const QByteArray &datagram, quint16 code, quint16 id)
{
    return datagram.size() >= HeaderSize && at<quint16>(datagram, 2) == code
           && at<quint16>(datagram, 6) == id;
}

QString text(const QByteArray &datagram, Field field)
{
    const QByteArray bytes = datagram.mid(HeaderSize + field.offset, field.size);
    return QString::fromUtf8(bytes.constData(),
                             static_cast<int>(qstrnlen(bytes.constData(), uint(bytes.size()))))
        .trimmed();
}

QString hexDigits(const QByteArray &datagram, Field field)
{
    return QString::fromLatin1(datagram.mid(HeaderSize + field.offset, field.size).toHex());
}

} // namespace

QByteArray discovery(quint16 requestId)
{
    return command(DiscoveryCommand, 0, requestId);
}

QByteArray readControlPrivilege(quint16 requestId)
{
    QByteArray message = command(ReadRegisterCommand, sizeof(quint32), requestId);
    append(&message, ControlPrivilegeRegister);
    return message;
}

quint16 requestId(const QByteArray &datagram)
{
    return datagram.size() >= HeaderSize ? at<quint16>(datagram, 6) : quint16(0);
}

bool parseDiscoveryAnswer(const QByteArray &datagram, quint16 requestId, CFoundCamera *camera)
{
    if (!isAnswer(datagram, DiscoveryAnswer, requestId) || datagram.size() < DiscoveryAnswerSize
        || at<quint16>(datagram, 0) != StatusSuccess) {
        return false;
    }
    camera->vendor = text(datagram, Vendor);
    camera->model = text(datagram, Model);
    camera->serial = text(datagram, Serial);
    camera->mac = hexDigits(datagram, MacAddress);
    camera->userName = text(datagram, UserName);
    return true;
}

quint32 toldAddress(const QByteArray &datagram)
{
    return datagram.size() < DiscoveryAnswerSize ? 0
                                                 : at<quint32>(datagram, HeaderSize + IpAddress);
}

bool parsePrivilegeAnswer(const QByteArray &datagram, quint16 requestId, CFoundCamera *camera)
{
    if (!isAnswer(datagram, ReadRegisterAnswer, requestId)) {
        return false;
    }
    if (at<quint16>(datagram, 0) == StatusAccessDenied) {
        camera->isControlled = true;
        return true;
    }
    if (at<quint16>(datagram, 0) != StatusSuccess
        || datagram.size() < HeaderSize + int(sizeof(quint32))) {
        return false;
    }
    camera->isControlled = (at<quint32>(datagram, HeaderSize) & ExclusiveOrControl) != 0;
    return true;
}

} // namespace GvcpMessage
} // namespace CameraPool
