// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "CLoopbackSearch.h"

#include "CGvcpSearch.h"

namespace CameraPool {
namespace {

constexpr quint32 FirstAddress = 0x7f000001;
constexpr quint32 LastAddress = 0x7f000005;

} // namespace

QVector<CFoundCamera> CLoopbackSearch::search()
{
    QVector<quint32> addresses;
    for (quint32 address = FirstAddress; address <= LastAddress; ++address) {
        addresses.append(address);
    }
    return CGvcpSearch::at(addresses);
}

} // namespace CameraPool
