// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

namespace rui {

// Makes sure that at the exit of the program every instance is destroyed before the libraries that
// its worker uses are torn down; a program may exit with open sessions. Any thread, any number of
// times.
void endSessionsAtExit();

} // namespace rui
