// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include <Core/CameraPoolComponents/ICameraInfo.h>

namespace Core {
namespace CameraPoolComponents {

ICameraInfo::~ICameraInfo() = default;

} // namespace CameraPoolComponents
} // namespace Core
