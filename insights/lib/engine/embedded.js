// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
import { mkdirSync } from "node:fs";
import { resolve } from "node:path";
import { UserError } from "../user-error.js";
import { settings } from "./settings.js";

// A file that is mapped counts as memory of this process, all of it.
const onlyHere = { storage_file_read_method: "pread" };

async function connect(folder) {
    let chdb;
    try {
        chdb = await import("chdb");
    } catch {
        throw new UserError("the engine is not installed: run \"npm ci\" in the folder insights");
    }
    try {
        mkdirSync(folder, { recursive: true });
        return new chdb.Session(folder, {
            connectionArgs: Object.entries({ ...settings, ...onlyHere }).map(([name, value]) => `--${name}=${value}`),
        });
    } catch (error) {
        throw new UserError(`${folder} cannot be used: another nerix-insights works in it`
            + ` (wait for its end), or it is no folder that you may write to (${error.code})`);
    }
}

/**
 * The engine in this process; its data lies in `folder`, which one process uses at a time.
 * One call after the other.
 */
export class EmbeddedEngine {
    static async open(folder) {
        const engine = new EmbeddedEngine();
        engine.session = await connect(resolve(folder));
        await engine.run("CREATE DATABASE IF NOT EXISTS nerix_insights");
        await engine.run("USE nerix_insights");
        return engine;
    }

    /** How long after its time what others insert may be seen: there are no others here. */
    secondsUntilSeen = 0;

    /** Whether loadLines() takes many files as well as one. */
    readsFilesTogether = true;

    async query(sql, parameters, format) {
        try {
            return (await this.session.queryBindAsync(sql, parameters, { format })).text();
        } catch (error) {
            throw new UserError(`the engine: ${error.message.split("\n")[0]}`, { cause: error });
        }
    }

    /** The rows of a query, as arrays. Values of `parameters` are bound, never part of the text. */
    async rows(sql, parameters = {}) {
        return (await this.query(sql, parameters, "JSONCompactEachRow")).split("\n").filter(Boolean).map((line) => JSON.parse(line));
    }

    async run(sql, parameters = {}) {
        await this.query(sql, parameters, "Null");
    }

    /** Hands the lines of all files in a folder on; their names begin with the number of their load. */
    async loadLines(folder) {
        await this.run("INSERT INTO incoming SELECT toUInt64(extract(_file, '^[0-9]+')) AS load, line"
            + " FROM file({files:String}, 'LineAsString', 'line String')", { files: `${folder}/*.{jsonl,gz}` });
    }

    /**
     * Removes from the disk what was replaced, merged or erased: this engine leaves its files for ever,
     * where a server removes them after minutes.
     */
    async sweep() {
        await this.run("DROP TABLE IF EXISTS swept SYNC");
        const tables = await this.rows("SELECT DISTINCT table FROM system.parts"
            + " WHERE database = currentDatabase() AND NOT active");
        for (const [table] of tables) {
            await this.run(`CREATE TABLE swept AS ${table}`);
            await this.run(`ALTER TABLE swept ATTACH PARTITION ALL FROM ${table}`);
            await this.run(`EXCHANGE TABLES swept AND ${table}`);
            await this.run("DROP TABLE swept SYNC");
        }
    }

    async close() {
        this.session.close();
    }
}
