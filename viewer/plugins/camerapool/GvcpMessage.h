// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "CFoundCamera.h"

#include <QByteArray>

namespace CameraPool {

/// The few messages of the GigE Vision control protocol (GVCP) that can be exchanged with a camera
/// without controlling it: who are you, and is somebody controlling you. Pure functions.
///
/// Aravis answers the first question in part only (it keeps the user-defined name to itself) and
/// the second one not at all.
namespace GvcpMessage {

/// The UDP port at which every GigE Vision camera listens.
constexpr quint16 Port = 3956;

/// "Who are you?", to be answered with \a requestId.
QByteArray discovery(quint16 requestId);

/// "What is in your control privilege register?", to be answered with \a requestId. A camera that
/// is open exclusively denies it.
QByteArray readControlPrivilege(quint16 requestId);

/// The request that \a datagram answers; 0, which no request has, if it is none.
quint16 requestId(const QByteArray &datagram);

/// Fills vendor, model, serial, MAC address and user name of \a camera from the answer to
/// `discovery`.
/// @return false, with \a camera unchanged, if \a datagram is not that answer.
bool parseDiscoveryAnswer(const QByteArray &datagram, quint16 requestId, CFoundCamera *camera);

/// The IPv4 address that the device says it has in \a datagram, the answer to `discovery`; 0 if
/// that is too short to be one.
quint32 toldAddress(const QByteArray &datagram);

/// Fills `isControlled` of \a camera from the answer to `readControlPrivilege`.
/// @return false, with \a camera unchanged, if \a datagram is not that answer.
bool parsePrivilegeAnswer(const QByteArray &datagram, quint16 requestId, CFoundCamera *camera);

} // namespace GvcpMessage
} // namespace CameraPool
