// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
import { createHash } from "node:crypto";

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

// The database over all shards has only what is asked; each shard keeps itself in order.
function isOverAllShards({ server }) {
    return server !== undefined && process.env.NERIX_INSIGHTS_DATABASE === "nerix_insights_all";
}

const appliedTable = "CREATE TABLE IF NOT EXISTS applied_schema (schema String,"
    + " at DateTime('UTC') DEFAULT now()) ENGINE = MergeTree ORDER BY at";

// Every statement can be repeated, but there are many: they are left out if nothing has changed.
async function applySchema(engine) {
    const statements = filesOf("./").flatMap(statementsOf);
    const schema = createHash("sha256").update(statements.join("")).digest("hex");
    await engine.run(appliedTable);
    const [[known]] = await engine.rows("SELECT argMax(schema, at) FROM applied_schema");
    if (known === schema) {
        return;
    }
    for (const statement of statements) {
        await engine.run(statement);
    }
    await engine.run("INSERT INTO applied_schema (schema) VALUES ({schema:String})", { schema });
}

/**
 * Opens the stored events that the options `data` or `server` name, makes what is missing, and ends
 * what an interrupted command has begun. Returns the engine: rows(), run(), loadLines(), sweep(), close().
 */
export async function openStore(options) {
    const engine = await openEngine(options);
    try {
        if (!isOverAllShards(options)) {
            await applySchema(engine);
            await refresh(engine);
        }
    } catch (error) {
        await engine.close();
        throw error;
    }
    return engine;
}
