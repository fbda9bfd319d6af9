// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "CNetworkSearch.h"

#include "CGvcpSearch.h"

namespace CameraPool {

QVector<CFoundCamera> CNetworkSearch::search()
{
    return CGvcpSearch::byBroadcast() + m_usb.search();
}

} // namespace CameraPool
