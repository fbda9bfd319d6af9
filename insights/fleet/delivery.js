// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// How events travel: in requests that come at once, late, twice, or by hand from a machine without
// a network; and which of them are lost on the way. A delivery is one request: {arrival, client,
// resource, events, handedOver, again}. Arrivals are by the collector's clock.

import { day, second, week } from "./client.js";

// What the library puts into one request at most, and the silence after which it has sent all.
const maxRecords = 100;
const silence = 30 * second;

const latency = 2 * second;

const reasons = ["maxAge", "maxBytes", "maxEvents", "partlyRejected", "rejected", "storage"];

function requestsOf(events) {
    const requests = [];
    let last = -Infinity;
    for (const event of events) {
        const current = requests[requests.length - 1];
        if (current === undefined || event.time - last > silence || current.length === maxRecords) {
            requests.push([event]);
        } else {
            current.push(event);
        }
        last = event.time;
    }
    return requests;
}

// A tool of the library's own tells that events are missing; it goes with the events that follow.
function lossNotice(client, time, lost) {
    const uid = client.chance.ulid(Math.max(0, Math.floor(time / 1000)));
    return { time, uid, category: "ruiSDK", name: "EventsLost", record: lost };
}

// Takes some events out of a session that had too little room, and remembers how many.
function lose(client, events) {
    const { chance } = client;
    if (!chance.is(0.01) || events.length < 4) {
        return events;
    }
    const from = chance.integer(0, events.length - 2);
    const until = chance.integer(from + 1, events.length);
    client.lost = { ...client.lost };
    const reason = chance.pick(reasons);
    client.lost[reason] = (client.lost[reason] ?? 0) + until - from;
    return events.filter((event, at) => at < from || at >= until);
}

function withNotice(client, events, lost) {
    if (lost === undefined || events.length === 0) {
        return events;
    }
    client.lost = undefined;
    return [...events, lossNotice(client, events[events.length - 1].time + 1, lost)];
}

// Stations without a network are visited every third week.
function nextVisit(time) {
    return (Math.floor(time / (3 * week)) + 1) * 3 * week;
}

function arrivalOf(client, sent, offlineUntil) {
    return client.handsOver ? nextVisit(sent) : Math.max(sent, offlineUntil) + latency;
}

function repeated(delivery, chance) {
    const later = chance.is(0.5) ? chance.waiting(5 * 60 * second) : chance.waiting(4 * day);
    return { ...delivery, arrival: delivery.arrival + later, again: true };
}

// What an opt-out finds undelivered, it deletes.
function survives(delivery, client) {
    return delivery.arrival < client.withdraws;
}

export function deliveriesOf({ client, resource, start, events }) {
    const { chance } = client;
    const told = client.lost;
    const offlineUntil = chance.is(0.03) ? start + chance.waiting(6 * day) : 0;
    const toReal = start - events[0].time;
    const kept = withNotice(client, lose(client, events), told);
    const once = requestsOf(kept)
        .map((list) => ({ client, resource, events: list, handedOver: client.handsOver, again: false,
            arrival: arrivalOf(client, list[list.length - 1].time + toReal, offlineUntil) }))
        .filter((delivery) => survives(delivery, client));
    const twice = once.filter(() => chance.is(0.015)).map((entry) => repeated(entry, chance));
    return [...once, ...twice];
}

// A withdrawal travels alone.
export function withdrawalOf(client, resource) {
    const time = Math.round(client.withdraws + client.clock);
    const uid = client.chance.ulid(Math.max(0, Math.floor(time / 1000)));
    return { client, resource, arrival: client.withdraws + latency, handedOver: false, again: false,
        events: [{ time, uid, category: "ruiSDK", name: "OptOut" }] };
}
