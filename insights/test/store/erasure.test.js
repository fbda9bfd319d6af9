// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// Who withdraws leaves no trace, wherever the opt-out stands among what is loaded.

import assert from "node:assert/strict";
import { readFileSync, readdirSync } from "node:fs";
import path from "node:path";
import test from "node:test";

import { eraseClient } from "../../lib/erase.js";
import { temporaryFolder } from "../support/fleets.js";
import { clientA, clientB, optOut, record, request, writeLines } from "../support/requests.js";
import { counts, loadAll, value, withStore } from "../support/store.js";

const marker = "MarkOfTheClient";

function filesBelow(folder) {
    return readdirSync(folder, { recursive: true, withFileTypes: true })
        .filter((entry) => entry.isFile())
        .map((entry) => path.join(entry.parentPath ?? entry.path, entry.name));
}

// A UUID as the engine stores it: both halves with their last byte first.
function storedBytes(client) {
    const bytes = Buffer.from(client.replaceAll("-", ""), "hex");
    return Buffer.concat([bytes.subarray(0, 8).reverse(), bytes.subarray(8).reverse()]);
}

function tracesOf(folder, client) {
    const needles = [storedBytes(client), Buffer.from(client), Buffer.from(marker)];
    return filesBelow(folder).filter((file) => {
        const bytes = readFileSync(file);
        return needles.some((needle) => bytes.includes(needle));
    });
}

// Compressed, a client could hide from a search for its bytes.
async function storePlainly(store) {
    for (const [table, column, type] of await store.rows("SELECT table, name, type FROM system.columns"
        + " WHERE database = currentDatabase() AND (name = 'client' OR table = 'usage_logs' AND name = 'Body')"
        + " AND table IN (SELECT name FROM system.tables WHERE engine LIKE '%MergeTree')")) {
        await store.run(`ALTER TABLE ${table} MODIFY COLUMN ${column} ${type} CODEC(NONE)`);
    }
}

function eventsOf(client) {
    const text = (members) => JSON.stringify({ CameraNr: 0, Model: "Ostrand ***", ...members });
    return [record({ category: "GeneralEvent", name: "SessionStarted" }),
        record({ category: "Camera", name: "Connected", text: text({}) }),
        record({ category: "Camera", name: "Opened",
            text: text({ FeatureStreamStats: `#\nDeviceSerialNumber\t${client === clientA ? marker : "1"}\n` }) }),
        record(), record({ category: "ParameterValueChanged", text: text({ ParameterValue: "1.5" }) }),
        record({ category: "Grab", name: "Failed", text: text({ ExceptionCode: "0x1", ExceptionCount: 1 }) }),
        record({ category: "ruiSDK", name: "EventsLost", text: "{\"maxAge\":3}" })];
}

const lineOf = (client) => request(client, eventsOf(client));
const out = () => request(clientA, [optOut()]);

async function rowsOf(store, client) {
    let rows = 0;
    for (const [table] of await store.rows("SELECT DISTINCT table FROM system.columns"
        + " WHERE database = currentDatabase() AND name = 'client' AND table NOT IN ('judged')")) {
        rows += await value(store, `SELECT count() FROM ${table} WHERE client = {client:UUID}`, { client });
    }
    return rows;
}

// Lists of files, each a list of lines.
const places = {
    "before all events, in one file": [[out(), lineOf(clientA), lineOf(clientB)]],
    "before, in another file": [[out()], [lineOf(clientA), lineOf(clientB)]],
    "between, in one file": [[lineOf(clientA), out(), lineOf(clientB), lineOf(clientA)]],
    "between files": [[lineOf(clientA), lineOf(clientB)], [out()], [lineOf(clientA)]],
    "after all": [[lineOf(clientA)], [lineOf(clientB)], [out()]],
    "twice, and late events after it": [[lineOf(clientA), out()], [lineOf(clientB), out()],
        [lineOf(clientA)]],
    "in capitals": [[lineOf(clientA)], [request(clientA.toUpperCase(), [optOut()]), lineOf(clientB)]],
    "at a time of 1970": [[lineOf(clientA), lineOf(clientB), request(clientA, [optOut(1)])]],
};

test("an opt-out leaves nothing of the client, in no table and no file", async (context) => {
    for (const [name, files] of Object.entries(places)) {
        await context.test(name, async (inner) => {
            const folder = temporaryFolder(inner);
            const data = path.join(folder, "data");
            const paths = files.map((lines, i) => writeLines(path.join(folder, `${i}.jsonl`), lines));
            await withStore(data, async (store) => {
                await storePlainly(store);
                for (const file of paths) {
                    await loadAll(store, [file]);
                }
                assert.equal(await rowsOf(store, clientA), 0);
                assert.equal(await value(store, "SELECT uniqExact(client) FROM daily_activity"), 1);
                assert.equal(await value(store, "SELECT count() FROM opt_outs"),
                    name.includes("1970") ? 0 : 1);
            });
            assert.deepEqual(tracesOf(data, clientA), []);
            assert.ok(tracesOf(data, clientB).length > 0, "the search finds who is still there");
        });
    }
});

test("an erasure on request leaves nothing, and keeps out what comes later", async (context) => {
    const folder = temporaryFolder(context);
    const data = path.join(folder, "data");
    const [first, late] = [1, 2].map((i) => writeLines(path.join(folder, `${i}.jsonl`),
        [lineOf(clientA), lineOf(clientB)]));
    await withStore(data, async (store) => {
        await storePlainly(store);
        await loadAll(store, [first]);
        assert.ok(tracesOf(data, clientA).length > 0);
        await eraseClient(store, clientA.toUpperCase());
        assert.deepEqual(tracesOf(data, clientA), []);
        writeLines(late, [lineOf(clientA), lineOf(clientB), "again"]);
        await loadAll(store, [late]);
        assert.equal(await rowsOf(store, clientA), 0);
        assert.equal((await counts(store)).erased, eventsOf(clientA).length);
        assert.equal(await value(store, "SELECT count() FROM opt_outs"), 0);
    });
    assert.deepEqual(tracesOf(data, clientA), []);
});

test("an erasure that was interrupted is ended by the next command", async (context) => {
    const folder = temporaryFolder(context);
    const data = path.join(folder, "data");
    const file = writeLines(path.join(folder, "1.jsonl"), [lineOf(clientA), lineOf(clientB)]);
    await withStore(data, async (store) => {
        await loadAll(store, [file]);
        await store.run("INSERT INTO erased SELECT client_hash({client:UUID}), toDate(0)", { client: clientA });
        await store.run("INSERT INTO erasing SELECT {client:UUID}", { client: clientA });
    });
    await withStore(data, async (store) => assert.equal(await rowsOf(store, clientA), 0));
});

test("who is to be erased must be named as the random number that it is", async () => {
    await assert.rejects(eraseClient({}, "' OR 1=1 --"), { message: /^--client ' OR 1=1 --: give / });
});
