// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include <Plugin/AppCore/IActionContainer.h>

namespace Plugin {
namespace AppCore {

IActionContainer::~IActionContainer() = default;

} // namespace AppCore
} // namespace Plugin
