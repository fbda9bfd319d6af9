// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
import { createHash } from "node:crypto";
import { createReadStream, mkdtempSync, rmSync, statSync, symlinkSync } from "node:fs";
import { tmpdir } from "node:os";
import { join, resolve } from "node:path";
import { pipeline } from "node:stream/promises";
import { UserError } from "./user-error.js";

// Files are read together up to so many bytes: each INSERT has a price of its own.
const bytesAtOnce = 256 << 20;

function unreadable(path, error) {
    return new UserError(`${path} cannot be read (${error.code}); look at the name and the rights`);
}

async function contentOf(path) {
    const hash = createHash("sha256");
    await pipeline(createReadStream(path), hash).catch((error) => {
        throw unreadable(path, error);
    });
    return hash.digest("hex");
}

/** Paths in groups that are loaded by one INSERT each. */
export function batchesOf(paths, engine) {
    const batches = [];
    let bytes = Infinity;
    for (const path of paths) {
        const size = statSync(path, { throwIfNoEntry: false })?.size ?? 0;
        if (!engine.readsFilesTogether || bytes + size > bytesAtOnce) {
            batches.push([]);
            bytes = 0;
        }
        batches.at(-1).push(path);
        bytes += size;
    }
    return batches;
}

// Files whose content was not loaded yet, each content once, with a number for each load.
async function newOnes(engine, paths) {
    const entries = new Map();
    const [[first]] = await engine.rows("SELECT toUInt64(toUnixTimestamp64Micro(now64(6)))");
    for (const path of paths) {
        const content = await contentOf(path);
        const [[known]] = await engine.rows(
            "SELECT count() FROM loads WHERE content = {content:String} AND state = 'finished'", { content });
        if (known === 0 && !entries.has(content)) {
            entries.set(content, { load: first + entries.size, file: path, content });
        }
    }
    return [...entries.values()];
}

function enter(engine, entries, state) {
    return engine.run(`INSERT INTO loads (load, file, content, state)
        SELECT entry.load, entry.file, entry.content, {state:String}
        FROM (SELECT arrayJoin(JSONExtract({entries:String},
            'Array(Tuple(load UInt64, file String, content String))')) AS entry)`,
    { state, entries: JSON.stringify(entries) });
}

// The engine reads * and {} in a path as patterns, and looks at its ending: it gets plain names, which
// are the numbers of the loads.
async function withPlainNames(entries, use) {
    const folder = mkdtempSync(join(tmpdir(), "nerix-insights-"));
    try {
        for (const { load, file } of entries) {
            symlinkSync(resolve(file), join(folder, `${load}${file.endsWith(".gz") ? ".gz" : ".jsonl"}`));
        }
        return await use(folder);
    } finally {
        rmSync(folder, { recursive: true });
    }
}

async function insert(engine, entries) {
    await enter(engine, entries, "begun");
    await withPlainNames(entries, (folder) => engine.loadLines(folder, entries));
    await enter(engine, entries, "finished");
}

/**
 * Loads files of one batch. Returns [{path, load}]: the number of the load, or null if just this
 * content was loaded before, and [{path, error}] for those that could not be loaded. Killed at any
 * moment it leaves nothing that the next try does not make whole.
 */
export async function loadBatch(engine, paths) {
    let entries;
    try {
        entries = await newOnes(engine, paths);
        if (entries.length > 0) {
            await insert(engine, entries);
        }
    } catch (error) {
        if (!(error instanceof UserError)) {
            throw error;
        }
        // One of them spoils the others: try each alone, and name it.
        return paths.length === 1 ? [{ path: paths[0], error: error.message }] : oneByOne(engine, paths);
    }
    return paths.map((path) => ({ path, load: entries.find(({ file }) => file === path)?.load ?? null }));
}

async function oneByOne(engine, paths) {
    const results = [];
    for (const path of paths) {
        results.push(...await loadBatch(engine, [path]));
    }
    return results;
}

/** Loads one file; returns the number of its load, or null if it was loaded before. */
export async function loadFile(engine, path) {
    const [{ load, error }] = await loadBatch(engine, [path]);
    if (error !== undefined) {
        throw new UserError(`${path}: ${error}`);
    }
    return load;
}

/** What became of the records of a load: [[what, records], ...]. */
export function outcome(engine, load) {
    return engine.rows(
        "SELECT what, sum(records) FROM arrivals WHERE load = {load:UInt64} GROUP BY what ORDER BY what",
        { load });
}
