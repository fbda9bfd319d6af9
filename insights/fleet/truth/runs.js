// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// A client's events, taken apart into runs, sessions, cameras and grabs.

import { dayOf, is, mondayOf, numberOf, weekOf } from "./terms.js";

// The runs of a client's events: lists, each in the order of time.
export function runsOf(events) {
    const runs = new Map();
    for (const event of events) {
        if (event.run !== undefined) {
            runs.set(event.run, []);
        }
    }
    for (const event of events) {
        runs.get(event.run)?.push(event);
    }
    return [...runs.values()];
}

// The runs that are sessions: {start, events}, "start" being the SessionStarted.
export function sessionsOf(events) {
    return runsOf(events)
        .map((run) => ({ start: run.find((event) => is(event, "GeneralEvent", "SessionStarted")),
            events: run }))
        .filter((session) => session.start !== undefined);
}

// The events of each camera of a run.
export function camerasOf(run) {
    const cameras = new Map();
    for (const event of run) {
        const number = event.category === "Camera" || event.category === "Grab"
            ? numberOf(event) : undefined;
        if (number >= 0) {
            cameras.set(number, [...(cameras.get(number) ?? []), event]);
        }
    }
    return [...cameras.values()];
}

// Where a grab began; undefined if that is not known. "events" are those of its camera.
function beginningOf(stopped, events) {
    const around = events.filter((event) => is(event, "Grab", "Started")
        || is(event, "Grab", "Stopped"));
    const before = around[around.indexOf(stopped) - 1];
    const known = before !== undefined && before.name === "Started"
        && dayOf(before.time) >= mondayOf(dayOf(stopped.time)) - 7;
    return known ? before : undefined;
}

// {stopped, beginning, week} of each grab of a client.
export function grabsOf(events) {
    const beginnings = new Map();
    for (const camera of runsOf(events).flatMap(camerasOf)) {
        for (const stopped of camera.filter((event) => is(event, "Grab", "Stopped"))) {
            beginnings.set(stopped, beginningOf(stopped, camera));
        }
    }
    return events.filter((event) => is(event, "Grab", "Stopped"))
        .map((stopped) => ({ stopped, beginning: beginnings.get(stopped), week: weekOf(stopped) }));
}

export function isGood({ stopped }) {
    const { TotalBufferCount: total, FailedBufferCount: failed } = stopped.record.StreamStats;
    return total >= 0 && failed >= 0 && total > failed;
}
