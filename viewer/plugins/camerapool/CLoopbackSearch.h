// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "ICameraSearch.h"

namespace CameraPool {

/// Asks 127.0.0.1 to 127.0.0.5 for simulated cameras of this computer. Broadcasts
/// nothing.
class CLoopbackSearch : public ICameraSearch
{
public:
    QVector<CFoundCamera> search() override;
};

} // namespace CameraPool
