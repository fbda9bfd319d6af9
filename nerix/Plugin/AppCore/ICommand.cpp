// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include <Plugin/AppCore/ICommand.h>

namespace Plugin {
namespace AppCore {

ICommand::~ICommand() = default;

} // namespace AppCore
} // namespace Plugin
