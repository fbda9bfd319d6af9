// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
import { UserError } from "./user-error.js";
import { EmbeddedEngine } from "./engine/embedded.js";
import { ServerEngine } from "./engine/server.js";
import { filesOf, statementsOf } from "./statements.js";
import { refresh } from "./refresh.js";

/** Options of every command that works on stored events. */
export const storeOptions = { data: { type: "string" }, server: { type: "string" } };
export const storeUsage = "--data DIRECTORY | --server URL";

async function openEngine({ data, server }) {
    if ((data === undefined) === (server === undefined)) {
        throw new UserError("say where the events are: --data DIRECTORY, or --server URL");
    }
    return data === undefined ? ServerEngine.open(server) : EmbeddedEngine.open(data);
}

async function applySchema(engine) {
    for (const file of filesOf("./")) {
        for (const statement of statementsOf(file)) {
            await engine.run(statement);
        }
    }
}

/**
 * Opens the stored events that the options `data` or `server` name, makes what is missing, and ends
 * what an interrupted command has begun. Returns the engine: rows(), run(), runOnFile(), close().
 */
export async function openStore(options) {
    const engine = await openEngine(options);
    try {
        await applySchema(engine);
        await refresh(engine);
    } catch (error) {
        await engine.close();
        throw error;
    }
    return engine;
}
