// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "CGvcpSocket.h"

#include <QByteArray>
#include <QString>

namespace CameraPool {

/// Asks one GigE Vision camera whose address is known whether it is there. Not copyable; used in
/// one thread.
class CGvcpProbe
{
public:
    /// \a address is an IPv4 address, for example "127.0.0.1".
    explicit CGvcpProbe(const QString &address);

    /// Whether the camera answers at all. Asks again before it says no, since the network may lose
    /// a datagram. An address at which nobody listens is noticed at once where the network says so
    /// (as loopback does), else after two seconds.
    bool isAnswering() const;

private:
    bool answersOnce() const;

    const CGvcpSocket m_socket;
};

} // namespace CameraPool
