// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// The versions of the viewer that a simulated fleet meets. "week": when one was published, counted
// from the first week of the simulation; "crashes": the share of sessions that end without a word.

export const releases = [
    { version: "7.0.0", build: "10890", week: -60, crashes: 0.02 },
    { version: "7.0.3", build: "10977", week: -30, crashes: 0.015 },
    { version: "7.1.0", build: "11271", week: -8, crashes: 0.012 },
    { version: "7.1.1", build: "11302", week: 3, crashes: 0.01 },
    { version: "7.2.0", build: "11460", week: 9, crashes: 0.06 },
    { version: "7.2.1", build: "11488", week: 13, crashes: 0.008 },
    { version: "7.3.0", build: "11604", week: 21, crashes: 0.008 },
];

// Who publishes for a shorter or longer simulation than 26 weeks still has all of them in it.
export function releasesFor(weeks) {
    return releases.map((release) => ({ ...release, week: (release.week * weeks) / 26 }));
}
