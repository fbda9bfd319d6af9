// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include <Core/CameraPoolComponents/IDeviceBaseInfo.h>

namespace Core {
namespace CameraPoolComponents {

IDeviceBaseInfo::~IDeviceBaseInfo() = default;

} // namespace CameraPoolComponents
} // namespace Core
