// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

#include <QByteArray>
#include <QDeadlineTimer>

namespace CameraPool {

/// The one UDP socket by which a search asks all GigE Vision cameras. Nothing that it does waits
/// for anybody but `wait`. Used in one thread.
class CSearchSocket
{
public:
    /// What came from the control port of some device, or the news that nobody listens there.
    struct Datagram
    {
        QByteArray bytes;        ///< empty for the news that nobody listens
        quint32 sender = 0;      ///< IPv4 address, as a number
        quint32 hostAddress = 0; ///< this computer's address to which it came
    };

    CSearchSocket();
    ~CSearchSocket();

    Q_DISABLE_COPY_MOVE(CSearchSocket)

    /// Sends \a question to the control port of whoever is in a network of this computer, on each
    /// of its interfaces.
    void broadcast(const QByteArray &question) const;

    /// Sends \a question to the control port at \a address.
    void send(const QByteArray &question, quint32 address) const;

    /// Waits until something has arrived. @return false if nothing did before \a deadline.
    bool wait(const QDeadlineTimer &deadline) const;

    /// The next datagram that has arrived; null if there is none. What comes from another port than
    /// that of cameras is skipped.
    std::optional<Datagram> receive() const;

private:
    std::optional<Datagram> receiveNews() const;
    void sendFrom(const QByteArray &question, quint32 address, quint32 interface,
                  quint32 hostAddress) const;

    const int m_handle;
};

} // namespace CameraPool
