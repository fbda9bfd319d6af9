// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "ICameraSearch.h"

namespace CameraPool {

/// Finds the cameras on every network and on USB with Aravis, by broadcast. GigE Vision cameras are
/// asked for their user-defined name and for who controls them in addition.
class CNetworkSearch : public ICameraSearch
{
public:
    QVector<CFoundCamera> search() override;
};

} // namespace CameraPool
