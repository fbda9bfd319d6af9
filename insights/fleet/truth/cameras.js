// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// Questions about cameras: which models, how many, how much of the network's packets they lose.

import { answer, keyRising, mostClients, othersLast, sortBy } from "./answer.js";
import { runsOf, grabsOf } from "./runs.js";
import { is, modelOf, quotient } from "./terms.js";
import { fold, Groups } from "./threshold.js";

function openedIn(run, inPeriod) {
    return run.filter((event) => is(event, "Camera", "Opened") && inPeriod(event));
}

function differentNumbers(events) {
    return new Set(events.map((event) => event.record.CameraNr)).size;
}

// The largest of all counts that come under one name.
function mostOfEach(pairs) {
    const most = new Map();
    for (const [name, count] of pairs) {
        most.set(name, Math.max(most.get(name) ?? 0, count));
    }
    return most;
}

function countsByModel(run, inPeriod) {
    const opened = openedIn(run, inPeriod);
    return [...new Set(opened.map(modelOf))].map((model) => [model,
        differentNumbers(opened.filter((event) => modelOf(event) === model))]);
}

export function cameraModels({ clients, inPeriod, threshold }) {
    const groups = new Groups(() => ({ cameras: 0 }));
    for (const { client, events } of clients) {
        const most = mostOfEach(runsOf(events).flatMap((run) => countsByModel(run, inPeriod)));
        most.forEach((count, model) => { groups.of(client, model).cameras += count; });
    }
    const order = sortBy(othersLast, mostClients, keyRising);
    return answer(fold(groups.list(), threshold), order, ({ key, who, cameras, isOthers }) => (
        { model: isOthers ? "others" : key[0], clients: who.size, cameras }));
}

function countName(count) {
    if (count < 5) {
        return String(count);
    }
    return count < 9 ? "5 to 8" : "9 or more";
}

export function camerasPerClient({ clients, inPeriod, threshold }) {
    const groups = new Groups();
    for (const { client, events } of clients) {
        const most = Math.max(0, ...runsOf(events)
            .map((run) => differentNumbers(openedIn(run, inPeriod))));
        if (most > 0) {
            groups.of(client, countName(most));
        }
    }
    return answer(fold(groups.list(), threshold), sortBy(othersLast, keyRising),
        ({ key, who, isOthers }) => ({ cameras: isOthers ? "others" : key[0], clients: who.size }));
}

function countsPackets({ stopped }) {
    const { StreamStats: stream } = stopped.record;
    return stream.TotalPacketCount >= 0 && stream.FailedPacketCount >= 0
        && stream.ResendPacketCount >= 0;
}

function addPackets(group, stream) {
    group.grabs += 1;
    group.packets += stream.TotalPacketCount;
    group.lost += stream.FailedPacketCount;
    group.resent += stream.ResendPacketCount;
}

export function packetLoss({ clients, inPeriod, threshold }) {
    const groups = new Groups(() => ({ grabs: 0, packets: 0, lost: 0, resent: 0 }));
    for (const { client, events } of clients) {
        grabsOf(events).filter(({ stopped }) => inPeriod(stopped)).filter(countsPackets)
            .forEach(({ stopped }) => addPackets(groups.of(client, modelOf(stopped)),
                stopped.record.StreamStats));
    }
    const rate = (group) => quotient(group.lost, group.packets);
    const order = sortBy(othersLast, (one, other) => rate(other) - rate(one), keyRising);
    return answer(fold(groups.list(), threshold), order, (group) => ({
        model: group.isOthers ? "others" : group.key[0],
        clients: group.who.size,
        grabs: group.grabs,
        packets: group.packets,
        lost: group.lost,
        resent: group.resent,
        lost_rate: rate(group),
        resent_rate: quotient(group.resent, group.packets),
    }));
}
