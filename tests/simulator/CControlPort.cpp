// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "CControlPort.h"

#include <QNetworkDatagram>
#include <QtEndian>

namespace {

constexpr quint16 Port = 3956;
constexpr int HeaderSize = 8;
constexpr int AnswerLimit = 1000; // ms

enum Command : quint16 { Discovery = 0x0002, ReadRegister = 0x0080, WriteRegister = 0x0082 };

template <typename Number>
QByteArray bigEndian(Number number)
{
    QByteArray bytes(sizeof number, '\0');
    qToBigEndian(number, bytes.data());
    return bytes;
}

} // namespace

CControlPort::CControlPort(const QString &address)
    : m_address(address)
{
    m_socket.bind(QHostAddress(QHostAddress::LocalHost));
}

qint64 CControlPort::readRegister(quint32 address)
{
    const QByteArray answer = ask(ReadRegister, bigEndian(address), AnswerLimit);
    return answer.size() == 4 ? qint64(qFromBigEndian<quint32>(answer.constData())) : -1;
}

bool CControlPort::writeRegister(quint32 address, quint32 value)
{
    return !ask(WriteRegister, bigEndian(address) + bigEndian(value), AnswerLimit).isEmpty()
           && readRegister(address) == value;
}

QByteArray CControlPort::discover(int limitMilliseconds)
{
    return ask(Discovery, QByteArray(), limitMilliseconds);
}

QByteArray CControlPort::ask(quint16 command, const QByteArray &content, int limitMilliseconds)
{
    constexpr char Key = 0x42;
    constexpr char AnswerWanted = 0x01;
    QByteArray packet;
    packet += Key;
    packet += AnswerWanted;
    packet += bigEndian(command);
    packet += bigEndian(static_cast<quint16>(content.size()));
    packet += bigEndian(++m_number);
    m_socket.writeDatagram(packet + content, m_address, Port);
    if (!m_socket.hasPendingDatagrams() && !m_socket.waitForReadyRead(limitMilliseconds)) {
        return QByteArray();
    }
    return m_socket.receiveDatagram().data().mid(HeaderSize);
}
