// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
import { filesOf, loadFile, outcome } from "../load.js";
import { refresh } from "../refresh.js";
import { openStore, storeOptions, storeUsage } from "../store.js";
import { UserError } from "../user-error.js";

export const usage = `load FILE|DIRECTORY... ${storeUsage}`;
export const options = storeOptions;

function describe(counts) {
    const told = counts.map(([what, records]) => `${what} ${records}`);
    return told.length > 0 ? told.join(", ") : "no lines";
}

export async function run(values, paths) {
    if (paths.length === 0) {
        throw new UserError(`say what to load; usage: nerix-insights ${usage}`);
    }
    const files = filesOf(paths);
    const engine = await openStore(values);
    try {
        for (const [index, file] of files.entries()) {
            const load = await loadFile(engine, file);
            const result = load === null ? "loaded before" : describe(await outcome(engine, load));
            console.log(`${index + 1}/${files.length} ${file}: ${result}`);
        }
        await refresh(engine, (weeks) => console.log(`rolled up: ${weeks[0]} to ${weeks.at(-1)}`));
    } finally {
        await engine.close();
    }
}
