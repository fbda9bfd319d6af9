// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

namespace CameraPool {

/// The times that the pool keeps, in milliseconds. Tests shorten them.
struct CPoolTiming
{
    /// From the viewer's `initializationDone` to the first search. Plug-ins begin to listen a
    /// moment after that signal, through timers of 100 ms in threads of their own; a camera that
    /// was reported earlier would be missed by them.
    int firstSearchDelay = 500;

    /// Between two searches, so that the network is not searched all the time, and that an opening,
    /// for which Aravis waits until it has searched, is not held up for long.
    int searchPause = 500;

    /// How long a camera that answers may take until it is open: longer than one takes that tells
    /// all of its features over a slow line, and shorter than a script waits.
    int openingLimit = 25000;

    /// How long a camera that is being closed may keep those waiting who still read it.
    int closingLimit = 3000;
};

} // namespace CameraPool
