// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
import { statementsOf } from "../statements.js";
import { openStore, storeOptions, storeUsage } from "../store.js";

export const usage = `check ${storeUsage}`;
export const options = storeOptions;

/** What is stored, and what was kept out and why: [[what, number, explanation], ...]. */
export async function findings(engine) {
    return engine.rows(statementsOf("steps/check.sql")[0]);
}

export async function run(values) {
    const engine = await openStore(values);
    try {
        for (const [what, number, explanation] of await findings(engine)) {
            console.log(`${String(number).padStart(14)}  ${what.padEnd(22)} ${explanation}`);
        }
    } finally {
        await engine.close();
    }
}
