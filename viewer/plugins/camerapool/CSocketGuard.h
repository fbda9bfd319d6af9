// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "SocketFilter.h"

#include <vector>

namespace CameraPool {

/// Keeps strangers from the sockets of Aravis, which takes packets of any sender: while this object
/// lives, each UDP socket that Aravis makes in this thread receives the datagrams of one camera
/// alone, from the moment at which it has an address.
///
/// Aravis has no way to be told; its call of `g_socket_bind` ends in this class instead. A local
/// variable, one at a time.
class CSocketGuard
{
public:
    /// What \a program lets through is received.
    explicit CSocketGuard(SocketFilter::Program program);
    ~CSocketGuard();

    Q_DISABLE_COPY_MOVE(CSocketGuard)

    /// The sockets that were made so far, in order; some may be closed again. None at all means
    /// that Aravis made its sockets past this class, and that nothing is guarded.
    const std::vector<int> &sockets() const
    {
        return m_sockets;
    }

    /// Guards \a socket by the object that lives in this thread, if there is one. @return false if
    /// the system refuses.
    static bool guard(int socket);

private:
    const SocketFilter::Program m_program;
    std::vector<int> m_sockets;
};

} // namespace CameraPool
