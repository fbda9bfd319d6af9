// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
import { eraseClient } from "../erase.js";
import { openStore, storeOptions, storeUsage } from "../store.js";
import { UserError } from "../user-error.js";

export const usage = `erase --client ID ${storeUsage}`;
export const options = { ...storeOptions, client: { type: "string" } };

export async function run(values) {
    if (values.client === undefined) {
        throw new UserError(`say whom to erase; usage: nerix-insights ${usage}`);
    }
    const engine = await openStore(values);
    try {
        await eraseClient(engine, values.client);
        console.log("Erased; what comes later of this client is kept out.");
    } finally {
        await engine.close();
    }
}
