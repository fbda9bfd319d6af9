// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// Questions about clients: who is there, who came, who came back, who has which version.

import { answer, keyRising, othersLast, sortBy } from "./answer.js";
import { dateOf, dayOf, is, mondayOf, quotient, weekOf } from "./terms.js";
import { fold, foldBy, Groups, leaveOut } from "./threshold.js";

const byWeek = sortBy(keyRising);

export function activeClients({ clients, inPeriod, threshold }) {
    const weeks = new Groups(() => ({ events: 0 }));
    for (const { client, events } of clients) {
        events.filter(inPeriod).forEach((event) => weeks.of(client, weekOf(event)).events++);
    }
    return answer(leaveOut(weeks.list(), threshold), byWeek, (group) => (
        { week: dateOf(group.key[0]), clients: group.who.size, events: group.events }));
}

export function versions({ clients, inPeriod, threshold }) {
    const groups = new Groups();
    for (const { client, events } of clients) {
        const last = new Map(events.filter(inPeriod)
            .map((event) => [weekOf(event), event.version]));
        last.forEach((version, week) => groups.of(client, week, version));
    }
    const order = sortBy((one, other) => one.key[0] - other.key[0], othersLast, keyRising);
    return answer(foldBy(1, groups.list(), threshold), order, (group) => ({
        week: dateOf(group.key[0]),
        version: group.isOthers ? "others" : group.key[1],
        clients: group.who.size,
    }));
}

export function consent({ clients, withdrawals, since, until, inPeriod, threshold }) {
    const groups = new Groups();
    for (const { client, events } of clients) {
        if (inPeriod(events[0])) {
            groups.of(client, weekOf(events[0]), "given");
        }
    }
    for (const [client, time] of withdrawals) {
        if (dayOf(time) >= since && dayOf(time) < until) {
            groups.of(client, mondayOf(dayOf(time)), "withdrawn");
        }
    }
    const result = answer(leaveOut(groups.list(), threshold), sortBy(keyRising), (group) => (
        { week: dateOf(group.key[0]), what: group.key[1], clients: group.who.size }));
    return { ...result, speaksFor: result.rows.reduce((sum, row) => sum + row.clients, 0) };
}

function cohortsOf(clients, since, until) {
    const cohorts = new Map();
    for (const { client, events } of clients) {
        const first = weekOf(events[0]);
        if (first >= since && first < until) {
            const weeks = new Set(events.filter((event) => dayOf(event.time) < until).map(weekOf));
            cohorts.set(first, [...(cohorts.get(first) ?? []), { client, weeks }]);
        }
    }
    return [...cohorts].sort(([one], [other]) => one - other);
}

function cellsOf(first, members) {
    const cells = new Groups();
    for (const { client, weeks } of members) {
        weeks.forEach((week) => cells.of(client, first, (week - first) / 7));
    }
    return cells.list().map((cell) => ({ ...cell, size: members.filter(
        (member) => member.weeks.has(first)).length }));
}

export function returningClients({ clients, since, until, threshold }) {
    const cells = cohortsOf(clients, since, until)
        .flatMap(([first, members]) => cellsOf(first, members));
    const shown = cells.filter(({ who, size }) => who.size >= threshold
        && (who.size === size || size - who.size >= threshold));
    return answer({ shown, leftOut: cells.length - shown.length }, byWeek, ({ key, who, size }) => ({
        first_week: dateOf(key[0]),
        weeks_later: key[1],
        clients: who.size,
        of: size,
        rate: quotient(who.size, size),
    }));
}

// "7.10.2" is newer than "7.9".
function newerFirst(one, other) {
    const [left, right] = [one, other].map((text) => (text.match(/\d{1,9}/g) ?? []).map(Number));
    for (let at = 0; at < Math.min(left.length, right.length); ++at) {
        if (left[at] !== right[at]) {
            return right[at] - left[at];
        }
    }
    return right.length - left.length
        || Buffer.compare(Buffer.from(other), Buffer.from(one));
}

function stateOf(version, newest) {
    if (newest === undefined) {
        return "";
    }
    const order = newerFirst(version, newest);
    return order === 0 ? "newest" : order < 0 ? "newer" : "older";
}

export function notUpdated({ clients, since, until, threshold }) {
    const groups = new Groups();
    for (const { client, events } of clients) {
        const last = events.filter(({ time }) => dayOf(time) >= Math.max(since, until - 28)
            && dayOf(time) < until).at(-1);
        if (last !== undefined) {
            groups.of(client, last.version);
        }
    }
    const newest = groups.list().filter((group) => group.who.size >= threshold)
        .map((group) => group.key[0]).sort(newerFirst)[0];
    const order = sortBy(othersLast, (one, other) => newerFirst(one.key[0], other.key[0]));
    return answer(fold(groups.list(), threshold), order, ({ key, who, isOthers }) => ({
        version: isOthers ? "others" : key[0],
        state: isOthers ? "" : stateOf(key[0], newest),
        clients: who.size,
    }));
}

// Reasons that the library tells of, each with how many events it took.
export function eventsLost({ clients, inPeriod, threshold }) {
    const groups = new Groups(() => ({ events: 0 }));
    for (const { client, events } of clients) {
        for (const event of events.filter((entry) => is(entry, "ruiSDK", "EventsLost"))) {
            for (const [reason, lost] of inPeriod(event) ? Object.entries(event.record) : []) {
                groups.of(client, reason).events += lost;
            }
        }
    }
    const order = sortBy(othersLast, (one, other) => other.events - one.events, keyRising);
    return answer(fold(groups.list(), threshold), order, ({ key, who, events, isOthers }) => (
        { reason: isOthers ? "others" : key[0], clients: who.size, events }));
}
