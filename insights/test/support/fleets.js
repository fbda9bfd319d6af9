// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// Simulated fleets in files, loaded into stores of their own, and what is known about them.

import assert from "node:assert/strict";
import { spawnSync } from "node:child_process";
import { mkdirSync, mkdtempSync, rmSync } from "node:fs";
import { tmpdir } from "node:os";
import path from "node:path";
import { fileURLToPath } from "node:url";

import { Seen } from "../../fleet/truth/seen.js";
import { Truth } from "../../fleet/truth/truth.js";
import { writeFleet } from "../../fleet/write.js";

const day = 86400e6;
export const program = fileURLToPath(new URL("../../bin/nerix-insights", import.meta.url));
const askAll = fileURLToPath(new URL("ask-all.js", import.meta.url));

export const today = Math.floor(Date.now() * 1000 / day) * day;

export function dateOf(microseconds) {
    return new Date(microseconds / 1000).toISOString().slice(0, 10);
}

// The Monday that many weeks before the one of this week.
export function mondayAgo(weeks) {
    const monday = today - ((new Date(today / 1000).getUTCDay() + 6) % 7) * day;
    return dateOf(monday - weeks * 7 * day);
}

// A folder that is gone when the test is over.
export function temporaryFolder(context) {
    const folder = mkdtempSync(path.join(tmpdir(), "nerix-insights-test-"));
    context.after(() => rmSync(folder, { recursive: true, force: true }));
    return folder;
}

// Writes a fleet that ends today, and returns what a perfect receiver knows of it.
export function writeKnownFleet(folder, options) {
    mkdirSync(folder, { recursive: true });
    const seen = new Seen(Date.now() * 1000);
    const written = writeFleet(folder, { end: today, ...options },
        (deliveries) => deliveries.forEach((delivery) => seen.add(delivery)));
    return { ...written, seen, truth: new Truth(seen) };
}

// Runs a command of the program; its output, and the error output if it fails.
export function run(...args) {
    const { status, stdout, stderr } = spawnSync(process.execPath, [program, ...args],
        { encoding: "utf8", maxBuffer: 1 << 28 });
    assert.equal(status, 0, stderr);
    return stdout;
}

export function load(data, ...paths) {
    return run("load", ...paths, "--data", data);
}

// Answers to all questions, by name.
export function answersOf(data, { since, until, threshold = 5 }) {
    const { status, stdout, stderr } = spawnSync(process.execPath,
        [askAll, data, since, until, String(threshold)], { encoding: "utf8", maxBuffer: 1 << 28 });
    assert.equal(status, 0, stderr);
    return JSON.parse(stdout);
}
