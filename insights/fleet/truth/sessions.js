// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// Questions about sessions: how long, how far, and whether they ended.

import { answer, keyRising, othersLast, sortBy } from "./answer.js";
import { sessionsOf } from "./runs.js";
import { dayOf, is, median, milliseconds, placeOf, quotient } from "./terms.js";
import { fold, Groups } from "./threshold.js";

const minute = 60 * 1000;
const hour = 60 * minute;
const byPlace = sortBy(othersLast, keyRising);

const lengths = ["under 1 min", "1 to 5 min", "5 to 30 min", "30 to 60 min", "1 to 4 h", "4 to 12 h",
    "12 h or more"];
const bounds = [minute, 5 * minute, 30 * minute, hour, 4 * hour, 12 * hour];

function begunInPeriod({ events }, inPeriod) {
    return sessionsOf(events).filter(({ start }) => inPeriod(start));
}

export function sessionLengths({ clients, inPeriod, threshold }) {
    const groups = new Groups(() => ({ sessions: 0 }));
    const all = [];
    for (const client of clients) {
        for (const { start, events } of begunInPeriod(client, inPeriod)) {
            const length = milliseconds(start, events.at(-1));
            groups.of(client.client, placeOf(length, bounds)).sessions++;
            all.push(length);
        }
    }
    const middle = median(all) / 1000;
    return answer(fold(groups.list(), threshold), byPlace, ({ key, who, sessions, isOthers }) => ({
        length: isOthers ? "others" : lengths[key[0] - 1],
        position: isOthers ? 0 : key[0],
        sessions,
        clients: who.size,
        median_seconds: middle,
    }));
}

const steps = [
    { name: "started", isReachedBy: () => true },
    { name: "connected", isReachedBy: (event) => is(event, "Camera", "Connected") },
    { name: "opened", isReachedBy: (event) => is(event, "Camera", "Opened") },
    { name: "changed", isReachedBy: (event) => is(event, "ParameterValueChanged") },
    { name: "grabbed", isReachedBy: (event) => is(event, "Grab", "Stopped") },
];

function furthest(events) {
    const missed = steps.findIndex((step) => !events.some(step.isReachedBy));
    return missed === -1 ? steps.length : missed;
}

export function sessionFunnel({ clients, inPeriod, threshold }) {
    const groups = new Groups(() => ({ sessions: 0 }));
    for (const client of clients) {
        begunInPeriod(client, inPeriod)
            .forEach(({ events }) => groups.of(client.client, furthest(events)).sessions++);
    }
    const result = fold(groups.list(), threshold);
    const reached = (group) => result.shown
        .filter((other) => !other.isOthers && other.key[0] >= group.key[0])
        .reduce((sum, other) => sum + other.sessions, 0);
    return answer(result, byPlace, (group) => ({
        step: group.isOthers ? "others" : steps[group.key[0] - 1].name,
        position: group.isOthers ? 0 : group.key[0],
        sessions: group.sessions,
        reached: group.isOthers ? group.sessions : reached(group),
        clients: group.who.size,
    }));
}

export function sessionsUnended({ clients, inPeriod, until, threshold }) {
    const groups = new Groups(() => ({ sessions: 0, unended: 0 }));
    for (const client of clients) {
        for (const { start, events } of begunInPeriod(client, inPeriod)
            .filter((session) => dayOf(session.start.time) < until - 7)) {
            const group = groups.of(client.client, start.version);
            group.sessions += 1;
            group.unended += events.some((event) => is(event, "GeneralEvent", "SessionEnded")) ? 0 : 1;
        }
    }
    const rate = (group) => quotient(group.unended, group.sessions);
    const order = sortBy(othersLast, (one, other) => rate(other) - rate(one), keyRising);
    return answer(fold(groups.list(), threshold), order, (group) => ({
        version: group.isOthers ? "others" : group.key[0],
        clients: group.who.size,
        sessions: group.sessions,
        unended: group.unended,
        rate: rate(group),
    }));
}
