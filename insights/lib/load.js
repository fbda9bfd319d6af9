// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
import { createHash } from "node:crypto";
import { createReadStream, linkSync, mkdtempSync, readdirSync, rmSync, statSync, symlinkSync } from "node:fs";
import { tmpdir } from "node:os";
import { join, resolve } from "node:path";
import { pipeline } from "node:stream/promises";
import { UserError } from "./user-error.js";

const fileNames = /\.(jsonl?|ndjson|log)(\.gz)?$/;

function filesIn(folder) {
    return readdirSync(folder, { withFileTypes: true }).sort((a, b) => (a.name < b.name ? -1 : 1))
        .flatMap((entry) => {
            const path = join(folder, entry.name);
            if (entry.isDirectory()) {
                return filesIn(path);
            }
            return fileNames.test(entry.name) ? [path] : [];
        });
}

/** The files that `paths` name: folders stand for what is in them, by the ending of its name. */
export function filesOf(paths) {
    return paths.flatMap((path) => {
        try {
            return statSync(path).isDirectory() ? filesIn(path) : [path];
        } catch (error) {
            throw new UserError(`${path} cannot be read (${error.code}); look at the name and the rights`);
        }
    });
}

async function contentOf(path) {
    const hash = createHash("sha256");
    try {
        await pipeline(createReadStream(path), hash);
    } catch (error) {
        throw new UserError(`${path} cannot be read (${error.code}); look at the name and the rights`);
    }
    return hash.digest("hex");
}

// The engine reads * and {} in a path as patterns, and looks at its ending: give it a plain name.
async function withPlainName(path, use) {
    const folder = mkdtempSync(join(tmpdir(), "nerix-insights-"));
    const plain = join(folder, path.endsWith(".gz") ? "lines.gz" : "lines.jsonl");
    try {
        symlinkSync(resolve(path), plain);
        return await use(plain);
    } finally {
        rmSync(folder, { recursive: true });
    }
}

/**
 * Loads one file. Returns null if just this content was loaded before, else the number of its load.
 * Killed at any moment it leaves nothing that the next try does not make whole.
 */
export async function loadFile(engine, path) {
    const content = await contentOf(path);
    const [[known]] = await engine.rows(
        "SELECT count() FROM loads WHERE content = {content:String} AND state = 'finished'", { content });
    if (known > 0) {
        return null;
    }
    const [[load]] = await engine.rows("SELECT toUInt64(toUnixTimestamp64Micro(now64(6)))");
    const enter = (state) => engine.run("INSERT INTO loads (load, file, content, state)"
        + " VALUES ({load:UInt64}, {file:String}, {content:String}, {state:String})",
        { load, file: path, content, state });
    await enter("begun");
    await withPlainName(path, (plain) => engine.runOnFile(
        `INSERT INTO incoming SELECT {load:UInt64} AS load, line FROM ${engine.lineSource}`, plain, { load }));
    await enter("finished");
    return load;
}

/** What became of the records of a load: [[what, records], ...]. */
export function outcome(engine, load) {
    return engine.rows(
        "SELECT what, sum(records) FROM arrivals WHERE load = {load:UInt64} GROUP BY what ORDER BY what",
        { load });
}
