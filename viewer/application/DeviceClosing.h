// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

namespace Core {
namespace Plugin {
class IPluginInitializer;
}
} // namespace Core

namespace Application {

/// A plug-in may have to do something in this thread before it lets a device go. Without a display
/// no event loop can run, and what was posted to the objects of this thread has to do.
enum class Waiting { WithEvents, WithoutEventLoop };

/// Closes every device that the camera pool has open, and returns when all are closed, or when
/// \a isCutShort answers true, which is asked now and then. Without a camera pool there is nothing
/// to close.
void closeDevices(const Core::Plugin::IPluginInitializer &services, Waiting waiting,
                  const std::function<bool()> &isCutShort);

} // namespace Application
