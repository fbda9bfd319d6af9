// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "CCamera.h"

#include "Address.h"
#include "CSeedAtBirth.h"
#include "Registers.h"

#include <arv.h>

#include <array>
#include <stdexcept>
#include <utility>

namespace Simulator {

namespace {

constexpr guint32 ContinuousMode = 1;
constexpr guint32 FrameCountAtStart = 10;
constexpr float TemperatureAtStart = 41.5F;

// The user may have given the camera a name.
std::string storedUserName(ArvFakeCamera *registers)
{
    std::array<char, Registers::UserNameSize + 1> text{};
    arv_fake_camera_read_memory(registers, Registers::UserName, Registers::UserNameSize,
                                text.data());
    return text.data();
}

} // namespace

CCamera::CCamera(std::string address, CIdentity identity, std::string descriptionPath)
    : m_address(std::move(address))
    , m_identity(std::move(identity))
    , m_descriptionPath(std::move(descriptionPath))
{
    m_hold = std::make_unique<CAddressHold>(m_address);
}

CCamera::~CCamera()
{
    m_heartbeatWatch.reset();
    g_clear_object(&m_camera);
}

bool CCamera::isPluggedIn() const
{
    return m_camera != nullptr;
}

void CCamera::plugIn()
{
    if (isPluggedIn()) {
        return;
    }
    if (!m_hold) {
        m_hold = std::make_unique<CAddressHold>(m_address);
    }
    m_hold.reset();
    const CSeedAtBirth::Function seeding = [this](ArvFakeCamera *camera) { seed(camera); };
    const CSeedAtBirth seedAtBirth(seeding);
    m_camera = arv_gv_fake_camera_new_full(m_address.c_str(), m_identity.serial.c_str(),
                                           m_descriptionPath.c_str());
    refuseGhost();
    m_heartbeatWatch = std::make_unique<CHeartbeatWatch>(m_address);
    setLoss(m_loss);
}

void CCamera::unplug()
{
    if (!isPluggedIn()) {
        return;
    }
    m_heartbeatWatch.reset();
    // The registers are the camera thread's as long as it runs.
    auto *registers = ARV_FAKE_CAMERA(g_object_ref(arv_gv_fake_camera_get_fake_camera(m_camera)));
    g_clear_object(&m_camera);
    m_identity.userName = storedUserName(registers);
    g_object_unref(registers);
    try {
        m_hold = std::make_unique<CAddressHold>(m_address);
    } catch (const std::runtime_error &) {
        // Somebody was quicker. This camera is gone all the same; plugging in will say so.
    }
}

void CCamera::setLoss(double ratio)
{
    m_loss = ratio;
    if (isPluggedIn()) {
        g_object_set(m_camera, "gvsp-lost-ratio", ratio, nullptr);
    }
}

void CCamera::seed(ArvFakeCamera *camera)
{
    seedIdentity(camera, m_identity, macAddress(m_identity.serial, m_address));
    arv_fake_camera_write_register(camera, ARV_FAKE_CAMERA_REGISTER_ACQUISITION_MODE,
                                   ContinuousMode);
    arv_fake_camera_write_register(camera, Registers::FrameCount, FrameCountAtStart);
    guint32 bits = 0;
    static_assert(sizeof bits == sizeof TemperatureAtStart);
    memcpy(&bits, &TemperatureAtStart, sizeof bits);
    arv_fake_camera_write_register(camera, Registers::Temperature, bits);
    m_frameSource.attach(camera);
}

// Somebody may take the address between our letting go of it and Aravis' binding to it. The camera
// then serves nobody, yet still answers those who look for cameras.
void CCamera::refuseGhost()
{
    if (ownsControlPort(m_address)) {
        return;
    }
    g_clear_object(&m_camera);
    throw std::runtime_error("address " + m_address
                             + " was taken by another program just now: end that one or try again");
}

} // namespace Simulator
