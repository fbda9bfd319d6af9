// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

import assert from "node:assert/strict";
import { createHash } from "node:crypto";
import test from "node:test";

import { simulateFleet } from "../../fleet/fleet.js";
import { requestText } from "../../fleet/otlp.js";

const end = Date.UTC(2026, 10, 16) * 1000;

function deliveriesOf(options) {
    const fleet = simulateFleet({ clients: 150, weeks: 12, seed: 1, end, ...options });
    return [...fleet].flatMap(({ deliveries }) => deliveries);
}

function textsOf(deliveries) {
    return deliveries.map(({ resource, events }) => requestText(resource, events));
}

function digest(texts) {
    return createHash("sha256").update(texts.join("\n")).digest("hex");
}

const deliveries = deliveriesOf({});
const events = deliveries.filter(({ again }) => !again).flatMap((delivery) => delivery.events);

test("a seed gives the same bytes each time, and another seed gives others", () => {
    const small = { clients: 20, weeks: 4 };
    const digests = [1, 1, 2].map((seed) => digest(textsOf(deliveriesOf({ ...small, seed }))));
    assert.equal(digests[0], digests[1]);
    assert.notEqual(digests[0], digests[2]);
});

test("a larger fleet has the smaller one in it", () => {
    const small = textsOf(deliveriesOf({ clients: 20, weeks: 4 }));
    const large = new Set(textsOf(deliveriesOf({ clients: 40, weeks: 4 })));
    assert.deepEqual(small.filter((text) => !large.has(text)), []);
});

test("requests come in the order of their arrival and within the simulated time", () => {
    const arrivals = deliveries.map(({ arrival }) => arrival);
    assert.deepEqual(arrivals, [...arrivals].sort((one, other) => one - other));
    assert.ok(arrivals[0] >= end - 12 * 7 * 86400e6 && arrivals.at(-1) < end);
});

test("a request is no larger than the library makes it", () => {
    assert.ok(Math.max(...deliveries.map((delivery) => delivery.events.length)) <= 100);
    assert.ok(Math.max(...textsOf(deliveries).map(Buffer.byteLength)) <= 1048576);
});

test("only what comes twice has an identifier twice", () => {
    assert.equal(new Set(events.map(({ uid }) => uid)).size, events.length);
    const twice = deliveries.filter(({ again }) => again);
    assert.ok(twice.length > 20);
    const known = new Set(events.map(({ uid }) => uid));
    assert.ok(twice.every((delivery) => delivery.events.every(({ uid }) => known.has(uid))));
});

test("a withdrawal travels alone, and only repetitions follow it", () => {
    const isWithdrawal = (delivery) => delivery.events.some(({ name }) => name === "OptOut");
    const withdrawals = deliveries.filter(isWithdrawal);
    assert.ok(withdrawals.length >= 3);
    for (const withdrawal of withdrawals) {
        assert.equal(withdrawal.events.length, 1);
        const later = deliveries.slice(deliveries.indexOf(withdrawal) + 1)
            .filter(({ resource }) => resource["rui.client.id"] === withdrawal.resource["rui.client.id"]);
        assert.ok(later.every(({ again }) => again));
    }
});

test("every fault that a fleet can have is in it", () => {
    const runs = new Map(events.map((event) => [event.run, event.name]));
    const crashed = [...runs].filter(([run, last]) => run && last !== "SessionEnded").length;
    assert.ok(crashed > 10 && crashed < runs.size / 5, `${crashed} of ${runs.size}`);
    assert.ok(events.some(({ name }) => name === "EventsLost"));
    assert.ok(events.some(({ category, name }) => category === "Grab" && name === "Failed"));
    assert.ok(deliveries.some(({ handedOver }) => handedOver));
    const waited = deliveries.filter(({ arrival, events: [{ time }] }) => arrival - time > 86400e6);
    assert.ok(waited.length > 20);
});

test("some clocks are wrong by years", () => {
    const years = new Set([...simulateFleet({ clients: 1500, weeks: 1, seed: 1, end })]
        .flatMap((day) => day.deliveries).map((delivery) => (
            new Date(delivery.events[0].time / 1000).getUTCFullYear())));
    assert.deepEqual([...years].sort(), [1970, 2026, 2100]);
});

test("a bad version crashes more often than the one that mends it", () => {
    const share = (version) => {
        const all = deliveries.filter(({ resource }) => resource["service.version"] === version)
            .flatMap((delivery) => delivery.events);
        const ends = all.filter(({ name }) => name === "SessionEnded").length;
        return 1 - ends / all.filter(({ name }) => name === "SessionStarted").length;
    };
    assert.ok(share("7.2.0") > 2 * share("7.2.1"), `${share("7.2.0")} and ${share("7.2.1")}`);
});
