// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

#include <QByteArray>
#include <QString>

namespace CameraPool {

/// A UDP socket to one GigE Vision camera whose address is known. Nothing is broadcast, and the
/// camera is not opened. Used in one thread.
class CGvcpSocket
{
public:
    /// \a address is an IPv4 address, for example "127.0.0.1".
    explicit CGvcpSocket(const QString &address);
    ~CGvcpSocket();

    Q_DISABLE_COPY_MOVE(CGvcpSocket)

    /// For `poll`; -1 if there is no such address.
    int handle() const
    {
        return m_handle;
    }

    /// @return false if the network says that nobody is there.
    bool send(const QByteArray &question) const;

    /// A datagram that has arrived; null if none has, or if the network says that nobody is there.
    /// Does not wait.
    std::optional<QByteArray> receive() const;

    /// A number for a question that no other one has, so that a late answer never fits another
    /// question. Never 0. Callable in any thread.
    static quint16 nextRequestId();

private:
    const int m_handle;
};

} // namespace CameraPool
