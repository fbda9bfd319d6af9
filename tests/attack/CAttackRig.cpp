// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "CAttackRig.h"

#include "GvspPackets.h"
#include "HostileDescription.h"
#include "plugins/camerapool/CCameraControl.h"

#include <QTest>

CAttackRig::CAttackRig(CHostileCamera::Identity identity)
    : m_serial(QString::fromLatin1(identity.serial))
    , m_camera(identity)
{}

bool CAttackRig::open()
{
    return m_camera.isListening() && m_pool.search() && info() && m_pool.open(info());
}

bool CAttackRig::startGrab()
{
    const int before = m_pool.log().count("grabStarted " + m_serial);
    m_pool.pool().control()->grabContinuous(info());
    return m_pool.waitFor("grabStarted " + m_serial, before + 1) && m_camera.isStarted();
}

bool CAttackRig::stopGrab()
{
    const int before = m_pool.log().count("grabStopped " + m_serial);
    m_pool.pool().control()->stopGrab(info());
    return m_pool.waitFor("grabStopped " + m_serial, before + 1);
}

void CAttackRig::send(const QList<QByteArray> &packets)
{
    send(packets, m_camera.streamSocket());
}

void CAttackRig::send(const QList<QByteArray> &packets, const CUdpSocket &socket)
{
    for (const QByteArray &packet : packets) {
        socket.send(packet, m_camera.address(), m_camera.streamPort());
    }
}

// Far from the numbers of what a test sends by itself.
bool CAttackRig::sendUntilItArrives(char value)
{
    m_frame = quint16(m_frame + 1000);
    return QTest::qWaitFor(
        [&] {
            send(GvspPackets::image(++m_frame, 64, m_camera.number(HostileDescription::Height),
                                    value));
            return arrivedValues().contains(value);
        },
        10000);
}

QByteArray CAttackRig::arrivedValues()
{
    QByteArray values;
    for (const Nerix::CGrabResultPtr &result : grabbed().images) {
        values.append(char(result->image().data.front()));
    }
    return values;
}
