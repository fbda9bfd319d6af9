// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// The requests of a simulated fleet as single lines, to be mixed, cut and damaged.

import { writeFileSync } from "node:fs";
import path from "node:path";

import { simulateFleet } from "../../fleet/fleet.js";
import { requestText } from "../../fleet/otlp.js";
import { Seen } from "../../fleet/truth/seen.js";
import { today } from "./fleets.js";

// {lines, deliveries, seen}: "lines" are the deliveries' texts.
export function fleetLines(options) {
    const seen = new Seen(Date.now() * 1000);
    const deliveries = [...simulateFleet({ end: today, ...options })].flatMap((day) => day.deliveries);
    deliveries.forEach((delivery) => seen.add(delivery));
    return { deliveries, seen, lines: deliveries.map((entry) => requestText(entry.resource, entry.events)) };
}

export function shuffled(list, chance) {
    return list.map((entry) => ({ entry, rank: chance.fraction() }))
        .sort((one, other) => one.rank - other.rank).map(({ entry }) => entry);
}

// So many parts, cut at random places.
export function pieces(list, count, chance) {
    const cuts = Array.from({ length: count - 1 }, () => chance.integer(0, list.length))
        .sort((one, other) => one - other);
    return [0, ...cuts].map((from, at) => list.slice(from, cuts[at] ?? list.length));
}

// Writes each part to a file of its own, named in their order; returns the files.
export function writePieces(folder, parts) {
    return parts.map((part, at) => {
        const file = path.join(folder, `piece-${String(at).padStart(3, "0")}.jsonl`);
        writeFileSync(file, part.map((line) => `${line}\n`).join(""));
        return file;
    });
}
