// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "CHostileCamera.h"

#include "HostileDescription.h"

#include <arpa/inet.h>
#include <poll.h>
#include <sys/eventfd.h>
#include <unistd.h>

#include <algorithm>
#include <utility>

#include <QtEndian>

namespace {

constexpr quint16 ControlPort = 3956;

// The bootstrap registers of the standard.
constexpr quint32 RegisterSpace = 0x10000;
constexpr quint32 DescriptionUrl = 0x200;
constexpr quint32 StreamCount = 0x904;
constexpr quint32 HeartbeatTimeout = 0x938;
constexpr quint32 TickFrequencyLow = 0x940;
constexpr quint32 StreamHostPort = 0xd00;
constexpr quint32 StreamPacketSize = 0xd04;
constexpr quint32 StreamSourcePort = 0xd1c;

enum Command : quint16 {
    Discovery = 0x02,
    ReadRegister = 0x80,
    WriteRegister = 0x82,
    ReadMemory = 0x84,
    WriteMemory = 0x86
};

template <class Integer>
QByteArray bytesOf(Integer value)
{
    const Integer bigEndian = qToBigEndian(value);
    return {reinterpret_cast<const char *>(&bigEndian), int(sizeof bigEndian)};
}

template <class Integer>
Integer at(const QByteArray &bytes, int offset)
{
    return bytes.size() < offset + int(sizeof(Integer))
               ? Integer(0)
               : qFromBigEndian<Integer>(bytes.constData() + offset);
}

QByteArray acknowledgement(const QByteArray &question, const QByteArray &payload)
{
    return bytesOf(quint16(0)) + bytesOf(quint16(at<quint16>(question, 2) + 1))
           + bytesOf(quint16(payload.size())) + question.mid(6, 2) + payload;
}

} // namespace

CHostileCamera::CHostileCamera(Identity identity)
    : m_identity(std::move(identity))
    , m_control(m_identity.address, ControlPort)
    , m_stream(m_identity.address)
    , m_registers(int(RegisterSpace), '\0')
    , m_description(m_identity.description.isEmpty() ? HostileDescription::text()
                                                     : m_identity.description)
    , m_end(::eventfd(0, EFD_CLOEXEC))
{
    m_broadcasts.emplace_back("255.255.255.255", ControlPort);
    m_broadcasts.emplace_back("127.255.255.255", ControlPort);
    seed();
    m_thread = std::thread([this] { run(); });
}

CHostileCamera::~CHostileCamera()
{
    ::eventfd_write(m_end, 1);
    m_thread.join();
    ::close(m_end);
}

void CHostileCamera::seed()
{
    setRegister(0x08, QByteArray(2, '\0') + QByteArray::fromHex(m_identity.mac));
    in_addr address = {};
    ::inet_pton(AF_INET, m_identity.address.constData(), &address);
    setRegister(0x24, QByteArray(reinterpret_cast<const char *>(&address), 4));
    setRegister(0x48, "Ostrand");
    setRegister(0x68, m_identity.model);
    setRegister(0xd8, m_identity.serial);
    setRegister(0xe8, m_identity.userName);
    setRegister(DescriptionUrl,
                "Local:h.xml;10000;" + QByteArray::number(m_description.size(), 16));
    setNumber(StreamCount, 1);
    setNumber(HeartbeatTimeout, 3000);
    setNumber(TickFrequencyLow, 1000000000);
    setNumber(StreamPacketSize, 1500);
    setNumber(StreamSourcePort, m_stream.port());
    setNumber(HostileDescription::Width, 64);
    setHeight(100);
    setNumber(HostileDescription::PixelFormat, 0x01080001);
}

bool CHostileCamera::isListening() const
{
    return m_control.handle() >= 0 && m_stream.handle() >= 0
           && std::all_of(m_broadcasts.begin(), m_broadcasts.end(),
                          [](const CUdpSocket &socket) { return socket.handle() >= 0; });
}

void CHostileCamera::setRegister(quint32 address, const QByteArray &value)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_registers.replace(int(address), value.size(), value);
}

void CHostileCamera::setNumber(quint32 address, quint32 value)
{
    setRegister(address, bytesOf(value));
}

void CHostileCamera::setHeight(quint32 height)
{
    setNumber(HostileDescription::Height, height);
    setNumber(HostileDescription::PayloadSize + 4, 64 * height);
}

quint32 CHostileCamera::number(quint32 address) const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return at<quint32>(m_registers, int(address));
}

void CHostileCamera::setAnswering(Answering answering)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_answering = std::move(answering);
}

quint16 CHostileCamera::streamPort() const
{
    return quint16(number(StreamHostPort));
}

bool CHostileCamera::isStarted() const
{
    return number(HostileDescription::Acquisition) == 1;
}

void CHostileCamera::run()
{
    std::vector<pollfd> waiting{{m_end, POLLIN, 0}, {m_control.handle(), POLLIN, 0}};
    std::vector<const CUdpSocket *> sockets{nullptr, &m_control};
    for (const CUdpSocket &socket : m_broadcasts) {
        waiting.push_back({socket.handle(), POLLIN, 0});
        sockets.push_back(&socket);
    }
    while (::poll(waiting.data(), waiting.size(), -1) > 0 && waiting.front().revents == 0) {
        for (std::size_t i = 1; i < waiting.size(); ++i) {
            if (waiting[i].revents != 0) {
                answer(*sockets[i]);
            }
        }
    }
}

void CHostileCamera::answer(const CUdpSocket &socket)
{
    const auto datagram = socket.receive();
    if (!datagram) {
        return;
    }
    const QByteArray plain = answerTo(datagram->bytes);
    Answering answering;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        answering = m_answering;
    }
    const QList<QByteArray> answers =
        answering ? answering(*datagram, plain) : QList<QByteArray>{plain};
    for (const QByteArray &one : answers) {
        if (!one.isEmpty()) {
            m_control.send(one, datagram->sender);
        }
    }
}

QByteArray CHostileCamera::answerTo(const QByteArray &question)
{
    const auto address = at<quint32>(question, 8);
    switch (at<quint16>(question, 2)) {
    case Discovery:
        return acknowledgement(question, memory(0, 0xf8));
    case ReadRegister:
        return acknowledgement(question, memory(address, 4));
    case WriteRegister:
        setRegister(address, question.mid(12, 4));
        return acknowledgement(question, QByteArray::fromHex("00000001"));
    case ReadMemory:
        return acknowledgement(question,
                               question.mid(8, 4) + memory(address, at<quint16>(question, 14)));
    case WriteMemory:
        setRegister(address, question.mid(12));
        return acknowledgement(question, QByteArray::fromHex("00000001"));
    default:
        return {};
    }
}

QByteArray CHostileCamera::memory(quint32 address, quint32 size) const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const QByteArray bytes = address < RegisterSpace
                                 ? m_registers.mid(int(address), int(size))
                                 : m_description.mid(int(address - RegisterSpace), int(size));
    return bytes + QByteArray(int(size) - bytes.size(), '\0');
}
