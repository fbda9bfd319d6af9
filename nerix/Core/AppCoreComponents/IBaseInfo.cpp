// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include <Core/AppCoreComponents/IBaseInfo.h>

namespace Core {
namespace AppCoreComponents {

IBaseInfo::~IBaseInfo() = default;

} // namespace AppCoreComponents
} // namespace Core
