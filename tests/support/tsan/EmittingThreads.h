// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

/// Which threads are in an emission, so that a receiver can wait until they have told what they
/// wrote in it. All functions may be called in any thread; a thread tells what it has written to
/// the sanitizer before it calls one of them but the wait.
namespace TsanSupport {

void enterEmission();
void leaveEmission();

/// The calling thread delivers an event inside its emissions; returns how many there are.
int interruptEmissions();
void resumeEmissions(int interrupted);

/// Returns as soon as every other thread that is in an emission has entered or left one since, or
/// sleeps in it. No longer than a second.
void waitForOtherEmissions();

} // namespace TsanSupport
