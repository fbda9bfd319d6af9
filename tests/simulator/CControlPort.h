// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <QHostAddress>
#include <QUdpSocket>

// Speaks to a camera in single packets of the GigE Vision control protocol and, unlike a proper
// program, says nothing in between. Used from one thread.
class CControlPort
{
public:
    explicit CControlPort(const QString &address);

    // -1 when nothing was answered within a second.
    qint64 readRegister(quint32 address);
    // True when the camera accepted it.
    bool writeRegister(quint32 address, quint32 value);
    // The 248 bytes in which a camera presents itself; empty when none answered in time.
    QByteArray discover(int limitMilliseconds = 1000);

private:
    QByteArray ask(quint16 command, const QByteArray &content, int limitMilliseconds);

    QHostAddress m_address;
    QUdpSocket m_socket;
    quint16 m_number = 0;
};
