// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// How long what is kept, and by whom it is used at a time.

import assert from "node:assert/strict";
import { spawnSync } from "node:child_process";
import { mkdirSync, writeFileSync } from "node:fs";
import path from "node:path";
import test from "node:test";
import { fileURLToPath } from "node:url";

import { refresh } from "../../lib/refresh.js";
import { mondayAgo, temporaryFolder } from "../support/fleets.js";
import { newClient, record, request, writeLines } from "../support/requests.js";
import { answers, counts, loadAll, value, withStore } from "../support/store.js";

const program = fileURLToPath(new URL("../../bin/nerix-insights", import.meta.url));
const period = { since: mondayAgo(30), until: "2100-01-01" };
const days = 24 * 3600 * 1000;

function sixClients(at) {
    return Array.from({ length: 6 }, () => request(newClient(), [record({ at }),
        record({ at, category: "GeneralEvent", name: "SessionStarted" })]));
}

test("whole records go after 90 days, their answers stay, and their week takes no more", async (context) => {
    const folder = temporaryFolder(context);
    const at = Date.now() - 60 * days;
    const [first, late] = ["1", "2"].map((name) => writeLines(path.join(folder, `${name}.jsonl`),
        [...sixClients(at), ...sixClients(Date.now() - days)]));
    await withStore(path.join(folder, "data"), async (store) => {
        await loadAll(store, [first]);
        const before = await answers(store, period);
        assert.equal(await value(store, "SELECT count() FROM usage_logs"), 24);
        const age = (ago) => store.run("INSERT INTO weeks (week, opened)"
            + " SELECT min(week), today() - {ago:UInt16} FROM weeks", { ago });
        await age(90);
        await refresh(store);
        assert.equal(await value(store, "SELECT count() FROM usage_logs"), 24);
        await age(91);
        await refresh(store);
        assert.equal(await value(store, "SELECT count() FROM usage_logs"), 12);
        assert.deepEqual(await answers(store, period), before);
        await loadAll(store, [late]);
        assert.equal((await counts(store)).too_late, 12);
        assert.equal((await counts(store)).events, 36);
    });
});

test("roll-ups of more than 13 months ago are dropped", async (context) => {
    const folder = temporaryFolder(context);
    await withStore(path.join(folder, "data"), async (store) => {
        await store.run("INSERT INTO daily_activity SELECT toMonday(today() - INTERVAL 13 MONTH) - {n:UInt8},"
            + " generateUUIDv4(), '7.1.0', 1", { n: 0 });
        await store.run("INSERT INTO daily_activity SELECT toMonday(today() - INTERVAL 13 MONTH) - {n:UInt8},"
            + " generateUUIDv4(), '7.1.0', 1", { n: 1 });
        await refresh(store);
        assert.equal(await value(store, "SELECT count() FROM daily_activity"), 1);
    });
});

function run(...args) {
    const { status, stderr } = spawnSync(process.execPath, [program, ...args], { encoding: "utf8" });
    return { status, lines: stderr.split("\n").filter((line) => line.startsWith("nerix-insights: ")) };
}

test("a second process in the same folder is refused in one line", async (context) => {
    const data = path.join(temporaryFolder(context), "data");
    await withStore(data, async () => {
        const { status, lines } = run("check", "--data", data);
        assert.equal(status, 1);
        assert.deepEqual(lines, [`nerix-insights: ${data} cannot be used: another nerix-insights works in it`
            + " (wait for its end), or it is no folder that you may write to (CHDB_CONNECTION)"]);
    });
});

const wrongUse = {
    "no such command": [["reprot"], /there is no command "reprot"; one of: /],
    "no such question": [["ask", "x", "--data", "d"], /there is no question "x"; "nerix-insights list" shows/],
    "no such option": [["ask", "versions", "--dta", "d"], /Unknown option '--dta'; usage: /],
    "no folder": [["check"], /say where the events are: --data DIRECTORY, or --server URL/],
    "two places": [["check", "--data", "d", "--server", "http://x"], /say where the events are/],
    "no file": [["load", "/no/such/file", "--data", "d"], /\/no\/such\/file cannot be read \(ENOENT\)/],
    "a threshold below 5": [["ask", "versions", "--data", "d", "--threshold", "4"],
        /--threshold 4: give a whole number of 5 or more/],
    "a day that is none": [["ask", "versions", "--data", "d", "--since", "2026-02-30"],
        /--since 2026-02-30: give a day such as/],
    "an address that is none": [["check", "--server", "ftp://x"], /--server ftp:\/\/x: give an address/],
};

test("wrong use is one line that names the remedy", async (context) => {
    for (const [name, [args, expected]] of Object.entries(wrongUse)) {
        await context.test(name, () => {
            const { status, lines } = run(...args);
            assert.equal(status, 1);
            assert.equal(lines.length, 1);
            assert.match(lines[0], expected);
        });
    }
});

test("a folder that is none is refused", (context) => {
    const folder = temporaryFolder(context);
    const file = path.join(folder, "file");
    writeFileSync(file, "");
    mkdirSync(path.join(folder, "in"));
    assert.match(run("check", "--data", file).lines[0], /cannot be used/);
});
