// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "CFoundCamera.h"

#include <memory>

#include <QVector>

namespace CameraPool {

/// A way to find cameras. Used by one thread at a time.
class ICameraSearch
{
public:
    virtual ~ICameraSearch();

    /// Every camera that answers now. May block for about two seconds.
    virtual QVector<CFoundCamera> search() = 0;

protected:
    ICameraSearch() = default;
    Q_DISABLE_COPY_MOVE(ICameraSearch)
};

/// The search that the environment asks for: with NERIX_NETWORK=loopback by address on this
/// computer alone, so that nothing is broadcast; else on every network and bus.
std::unique_ptr<ICameraSearch> createCameraSearch();

} // namespace CameraPool
