// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "LeftBehind.h"

#include "Logging.h"

#include <atomic>

namespace CameraPool {
namespace {

std::atomic<bool> hasLeft{false};

} // namespace

void noteLeftBehind(const QString &what)
{
    hasLeft = true;
    qCInfo(lcCameraPool, "%s does not come to an end and is left to itself", qUtf8Printable(what));
}

bool isAnythingLeftBehind()
{
    return hasLeft;
}

} // namespace CameraPool
