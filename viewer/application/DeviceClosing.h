// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

namespace Core {
namespace Plugin {
class IPluginInitializer;
}
} // namespace Core

namespace Application {

/// Closes every device that the camera pool has open, and returns when all are closed. Runs an
/// event loop meanwhile, since a plug-in may have to do something in this thread before it lets a
/// device go. Without a camera pool there is nothing to close.
void closeDevices(const Core::Plugin::IPluginInitializer &services);

} // namespace Application
