// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace CameraPool {

/// Says in the log that \a what is left to itself in its thread, because it does not come to an end
/// and nobody shall wait for it. \a what names a camera, or the search. Callable in any thread.
void noteLeftBehind(const QString &what);

/// True if something was. The program must then end without tidying up: threads of libraries still
/// use what that would destroy. Callable in any thread.
bool isAnythingLeftBehind();

} // namespace CameraPool
