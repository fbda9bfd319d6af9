// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// What comes from outside is data: it is counted, kept out or stored as text, and never an order.

import assert from "node:assert/strict";
import { mkdirSync, writeFileSync } from "node:fs";
import path from "node:path";
import test from "node:test";
import { gzipSync } from "node:zlib";

import { filesOf } from "../../lib/files.js";
import { loadFile, outcome } from "../../lib/load.js";
import { refresh } from "../../lib/refresh.js";
import { temporaryFolder } from "../support/fleets.js";
import { clientA, newClient, record, request, writeLines } from "../support/requests.js";
import { answers, counts, loadAll, value, withStore } from "../support/store.js";

const period = { since: "2025-01-06", until: "2100-01-01" };

async function counted(context, lines) {
    const folder = temporaryFolder(context);
    const file = writeLines(path.join(folder, "lines.jsonl"), lines);
    return withStore(path.join(folder, "data"), async (store) => {
        await loadAll(store, [file]);
        const all = await counts(store);
        return Object.fromEntries(Object.entries(all).filter(([, number]) => number > 0));
    });
}

const good = request(clientA, [record()]);
const one = { lines: 1, kept: 1, events: 1, whole_records: 1, files: 1 };

const keptOut = {
    "a line that is no JSON": ["}{", { not_json: 1 }],
    "an empty line": ["", { not_json: 1 }],
    "a line that is cut in the middle": [good.slice(0, 200), { not_json: 1 }],
    "JSON that is no object": ["[1,2]", { not_json: 1 }],
    "an object that is no request": ["{\"resourceLogs\":7}", { not_otlp: 1 }],
    "metrics": ["{\"resourceMetrics\":[]}", { not_otlp: 1 }],
    "a request without records": ["{\"resourceLogs\":[]}", { lines: 2 }],
    "members of other types":
        ["{\"resourceLogs\":[7,{\"scopeLogs\":{}},{\"scopeLogs\":[null,{\"logRecords\":\"x\"}]}]}", { lines: 2 }],
    "another service": [request(clientA, [record()], { service: "nginx" }), { lines: 2, foreign: 1 }],
    "another library": [request(clientA, [record()], { scope: "other" }), { lines: 2, foreign: 1 }],
    "a client that is no UUID": [request("' OR 1=1 --", [record()]), { lines: 2, no_identity: 1 }],
    "an identifier that is no ULID":
        [request(clientA, [record({ uid: "8ZZZZZZZZZZZZZZZZZZZZZZZZZ" }), record({ uid: "" })]),
            { lines: 2, no_identity: 2 }],
    "a text of more than 1 MiB": [request(clientA, [record({ text: "x".repeat((1 << 20) + 1) })]),
        { lines: 2, too_large: 1 }],
    "a time of 1970": [request(clientA, [record({ nanoseconds: "0" })]), { lines: 2, absurd_time: 1 }],
    "a time of 2100": [request(clientA, [record({ nanoseconds: "4102444800000000000" })]),
        { lines: 2, absurd_time: 1 }],
    "a time of no calendar": [request(clientA, [record({ nanoseconds: "99999999999999999999" })]),
        { lines: 2, absurd_time: 1 }],
    "a time that is no number": [request(clientA, [record({ nanoseconds: "soon" })]),
        { lines: 2, absurd_time: 1 }],
    "a time of more than 13 months ago": [request(clientA, [record({ at: Date.now() - 420 * 86400e3 })]),
        { lines: 2, too_late: 1 }],
};

test("what is no event of ours is counted by its reason and kept out", async (context) => {
    const folder = temporaryFolder(context);
    await withStore(path.join(folder, "data"), async (store) => {
        for (const [name, [line, expected]] of Object.entries(keptOut)) {
            await context.test(name, async () => {
                const file = writeLines(path.join(folder, "lines.jsonl"), [request(clientA, [record()]), line]);
                const load = await loadFile(store, file);
                assert.deepEqual(Object.fromEntries(await outcome(store, load)),
                    { lines: 1, kept: 1, ...expected });
            });
        }
        await refresh(store);
        assert.equal((await counts(store)).events, Object.keys(keptOut).length);
    });
});

