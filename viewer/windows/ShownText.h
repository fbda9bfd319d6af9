// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// How a text that came from outside (of a camera, a file, a script) is shown. It is data: whoever
/// named the camera must not choose how the window looks, what it loads, or how long it takes.
///
/// Control characters, and those that nobody sees (such as U+202E, which turns the rest of a line
/// around), are written out as in "\n", "\t" and "\u{202e}". What is shown already stays as it is
/// when it is shown once more. Callable in any thread.
namespace Windows {

/// As long as a line is of use in a list or a title.
constexpr int longestLine = 256;

/// As long as somebody may read in a label, a message or a tool tip.
constexpr int longestText = 4000;

/// \a foreign as a single line of at most \a limit characters before they are written out, and an
/// ellipsis if there are more.
QString shownLine(const QString &foreign, int limit = longestLine);

/// As `shownLine`, but what begins a new line in \a foreign does so in the result.
QString shownText(const QString &foreign, int limit = longestText);

/// As `shownText`, for a tool tip. Qt takes a tool tip for HTML when it looks like it, so a text
/// that does is given to it as HTML that shows just these characters.
QString toolTipText(const QString &foreign);

} // namespace Windows
