// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "CLoopbackSearch.h"

#include "CGvcpProbe.h"

namespace CameraPool {
namespace {

constexpr int LastAddress = 5;

} // namespace

QVector<CFoundCamera> CLoopbackSearch::search()
{
    QVector<CFoundCamera> found;
    for (int i = 1; i <= LastAddress; ++i) {
        CFoundCamera camera;
        if (CGvcpProbe(QStringLiteral("127.0.0.%1").arg(i)).ask(&camera)) {
            found.append(camera);
        }
    }
    return found;
}

} // namespace CameraPool
