// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>

namespace FeatureTree {

/// A closed lock in the colour of muted text, sharp at every scale.
QIcon lockIcon();

} // namespace FeatureTree
