// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "CUsbSearch.h"
#include "ICameraSearch.h"

namespace CameraPool {

/// Finds the cameras on every network, by broadcast, and at USB.
class CNetworkSearch : public ICameraSearch
{
public:
    QVector<CFoundCamera> search() override;

private:
    CUsbSearch m_usb;
};

} // namespace CameraPool
