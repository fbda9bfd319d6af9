// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "ICameraSearch.h"

#include "CLoopbackSearch.h"
#include "CNetworkSearch.h"

namespace CameraPool {

ICameraSearch::~ICameraSearch() = default;

std::unique_ptr<ICameraSearch> createCameraSearch()
{
    if (qgetenv("NERIX_NETWORK") == "loopback") {
        return std::make_unique<CLoopbackSearch>();
    }
    return std::make_unique<CNetworkSearch>();
}

} // namespace CameraPool
