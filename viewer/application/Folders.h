// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Application {

/// Where the plug-ins that belong to the viewer are. Needs the application object, like the others:
/// all are found from the place of the program, so that a build tree and an installed tree work
/// alike.
QString pluginFolder();

/// Where the documents of the help are.
QString documentFolder();

/// The program that shows what the analytics library keeps; it stands beside the viewer.
QString eventsTool();

} // namespace Application
