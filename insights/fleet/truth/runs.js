// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// A client's events, taken apart into runs, sessions, cameras and grabs.

import { dayOf, is, mondayOf, numberOf } from "./terms.js";

// Each question asks for the same again: what was found for a list of events is kept with it.
function remembered(find) {
    const found = new WeakMap();
    return (events) => {
        if (!found.has(events)) {
            found.set(events, find(events));
        }
        return found.get(events);
    };
}

// Lists of the events for which "name" gives the same, in their order; undefined is no name.
function listsBy(name, events) {
    const lists = new Map();
    for (const event of events) {
        const key = name(event);
        if (key !== undefined) {
            const list = lists.get(key) ?? [];
            list.push(event);
            lists.set(key, list);
        }
    }
    return [...lists.values()];
}

// The runs of a client's events: lists, each in the order of time.
export const runsOf = remembered((events) => listsBy((event) => event.run, events));

// The runs that are sessions: {start, events}, "start" being the SessionStarted.
export function sessionsOf(events) {
    return runsOf(events)
        .map((run) => ({ start: run.find((event) => is(event, "GeneralEvent", "SessionStarted")),
            events: run }))
        .filter((session) => session.start !== undefined);
}

function cameraOf(event) {
    const number = ["Camera", "Grab"].includes(event.category) ? numberOf(event) : undefined;
    return number >= 0 ? number : undefined;
}

// The events of each camera of a run, but for changes of its values.
export const camerasOf = remembered((run) => listsBy(cameraOf, run));

// Where a grab began; undefined if that is not known. "events" are those of its camera.
function beginningOf(stopped, events) {
    const around = events.filter((event) => is(event, "Grab", "Started")
        || is(event, "Grab", "Stopped"));
    const before = around[around.indexOf(stopped) - 1];
    const known = before !== undefined && before.name === "Started"
        && dayOf(before.time) >= mondayOf(dayOf(stopped.time)) - 7;
    return known ? before : undefined;
}

// {stopped, beginning} of each grab of a client.
export const grabsOf = remembered((events) => {
    const beginnings = new Map();
    for (const camera of runsOf(events).flatMap(camerasOf)) {
        for (const stopped of camera.filter((event) => is(event, "Grab", "Stopped"))) {
            beginnings.set(stopped, beginningOf(stopped, camera));
        }
    }
    return events.filter((event) => is(event, "Grab", "Stopped"))
        .map((stopped) => ({ stopped, beginning: beginnings.get(stopped) }));
});

export function isGood({ stopped }) {
    const { TotalBufferCount: total, FailedBufferCount: failed } = stopped.record.StreamStats;
    return total >= 0 && failed >= 0 && total > failed;
}
