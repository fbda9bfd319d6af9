// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "CLoopbackSearch.h"

#include "AskCameras.h"

#include <algorithm>

namespace CameraPool {
namespace {

constexpr int LastAddress = 5;

} // namespace

QVector<CFoundCamera> CLoopbackSearch::search()
{
    QVector<CFoundCamera> cameras;
    for (int i = 1; i <= LastAddress; ++i) {
        CFoundCamera camera;
        camera.openId = QStringLiteral("127.0.0.%1").arg(i);
        cameras.append(camera);
    }
    askCameras(&cameras);
    const auto isSilent = [](const CFoundCamera &camera) { return !camera.isNameKnown; };
    cameras.erase(std::remove_if(cameras.begin(), cameras.end(), isSilent), cameras.end());
    return cameras;
}

} // namespace CameraPool
