// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "CUdpSocket.h"

#include <functional>
#include <mutex>
#include <thread>
#include <vector>

#include <QByteArray>
#include <QHash>

// A GigE Vision camera as somebody who means harm would build it. By itself it behaves: it is
// found, opened, asked and started like any other. What is wrong with it, a test sets. It sends no
// images by itself; `GvspPackets` makes them. It runs in a thread of its own and is used from one
// other.
class CHostileCamera
{
public:
    struct Identity
    {
        QByteArray address = "127.0.0.1"; // nothing else may listen there
        QByteArray serial = "H1";
        QByteArray mac = "02000000a001"; // in hexadecimal
        QByteArray userName = {};
        QByteArray model = "XQZ-2000";
        QByteArray description = {}; // of its features; empty: HostileDescription::text()
    };

    // What the camera would answer to \a question is \a answer, empty for nothing; it answers what
    // this gives instead. Called in the camera's thread.
    using Answering = std::function<QList<QByteArray>(const CUdpSocket::Datagram &question,
                                                      const QByteArray &answer)>;

    explicit CHostileCamera(Identity identity);
    CHostileCamera()
        : CHostileCamera(Identity())
    {}
    ~CHostileCamera();

    Q_DISABLE_COPY_MOVE(CHostileCamera)

    // False if the address or the broadcasts cannot be listened to.
    bool isListening() const;

    // Callable in any thread.
    void setRegister(quint32 address, const QByteArray &value);
    void setNumber(quint32 address, quint32 value);
    quint32 number(quint32 address) const;
    void setHeight(quint32 height); // of images that are 64 wide
    void setAnswering(Answering answering);

    // Where the viewer expects the images; 0 while it expects none.
    quint16 streamPort() const;

    // True between the start and the stop of the acquisition.
    bool isStarted() const;

    // The socket by which the camera sends its images, and whose port it told.
    const CUdpSocket &streamSocket() const
    {
        return m_stream;
    }
    const QByteArray &address() const
    {
        return m_identity.address;
    }

private:
    void run();
    void answer(const CUdpSocket &socket);
    QByteArray answerTo(const QByteArray &question);
    QByteArray memory(quint32 address, quint32 size) const;
    void seed();

    const Identity m_identity;
    const CUdpSocket m_control;
    const CUdpSocket m_stream;
    std::vector<CUdpSocket> m_broadcasts;
    mutable std::mutex m_mutex;
    QByteArray m_registers;   // guarded by m_mutex
    QByteArray m_description; // as it is sent
    Answering m_answering;    // guarded by m_mutex
    int m_end = -1;           // readable when the thread shall end
    std::thread m_thread;
};
