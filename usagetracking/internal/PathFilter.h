// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Plugin::UsageTracking::Internal {

/// `text` with "***" in place of everything from the first position from which the rest of it reads
/// as a path; `text` itself if there is none.
///
///     Failed to open C:\data\img.bmp     Failed to open ***
///     /tmp/x/                            ***
///     The grab timed out.                ***
///     ...                                ...
///
/// It rather masks too much than too little: a text without any slash whose first character is a
/// letter or digit counts as a bare file name. PathFilter.cpp defines what reads as a path.
///
/// Takes time in proportion to the length, whatever the text holds: it runs where the host waits.
/// Pure; may be called in any thread.
QString maskPaths(const QString &text);

} // namespace Plugin::UsageTracking::Internal
