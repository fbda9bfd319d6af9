// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
import { filesOf } from "../files.js";
import { batchesOf, loadBatch, outcome } from "../load.js";
import { refresh } from "../refresh.js";
import { openStore, storeOptions, storeUsage } from "../store.js";
import { UserError } from "../user-error.js";

export const usage = `load FILE|DIRECTORY... ${storeUsage}`;
export const options = storeOptions;

function describe(counts) {
    const told = counts.map(([what, records]) => `${what} ${records}`);
    return told.length > 0 ? told.join(", ") : "no lines";
}

// Returns a text for each file that could not be loaded; the others are.
async function loadAll(engine, files) {
    const failures = [];
    let done = 0;
    for (const batch of batchesOf(files, engine)) {
        for (const { path, load, error } of await loadBatch(engine, batch)) {
            done += 1;
            const result = error ?? (load === null ? "loaded before" : describe(await outcome(engine, load)));
            console.log(`${done}/${files.length} ${path}: ${result}`);
            failures.push(...error === undefined ? [] : [`${path}: ${error}`]);
        }
    }
    return failures;
}

export async function run(values, paths) {
    if (paths.length === 0) {
        throw new UserError(`say what to load; usage: nerix-insights ${usage}`);
    }
    const files = filesOf(paths);
    const engine = await openStore(values);
    try {
        const failures = await loadAll(engine, files);
        await refresh(engine, (weeks) => console.log(`rolled up: ${weeks[0]} to ${weeks.at(-1)}`));
        if (failures.length > 0) {
            throw new UserError(`not loaded: ${failures.join("; ")}`);
        }
    } finally {
        await engine.close();
    }
}
