// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
import { setTimeout } from "node:timers/promises";

import { statementsOf } from "./statements.js";
import { UserError } from "./user-error.js";

const rollups = ["activity", "runs", "cameras", "features", "values", "streams", "grabs", "failures",
    "losses"];

// So many records are rolled up at once, or one week if it has more: that bounds the memory it takes.
const recordsAtOnce = 2e6;

// What was replaced is removed when it has come to so many parts of tables.
const partsToSweep = 300;

const millisecondsOfWeek = 7 * 24 * 3600 * 1000;

async function runAll(engine, file, parameters) {
    for (const statement of statementsOf(file)) {
        await engine.run(statement, parameters);
    }
}

/** Weeks ([[week, records], ...], rising) in groups of neighbours, each of at most recordsAtOnce. */
export function neighbours(weeks) {
    const groups = [];
    let sum = 0;
    for (const [week, records] of weeks) {
        const group = groups.at(-1);
        const follows = group && Date.parse(week) - Date.parse(group.at(-1)) === millisecondsOfWeek;
        if (follows && sum + records <= recordsAtOnce) {
            group.push(week);
            sum += records;
        } else {
            groups.push([week]);
            sum = records;
        }
    }
    return groups;
}

async function clearFresh(engine) {
    const filled = await column(engine, "SELECT DISTINCT table FROM system.parts WHERE active"
        + " AND database = currentDatabase() AND (table = 'recent' OR startsWith(table, 'fresh_'))");
    for (const table of filled) {
        await engine.run(`TRUNCATE TABLE ${table}`);
    }
}

async function rollUp(engine, weeks) {
    await clearFresh(engine);
    const parameters = { first: weeks[0], last: weeks.at(-1) };
    const seen = await engine.rows(statementsOf("steps/rolled_up.sql")[0],
        { ...parameters, margin: engine.secondsUntilSeen });
    await runAll(engine, "steps/recent.sql", parameters);
    for (const name of rollups) {
        await runAll(engine, `steps/${name}.sql`, parameters);
        // The engine binds no partitions in lists; these are days that it has given itself.
        await engine.run(`ALTER TABLE daily_${name} ${weeks.map((week) =>
            `REPLACE PARTITION ID '${week.replaceAll("-", "")}' FROM fresh_${name}`).join(", ")}`);
    }
    await clearFresh(engine);
    await engine.run("INSERT INTO weeks (week, rolled_up) SELECT toDate(entry.1), toDateTime64(entry.2, 3)"
        + " FROM (SELECT arrayJoin(JSONExtract({seen:String}, 'Array(Tuple(String, String))')) AS entry)",
    { seen: JSON.stringify(seen.filter(([week]) => weeks.includes(week))) });
}

async function column(engine, sql) {
    return (await engine.rows(sql)).map(([value]) => value);
}

/**
 * Brings everything in step with the events that have arrived: erases who withdrew, makes the
 * roll-ups of weeks that were touched, and drops what is too old. Does what is left to do when it was
 * interrupted, and nothing if there is nothing.
 */
export async function refresh(engine, progress = () => {}) {
    await endInterrupted(engine);
    await erase(engine);
    for (const weeks of neighbours(await engine.rows("SELECT week, records FROM weeks_to_roll_up ORDER BY week"))) {
        progress(weeks);
        await rollUp(engine, weeks);
    }
    await dropOld(engine);
    if ((await replacedParts(engine)) > partsToSweep) {
        await engine.sweep();
    }
}

async function replacedParts(engine) {
    const [[parts]] = await engine.rows("SELECT count() FROM system.parts"
        + " WHERE database = currentDatabase() AND NOT active");
    return parts;
}

async function endInterrupted(engine) {
    const [[finished, begun]] = await engine.rows(
        "SELECT uniqExactIf(load, state != 'begun'), uniqExact(load) FROM loads");
    if (finished < begun) {
        await runAll(engine, "steps/interrupted.sql");
    }
}

async function erase(engine) {
    const [[count]] = await engine.rows("SELECT count() FROM erasing");
    if (count > 0) {
        await runAll(engine, "steps/erase.sql");
        await mutationsDone(engine);
        await engine.run("TRUNCATE TABLE erasing");
        await engine.sweep();
    }
}

async function mutationsDone(engine) {
    for (;;) {
        const [[left, reason]] = await engine.rows("SELECT count(), any(latest_fail_reason)"
            + " FROM system.mutations WHERE database = currentDatabase() AND NOT is_done");
        if (left === 0) {
            return;
        }
        if (reason !== "") {
            throw new UserError(`erasing does not go on: ${reason}; mend that and run the command again`);
        }
        await setTimeout(20);
    }
}

async function dropOld(engine) {
    for (const week of await column(engine, "SELECT week FROM weeks_to_drop")) {
        await engine.run("ALTER TABLE usage_logs DROP PARTITION {week:Date}", { week });
    }
    for (const [table, week] of await engine.rows("SELECT table, week FROM rollups_to_drop")) {
        await engine.run(`ALTER TABLE ${table} DROP PARTITION {week:Date}`, { week });
    }
}
