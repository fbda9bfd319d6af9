// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "CFoundCamera.h"

#include <QByteArray>
#include <QString>

namespace CameraPool {

/// A question and its answer over UDP with one GigE Vision camera whose address is known. Nothing
/// is broadcast, and the camera is not opened. Not copyable; used in one thread.
class CGvcpProbe
{
public:
    /// \a address is an IPv4 address, for example "127.0.0.1".
    explicit CGvcpProbe(const QString &address);
    ~CGvcpProbe();

    Q_DISABLE_COPY_MOVE(CGvcpProbe)

    /// Asks the camera who and how it is, and waits for the answers. An address at which nobody
    /// listens is noticed at once where the network says so (as loopback does), else after a
    /// second.
    /// @return false, with \a camera unchanged, if there is no camera or it does not answer.
    bool ask(CFoundCamera *camera);

    /// Whether the camera answers at all. Asks again before it says no, since the network may lose
    /// a datagram.
    bool isAnswering();

private:
    QByteArray discover(quint16 requestId) const;
    QByteArray exchange(const QByteArray &question, quint16 requestId) const;
    QByteArray receive(quint16 requestId) const;

    const QString m_address;
    int m_socket = -1;
};

} // namespace CameraPool
