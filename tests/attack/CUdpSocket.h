// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <netinet/in.h>

#include <optional>

#include <QByteArray>

// A UDP socket of IPv4. Owns its handle. Callable in any thread.
class CUdpSocket
{
public:
    struct Datagram
    {
        QByteArray bytes;
        sockaddr_in sender;
    };

    // Bound to \a address, such as "127.0.0.2", at \a port, or at a free one for 0. A broadcast
    // address may be listened to by several.
    explicit CUdpSocket(const QByteArray &address, quint16 port = 0);
    ~CUdpSocket();
    CUdpSocket(CUdpSocket &&other) noexcept;
    CUdpSocket &operator=(CUdpSocket &&) = delete;
    CUdpSocket(const CUdpSocket &) = delete;
    CUdpSocket &operator=(const CUdpSocket &) = delete;

    // -1 if the address cannot be had.
    int handle() const
    {
        return m_handle;
    }

    quint16 port() const;

    bool send(const QByteArray &bytes, const QByteArray &address, quint16 port) const;
    bool send(const QByteArray &bytes, const sockaddr_in &target) const;

    // Null if none has arrived. Does not wait.
    std::optional<Datagram> receive() const;

private:
    int m_handle;
};