test("an absurd time gives way to the time at which the event was observed", async (context) => {
    const observed = { ...record({ nanoseconds: "4102444800000000000" }),
        observedTimeUnixNano: record().timeUnixNano };
    assert.deepEqual(await counted(context, [request(clientA, [observed])]), one);
});

test("a body of 10 MB among others is read, and its records count", async (context) => {
    const big = Array.from({ length: 100 }, () => record({ text: "y".repeat(100000) }));
    assert.deepEqual(await counted(context, [good, request(clientA, big), good.replace("zzz", "")]),
        { lines: 3, kept: 102, events: 101, whole_records: 101, files: 1 });
});

const hostile = ["'; DROP TABLE usage_logs; --", "{since:Date}", "<script>alert(1)</script>",
    "\u0000\u001b[2J", "\\", "%s%n", "\u202eabc", "NULL", "=1+1"];

test("texts that look like SQL or HTML stay texts", async (context) => {
    const folder = temporaryFolder(context);
    const lines = Array.from({ length: 6 }, () => request(newClient(), hostile.flatMap((text) => [
        record({ category: text, name: text, text, run: text }),
        record({ category: "Camera", name: "Opened",
            text: JSON.stringify({ CameraNr: 0, Model: text, FeatureStreamStats: `#\n${text}\t1\n` }) }),
        record({ category: "Grab", name: "Failed",
            text: JSON.stringify({ ExceptionCode: text, ExceptionText: text, ExceptionCount: 1 }) }),
        record({ category: "FeatureChosen", name: text }),
        record({ category: "ParameterValueChanged", name: "PixelFormat",
            text: JSON.stringify({ ParameterValue: text }) }),
    ])));
    const file = writeLines(path.join(folder, "lines.jsonl"), lines);
    await withStore(path.join(folder, "data"), async (store) => {
        await loadAll(store, [file]);
        const told = await answers(store, period);
        assert.equal((await counts(store)).events, 6 * 5 * hostile.length);
        assert.deepEqual(told["camera-models"].rows.map(([model]) => model).sort(), [...hostile].sort());
        assert.deepEqual(told["failure-texts"].rows.map(([, text]) => text).sort(), [...hostile].sort());
        assert.deepEqual(told["features-chosen"].rows, [["NULL", 6, 6]]);
        assert.deepEqual(told["values-set"].rows, [["PixelFormat", "NULL", 0, 6, 6]]);
        assert.deepEqual(told["features-untouched"].rows, []);
    });
});

test("files with any name are loaded, compressed ones too", async (context) => {
    const folder = temporaryFolder(context);
    const files = path.join(folder, "in {a,b} *?'\"\n");
    mkdirSync(files);
    writeLines(path.join(files, "{x}*.jsonl"), [request(clientA, [record()])]);
    writeFileSync(path.join(files, "[y].json.gz"), gzipSync(`${request(clientA, [record()])}\n`));
    writeFileSync(path.join(files, "notes.txt"), "not a file of events");
    await withStore(path.join(folder, "data"), async (store) => {
        await loadAll(store, filesOf([files]));
        assert.equal(await value(store, "SELECT sum(events) FROM daily_activity"), 2);
    });
});

test("a compressed file that is broken is an error, and what is loaded next is whole", async (context) => {
    const folder = temporaryFolder(context);
    const broken = path.join(folder, "broken.jsonl.gz");
    writeFileSync(broken, gzipSync(`${good}\n`.repeat(1000)).subarray(0, 60));
    const whole = writeLines(path.join(folder, "whole.jsonl"), [request(clientA, [record()])]);
    await withStore(path.join(folder, "data"), async (store) => {
        await assert.rejects(loadAll(store, [broken]), { message: /broken\.jsonl\.gz: the engine: / });
        await loadAll(store, [whole]);
        assert.ok(await value(store, "SELECT sum(events) FROM daily_activity") >= 1);
        assert.equal((await counts(store)).interrupted, 1);
    });
});
