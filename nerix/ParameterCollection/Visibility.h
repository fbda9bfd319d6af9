// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

namespace ParameterCollection {

/// Whom a parameter is meant for, in GenApi's numbering (`EVisibility`): who sees the guru's
/// parameters sees the expert's and the beginner's as well.
enum Visibility : int {
    VisibilityBeginner = 0,
    VisibilityExpert = 1,
    VisibilityGuru = 2,
    VisibilityInvisible = 3 ///< not meant to be shown, but readable by name
};

} // namespace ParameterCollection
