// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "CHostileCamera.h"
#include "CPoolRig.h"

// A hostile camera that is open in a camera pool, and grabs.
class CAttackRig
{
public:
    explicit CAttackRig(CHostileCamera::Identity identity = {});

    // Each waits for the end; false if it does not come.
    bool open();
    bool startGrab();
    bool stopGrab();

    CHostileCamera &camera()
    {
        return m_camera;
    }
    CPoolRig &pool()
    {
        return m_pool;
    }
    CPoolRig::CameraInfoPtr info() const
    {
        return m_pool.camera(m_serial);
    }
    const CPoolRig::Grabbed &grabbed()
    {
        return m_pool.grabbed(m_serial);
    }

    // Sends \a packets to the viewer's stream from \a socket, or from where the camera said.
    void send(const QList<QByteArray> &packets);
    void send(const QList<QByteArray> &packets, const CUdpSocket &socket);

    // Sends whole images of the camera, each with pixels of value \a value, until one has arrived.
    bool sendUntilItArrives(char value);

    // The value of the first pixel of each image that arrived.
    QByteArray arrivedValues();

private:
    const QString m_serial;
    CHostileCamera m_camera;
    CPoolRig m_pool;
    quint16 m_frame = 0;
};
