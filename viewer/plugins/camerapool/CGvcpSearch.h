// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "CFoundCamera.h"
#include "CSearchSocket.h"

#include <QHash>
#include <QVector>

namespace CameraPool {

/// Asks GigE Vision cameras who they are, and then whether somebody controls them: one search, by
/// one socket, whatever the number of cameras. It ends in time whatever is sent to it. All are
/// asked at once; one that is silent is asked again, since the network may lose a datagram. No
/// camera is opened. Used in one thread.
///
/// What a device tells who asks it alone counts more than what comes as the answer to a broadcast,
/// in which it can say that it has another's address. `isNameKnown` and `isControlKnown` of what is
/// found tell which answers came.
class CGvcpSearch
{
public:
    /// More cameras than that are left out, and the log says so: far above what a plant has, and
    /// few enough for a list.
    static constexpr int MostCameras = 2000;

    /// All cameras in the networks of this computer. Takes a second, or one and a half if one keeps
    /// its second answer to itself.
    static QVector<CFoundCamera> byBroadcast();

    /// Those at \a addresses, which are IPv4. Nothing is broadcast. Takes a second at most, and
    /// ends as soon as all have answered. An address at which nobody listens is noticed at once
    /// where the network says so, as loopback does.
    static QVector<CFoundCamera> at(const QVector<quint32> &addresses);

private:
    enum class Stage { Discovery, Privilege, Over };
    struct Asked
    {
        CFoundCamera camera;
        Stage stage = Stage::Discovery;
        quint16 requestId = 0;
    };

    CGvcpSearch() = default;
    void ask(quint32 address);
    void insist(const QDeadlineTimer &deadline);
    void takeUntil(const QDeadlineTimer &deadline);
    void take(const CSearchSocket::Datagram &datagram);
    void takeAnswer(const CSearchSocket::Datagram &datagram, Asked *asked);
    void meet(const CSearchSocket::Datagram &datagram);
    void sendQuestion(quint32 address, const Asked &asked) const;
    void askAgain() const;
    bool hasAllAnswers() const;
    QVector<CFoundCamera> found() const;

    const CSearchSocket m_socket;
    bool m_isOpenToAll = false; // whoever answers the broadcast counts
    quint16 m_broadcastId = 0;
    QHash<quint32, Asked> m_asked; // by address
    QVector<quint32> m_order;      // of the answers
    int m_leftOut = 0;
};

} // namespace CameraPool
