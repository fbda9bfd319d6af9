// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// Questions about grabs: kinds, lengths, rates, failures, and how soon the first image comes.

import { answer, keyRising, mostClients, othersLast, sortBy } from "./answer.js";
import { camerasOf, grabsOf, isGood, sessionsOf } from "./runs.js";
import { cut, is, kindOf, median, milliseconds, modelOf, placeOf, quotient } from "./terms.js";
import { fold, Groups } from "./threshold.js";

const second = 1000;
const minute = 60 * second;
const byPlace = sortBy(othersLast, keyRising);

const waits = ["under 2 s", "2 to 5 s", "5 to 10 s", "10 to 30 s", "30 to 60 s", "1 to 5 min",
    "5 to 30 min", "30 min or more"];
const waitBounds = [2 * second, 5 * second, 10 * second, 30 * second, minute, 5 * minute, 30 * minute];

// Milliseconds from the camera's connection to its first good grab.
function waitFor(camera) {
    const connected = camera.find((event) => is(event, "Camera", "Connected"));
    const begun = grabsOf(camera).filter(isGood).map(({ beginning }) => beginning)
        .filter((beginning) => beginning !== undefined);
    const first = begun.sort((one, other) => one.time - other.time)[0];
    return connected === undefined || first === undefined ? -1 : milliseconds(connected, first);
}

export function firstImage({ clients, inPeriod, threshold }) {
    const groups = new Groups(() => ({ cameras: 0 }));
    const all = [];
    for (const { client, events } of clients) {
        const sessions = sessionsOf(events).filter(({ start }) => inPeriod(start));
        const found = sessions.flatMap((session) => camerasOf(session.events).map(waitFor))
            .filter((wait) => wait >= 0);
        found.forEach((wait) => groups.of(client, placeOf(wait, waitBounds)).cameras++);
        all.push(...found);
    }
    const middle = median(all) / 1000;
    return answer(fold(groups.list(), threshold), byPlace, ({ key, who, cameras, isOthers }) => ({
        wait: isOthers ? "others" : waits[key[0] - 1],
        position: isOthers ? 0 : key[0],
        cameras,
        clients: who.size,
        median_seconds: middle,
    }));
}

const lengths = ["under 1 s", "1 to 10 s", "10 to 60 s", "1 to 10 min", "10 to 60 min", "1 h or more",
    "unknown"];
const lengthBounds = [second, 10 * second, minute, 10 * minute, 60 * minute];

function lengthPlace({ stopped, beginning }) {
    const length = beginning === undefined ? -1 : milliseconds(beginning, stopped);
    return length < 0 ? 7 : placeOf(length, lengthBounds);
}

export function grabLengths({ clients, inPeriod, threshold }) {
    const groups = new Groups(() => ({ grabs: 0 }));
    for (const { client, events } of clients) {
        grabsOf(events).filter(({ stopped }) => inPeriod(stopped))
            .forEach((grab) => groups.of(client, kindOf(grab.stopped), lengthPlace(grab)).grabs++);
    }
    return answer(fold(groups.list(), threshold), byPlace, ({ key, who, grabs, isOthers }) => ({
        kind: isOthers ? "others" : key[0],
        length: isOthers ? "" : lengths[key[1] - 1],
        position: isOthers ? 0 : key[1],
        clients: who.size,
        grabs,
    }));
}

const rates = ["unknown", "0", "1 to 5", "5 to 15", "15 to 30", "30 to 60", "60 to 120", "120 to 500",
    "500 or more"];
const rateBounds = [0, 1, 5, 15, 30, 60, 120, 500];

export function grabRates({ clients, inPeriod, threshold }) {
    const groups = new Groups(() => ({ grabs: 0 }));
    for (const { client, events } of clients) {
        for (const { stopped } of grabsOf(events).filter((grab) => inPeriod(grab.stopped))) {
            groups.of(client, placeOf(stopped.record.StatusBarStats.FPS, rateBounds)).grabs++;
        }
    }
    return answer(fold(groups.list(), threshold), byPlace, ({ key, who, grabs, isOthers }) => ({
        rate: isOthers ? "others" : rates[key[0] - 1],
        position: isOthers ? 0 : key[0],
        clients: who.size,
        grabs,
    }));
}

function countsImages({ stopped }) {
    const { TotalBufferCount, FailedBufferCount } = stopped.record.StreamStats;
    return TotalBufferCount >= 0 && FailedBufferCount >= 0;
}

export function failures({ clients, inPeriod, threshold }) {
    const groups = new Groups(() => ({ grabs: 0, images: 0, failed: 0 }));
    for (const { client, events } of clients) {
        for (const { stopped } of grabsOf(events).filter((grab) => inPeriod(grab.stopped)
            && countsImages(grab))) {
            const group = groups.of(client, modelOf(stopped), stopped.version);
            group.grabs += 1;
            group.images += stopped.record.StreamStats.TotalBufferCount;
            group.failed += stopped.record.StreamStats.FailedBufferCount;
        }
    }
    const rate = (group) => quotient(group.failed, group.images);
    const order = sortBy(othersLast, (one, other) => rate(other) - rate(one), keyRising);
    return answer(fold(groups.list(), threshold), order, (group) => ({
        model: group.isOthers ? "others" : group.key[0],
        version: group.isOthers ? "" : group.key[1],
        clients: group.who.size,
        grabs: group.grabs,
        images: group.images,
        failed: group.failed,
        rate: rate(group),
    }));
}

export function failureTexts({ clients, inPeriod, threshold }) {
    const groups = new Groups(() => ({ images: 0 }));
    for (const { client, events } of clients) {
        for (const { record } of events.filter((event) => is(event, "Grab", "Failed")
            && inPeriod(event))) {
            groups.of(client, record.ExceptionCode, cut(record.ExceptionText))
                .images += record.ExceptionCount;
        }
    }
    const order = sortBy(othersLast, mostClients, keyRising);
    return answer(fold(groups.list(), threshold), order, ({ key, who, images, isOthers }) => ({
        code: isOthers ? "others" : key[0],
        text: isOthers ? "" : key[1],
        clients: who.size,
        images,
    }));
}
