// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// A simulated fleet as files: for each week the requests that came over the network, one a line, as
// a collector's file exporter keeps them, and apart from them what was handed over.

import fs from "node:fs";
import path from "node:path";
import { gzipSync } from "node:zlib";

import { week } from "./client.js";
import { simulateFleet } from "./fleet.js";
import { requestText } from "./otlp.js";

// What is made into one text at a time.
const chunk = 2000;

function appendLines(file, deliveries, gzip) {
    let bytes = 0;
    for (let at = 0; at < deliveries.length; at += chunk) {
        const lines = deliveries.slice(at, at + chunk)
            .map(({ resource, events }) => `${requestText(resource, events)}\n`);
        const text = Buffer.from(lines.join(""));
        bytes += text.length;
        // Several compressed texts one after another are one.
        fs.appendFileSync(gzip ? `${file}.gz` : file, gzip ? gzipSync(text, { level: 1 }) : text);
    }
    return bytes;
}

// Files are named by the first day in them.
function writeDay(directory, firstDay, deliveries, gzip) {
    const date = new Date(firstDay / 1000).toISOString().slice(0, 10);
    const file = (kind) => path.join(directory, `${kind}-${date}.jsonl`);
    return appendLines(file("events"), deliveries.filter((entry) => !entry.handedOver), gzip)
        + appendLines(file("handed-over"), deliveries.filter((entry) => entry.handedOver), gzip);
}

// Returns {clients, requests, records, events, bytes}: "events" are those that differ, "clients"
// the random numbers that were seen, "bytes" before compression. "onDeliveries" gets each day's
// list.
export function writeFleet(directory, options, onDeliveries = () => {}) {
    const seen = new Set();
    const start = options.end - options.weeks * week;
    const sum = { requests: 0, records: 0, events: 0, bytes: 0 };
    for (const { day, deliveries } of simulateFleet(options)) {
        for (const { client, events, again } of deliveries) {
            seen.add(client.id);
            sum.records += events.length;
            sum.events += again ? 0 : events.length;
        }
        sum.requests += deliveries.length;
        const firstDay = day - ((day - start) % week);
        sum.bytes += writeDay(directory, firstDay, deliveries, options.gzip);
        onDeliveries(deliveries);
    }
    return { clients: seen.size, ...sum };
}
