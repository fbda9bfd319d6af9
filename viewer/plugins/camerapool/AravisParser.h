// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

namespace CameraPool {

/// Aravis (0.8.26) keeps the state of its parser of descriptions in one place for the whole
/// program: two threads that open cameras at the same time mix these up. So its two functions that
/// parse end in functions of this file, which let one thread in at a time.
///
/// True once a description was parsed that way. False after a camera was opened means that Aravis
/// parses past them.
bool isParsedOneAtATime();

} // namespace CameraPool
