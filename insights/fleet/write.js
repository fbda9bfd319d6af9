// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// A simulated fleet as files: for each day the requests that came over the network, one a line, as a
// collector's file exporter keeps them, and apart from them what was handed over.

import fs from "node:fs";
import path from "node:path";
import { gzipSync } from "node:zlib";

import { simulateFleet } from "./fleet.js";
import { requestText } from "./otlp.js";

function linesOf(deliveries) {
    const lines = deliveries.map(({ resource, events }) => requestText(resource, events));
    return lines.map((line) => `${line}\n`).join("");
}

function writeFile(file, deliveries, gzip) {
    if (deliveries.length === 0) {
        return 0;
    }
    const text = Buffer.from(linesOf(deliveries));
    fs.writeFileSync(gzip ? `${file}.gz` : file, gzip ? gzipSync(text, { level: 1 }) : text);
    return text.length;
}

function writeDay(directory, day, deliveries, gzip) {
    const date = new Date(day / 1000).toISOString().slice(0, 10);
    const file = (kind) => path.join(directory, `${kind}-${date}.jsonl`);
    return writeFile(file("events"), deliveries.filter((entry) => !entry.handedOver), gzip)
        + writeFile(file("handed-over"), deliveries.filter((entry) => entry.handedOver), gzip);
}

// Returns {clients, requests, records, events, bytes}: "events" are those that differ, "clients" the
// random numbers that were seen, "bytes" before compression. "onDeliveries" gets each day's list.
export function writeFleet(directory, options, onDeliveries = () => {}) {
    const seen = new Set();
    const sum = { requests: 0, records: 0, events: 0, bytes: 0 };
    for (const { day, deliveries } of simulateFleet(options)) {
        for (const { client, events, again } of deliveries) {
            seen.add(client.id);
            sum.records += events.length;
            sum.events += again ? 0 : events.length;
        }
        sum.requests += deliveries.length;
        sum.bytes += writeDay(directory, day, deliveries, options.gzip);
        onDeliveries(deliveries);
    }
    return { clients: seen.size, ...sum };
}
