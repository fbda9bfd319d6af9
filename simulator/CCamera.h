// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "CAddressHold.h"
#include "CFrameSource.h"
#include "CHeartbeatWatch.h"
#include "CIdentity.h"
#include "ICamera.h"

#include <memory>
#include <string>

typedef struct _ArvGvFakeCamera ArvGvFakeCamera;

namespace Simulator {

// A camera on a loopback address that can be unplugged and plugged in. Unplugged it is silent but
// keeps its address. Plugged in again it has its settings from the start, as after a loss of
// power, but for the name that the user gave it. Used from one thread.
class CCamera : public ICamera
{
public:
    // The file at descriptionPath holds the GenICam description and outlives the camera.
    // Throws std::runtime_error with a line for the user when the address is taken.
    CCamera(std::string address, CIdentity identity, std::string descriptionPath);
    ~CCamera() override;
    CCamera(const CCamera &) = delete;
    CCamera &operator=(const CCamera &) = delete;

    bool isPluggedIn() const override;
    void plugIn() override;
    void unplug() override;
    void setLoss(double ratio) override;

private:
    void seed(ArvFakeCamera *camera);
    void refuseGhost();

    std::string m_address;
    CIdentity m_identity;
    std::string m_descriptionPath;
    double m_loss = 0.0;
    std::unique_ptr<CAddressHold> m_hold;
    CFrameSource m_frameSource;
    ArvGvFakeCamera *m_camera = nullptr; // null while unplugged
    std::unique_ptr<CHeartbeatWatch> m_heartbeatWatch;
};

} // namespace Simulator
