// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "CGvcpSearch.h"

#include "CGvcpSocket.h"
#include "GvcpMessage.h"
#include "IpAddress.h"
#include "Logging.h"

#include <algorithm>

namespace CameraPool {
namespace {

// The standard gives a camera one second for its answer.
constexpr int AnswerTimeoutMs = 1000;
constexpr int HalfTimeoutMs = 500;

// How often those are asked again that are silent after half of the time. A burst of questions or
// answers may be more than a network or a computer takes.
constexpr int AskAgainMs = 250;

bool isLoopback(quint32 address)
{
    return address >> 24 == 127;
}

// Simulated cameras of this computer answer a broadcast from one address, whichever they have. Any
// other device has the address that it answers from, whatever it says.
quint32 addressOf(const CSearchSocket::Datagram &datagram)
{
    const quint32 told = GvcpMessage::toldAddress(datagram.bytes);
    return isLoopback(datagram.sender) && isLoopback(told) ? told : datagram.sender;
}

// Whether what was told of an address before, if anything was, is told of another device now.
bool isOther(const CFoundCamera &before, const CFoundCamera &now)
{
    return before.isNameKnown
           && (before.mac != now.mac || before.plainIdentity() != now.plainIdentity());
}

} // namespace

QVector<CFoundCamera> CGvcpSearch::byBroadcast()
{
    const QDeadlineTimer half(HalfTimeoutMs);
    const QDeadlineTimer whole(AnswerTimeoutMs);
    const QDeadlineTimer late(AnswerTimeoutMs + HalfTimeoutMs);
    CGvcpSearch search;
    search.m_isOpenToAll = true;
    search.m_broadcastId = CGvcpSocket::nextRequestId();
    const QByteArray question = GvcpMessage::discovery(search.m_broadcastId);
    search.m_socket.broadcast(question);
    search.takeUntil(half);
    search.m_socket.broadcast(question);
    search.insist(whole);
    search.m_isOpenToAll = false;
    search.insist(late);
    return search.found();
}

QVector<CFoundCamera> CGvcpSearch::at(const QVector<quint32> &addresses)
{
    const QDeadlineTimer half(HalfTimeoutMs);
    const QDeadlineTimer whole(AnswerTimeoutMs);
    CGvcpSearch search;
    for (const quint32 address : addresses) {
        search.ask(address);
    }
    search.takeUntil(half);
    search.insist(whole);
    return search.found();
}

void CGvcpSearch::ask(quint32 address)
{
    Asked &asked = m_asked[address];
    asked.requestId = CGvcpSocket::nextRequestId();
    asked.camera.openId = ipText(address);
    m_order.append(address);
    sendQuestion(address, asked);
}

void CGvcpSearch::sendQuestion(quint32 address, const Asked &asked) const
{
    m_socket.send(asked.stage == Stage::Discovery
                      ? GvcpMessage::discovery(asked.requestId)
                      : GvcpMessage::readControlPrivilege(asked.requestId),
                  address);
}

void CGvcpSearch::insist(const QDeadlineTimer &deadline)
{
    while (!deadline.hasExpired() && (m_isOpenToAll || !hasAllAnswers())) {
        askAgain();
        takeUntil(std::min(deadline, QDeadlineTimer(AskAgainMs)));
    }
}

void CGvcpSearch::askAgain() const
{
    for (auto asked = m_asked.begin(); asked != m_asked.end(); ++asked) {
        if (asked->stage != Stage::Over) {
            sendQuestion(asked.key(), *asked);
        }
    }
}

// The deadline counts, not the quiet: somebody may never be quiet.
void CGvcpSearch::takeUntil(const QDeadlineTimer &deadline)
{
    while (!deadline.hasExpired() && (m_isOpenToAll || !hasAllAnswers())
           && m_socket.wait(deadline)) {
        for (auto datagram = m_socket.receive(); datagram && !deadline.hasExpired();
             datagram = m_socket.receive()) {
            take(*datagram);
        }
    }
}

// Skips what is no answer to the last question, such as a late answer to an earlier one.
void CGvcpSearch::take(const CSearchSocket::Datagram &datagram)
{
    const auto known = m_asked.find(datagram.sender);
    if (known != m_asked.end() && known->stage != Stage::Over
        && (datagram.bytes.isEmpty()
            || GvcpMessage::requestId(datagram.bytes) == known->requestId)) {
        takeAnswer(datagram, &*known);
    } else {
        meet(datagram);
    }
}

void CGvcpSearch::takeAnswer(const CSearchSocket::Datagram &datagram, Asked *asked)
{
    const bool isFirst = asked->stage == Stage::Discovery;
    asked->stage = Stage::Over;
    const CFoundCamera claimed = asked->camera;
    if (isFirst
        && GvcpMessage::parseDiscoveryAnswer(datagram.bytes, asked->requestId, &asked->camera)) {
        asked->camera.isAddressShared = claimed.isAddressShared || isOther(claimed, asked->camera);
        asked->camera.isNameKnown = true;
        asked->camera.hostAddress = datagram.hostAddress;
        asked->stage = Stage::Privilege;
        asked->requestId = CGvcpSocket::nextRequestId();
        sendQuestion(datagram.sender, *asked);
    } else if (!isFirst) {
        asked->camera.isControlKnown =
            GvcpMessage::parsePrivilegeAnswer(datagram.bytes, asked->requestId, &asked->camera);
    }
}

// An answer to the broadcast, or to the one that was sent again. If it is another one than the
// first, two devices have one address, or say so.
void CGvcpSearch::meet(const CSearchSocket::Datagram &datagram)
{
    CFoundCamera camera;
    if (!m_isOpenToAll
        || !GvcpMessage::parseDiscoveryAnswer(datagram.bytes, m_broadcastId, &camera)) {
        return;
    }
    const quint32 address = addressOf(datagram);
    if (!m_asked.contains(address)) {
        if (m_asked.size() >= MostCameras) {
            ++m_leftOut;
            return;
        }
        ask(address);
    }
    CFoundCamera &known = m_asked[address].camera;
    if (!known.isNameKnown) {
        camera.openId = known.openId;
        camera.hostAddress = datagram.hostAddress;
        camera.isNameKnown = true;
        known = camera;
    } else {
        known.isAddressShared = known.isAddressShared || isOther(known, camera);
    }
}

bool CGvcpSearch::hasAllAnswers() const
{
    return std::all_of(m_asked.begin(), m_asked.end(),
                       [](const Asked &asked) { return asked.stage == Stage::Over; });
}

QVector<CFoundCamera> CGvcpSearch::found() const
{
    if (m_leftOut > 0) {
        qCWarning(lcCameraPool,
                  "more than %d cameras answer; the others are left out: find the device that "
                  "answers for so many, or split the network",
                  MostCameras);
    }
    QVector<CFoundCamera> cameras;
    for (const quint32 address : m_order) {
        const CFoundCamera &camera = m_asked.find(address)->camera;
        if (camera.isNameKnown) {
            cameras.append(camera);
        }
    }
    return cameras;
}

} // namespace CameraPool
