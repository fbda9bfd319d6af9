// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// run.js FOLDER DATA COPIES: loads the simulated fleet in FOLDER into the new folder DATA, multiplies
// it inside the engine to COPIES fleets of other clients, and measures, each beside the engine's own
// floor in the same run. DATA stays, for looking around.

import { readFileSync } from "node:fs";

import { answer } from "../lib/answers.js";
import { filesOf } from "../lib/files.js";
import { batchesOf, loadBatch } from "../lib/load.js";
import { questions } from "../lib/questions.js";
import { refresh } from "../lib/refresh.js";
import { openStore } from "../lib/store.js";

const [folder, data, copies] = process.argv.slice(2);

function memory(name) {
    return Number(new RegExp(`${name}:\\s+(\\d+)`).exec(readFileSync("/proc/self/status", "utf8"))[1]) / 1024;
}

// Seconds on the clock and of the processors: on a machine that is busy only the latter tell.
async function measured(work) {
    const [clock, cpu] = [process.hrtime.bigint(), process.cpuUsage()];
    const result = await work();
    const used = process.cpuUsage(cpu);
    return { result, clock: Number(process.hrtime.bigint() - clock) / 1e9, cpu: (used.user + used.system) / 1e6 };
}

function tell(what, { clock, cpu }, events) {
    const rate = events ? `, ${Math.round(events / clock)} events a second, ${(cpu / events * 1e6).toFixed(1)} us of`
        + " a processor an event" : "";
    console.log(`${what}: ${clock.toFixed(2)} s, ${cpu.toFixed(2)} s of processors${rate}`);
}

const store = await openStore({ data });
const files = filesOf([folder]);

async function value(sql) {
    return (await store.rows(sql))[0][0];
}

async function loadAll() {
    for (const batch of batchesOf(files, store)) {
        await loadBatch(store, batch);
    }
}

// The engine's own way: the same lines into a table of the same columns, without judging or counting.
async function floorOfLoad() {
    await store.run("CREATE TABLE floor_lines (load UInt64, line String) ENGINE = Null");
    await store.run("CREATE TABLE floor AS otel_logs ENGINE = MergeTree PARTITION BY toMonday(Timestamp)"
        + " ORDER BY (ServiceName, Timestamp)");
    const view = (await value("SELECT as_select FROM system.tables WHERE name = 'read_lines'"
        + " AND database = currentDatabase()")).replace(/\bnerix_insights\.incoming\b/, "floor_lines");
    await store.run(`CREATE MATERIALIZED VIEW floor_view TO floor AS ${view}`);
    const run = await measured(async () => {
        await store.run("INSERT INTO floor_lines SELECT 1, line FROM file({files:String}, 'LineAsString',"
            + " 'line String')", { files: `${folder}/*` });
    });
    for (const table of ["floor_view", "floor_lines", "floor"]) {
        await store.run(`DROP TABLE ${table} SYNC`);
    }
    return run;
}

async function multiply() {
    for (let copy = 1; copy < Number(copies); copy += 1) {
        await store.run("INSERT INTO usage_logs SELECT * REPLACE ("
            + "reinterpretAsUUID(sipHash128(client, {copy:UInt32})) AS client, toFixedString("
            + "substring(sipHash128(uid_random, {copy:UInt32}), 1, 10), 10) AS uid_random)"
            + " FROM (SELECT * FROM usage_logs WHERE client IN (SELECT client FROM first_clients))", { copy });
    }
    await store.run("INSERT INTO weeks (week, touched) SELECT DISTINCT week, now64(3) FROM weeks");
}

async function report() {
    const times = [];
    for (const question of questions()) {
        const period = { since: "2025-01-06", until: "2100-01-01", threshold: 5 };
        times.push([question.name, await measured(() => answer(store, question, period))]);
    }
    return times;
}

async function bytesAnEvent(events) {
    await store.run("CREATE TABLE thin AS usage_logs");
    await store.run("INSERT INTO thin SELECT * REPLACE (if(name IN ('Opened', 'Closed'), '', Body) AS Body)"
        + " FROM usage_logs");
    const sum = (where) => value("SELECT sum(bytes_on_disk) FROM system.parts WHERE active"
        + ` AND database = currentDatabase() AND ${where}`);
    const figures = [await sum("table = 'thin'"), await sum("startsWith(table, 'daily_')"),
        await sum("table = 'usage_logs'")].map((bytes) => (bytes / events).toFixed(1));
    await store.run("DROP TABLE thin SYNC");
    return figures;
}

tell("floor of loading (the same lines into a table, by the engine alone)", await floorOfLoad());
const load = await measured(loadAll);
const first = await value("SELECT count() FROM usage_logs FINAL");
tell("load", load, first);
tell("roll-ups of it", await measured(() => refresh(store)), first);
if (Number(copies) > 1) {
    await store.run("CREATE TABLE first_clients ENGINE = MergeTree ORDER BY client AS SELECT DISTINCT client FROM usage_logs");
    tell("multiplied inside the engine", await measured(multiply));
    const all = await value("SELECT count() FROM usage_logs FINAL");
    tell("roll-ups of all", await measured(() => refresh(store)), all);
}
const events = await value("SELECT sum(events) FROM daily_activity");
console.log(`events: ${events}, clients: ${await value("SELECT uniqExact(client) FROM daily_activity")}`);
tell("a bare full scan of the whole records", await measured(() =>
    store.rows("SELECT uniqExact(client), sum(length(Body)), count() FROM usage_logs GROUP BY category, name")));
const times = await report();
tell("all answers of the report", { clock: times.reduce((sum, [, { clock }]) => sum + clock, 0),
    cpu: times.reduce((sum, [, { cpu }]) => sum + cpu, 0) });
for (const [name, time] of times.sort(([, a], [, b]) => b.cpu - a.cpu).slice(0, 4)) {
    tell(`  ${name}`, time);
}
const [thin, rollups, whole] = await bytesAnEvent(events);
console.log(`bytes an event: ${thin} whole records without feature streams, ${whole} with them, ${rollups} roll-ups`);
console.log(`memory: at most ${Math.round(memory("VmHWM"))} MiB resident, now ${Math.round(memory("RssAnon"))} MiB`
    + ` its own and ${Math.round(memory("RssFile"))} MiB of the program's file`);
await store.close();
