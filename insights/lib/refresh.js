// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
import { statementsOf } from "./statements.js";

const rollups = ["activity", "runs", "cameras", "features", "values", "streams", "grabs", "failures",
    "losses"];

// So many weeks are rolled up at once, which bounds the memory that it takes.
const weeksAtOnce = 8;

const millisecondsOfWeek = 7 * 24 * 3600 * 1000;

async function runAll(engine, file, parameters) {
    for (const statement of statementsOf(file)) {
        await engine.run(statement, parameters);
    }
}

/** Weeks in groups of neighbours, each of at most weeksAtOnce. */
export function neighbours(weeks) {
    const groups = [];
    for (const week of weeks) {
        const group = groups.at(-1);
        const follows = group && Date.parse(week) - Date.parse(group.at(-1)) === millisecondsOfWeek;
        if (follows && group.length < weeksAtOnce) {
            group.push(week);
        } else {
            groups.push([week]);
        }
    }
    return groups;
}

async function clearFresh(engine) {
    for (const table of ["recent", ...rollups.map((name) => `fresh_${name}`)]) {
        await engine.run(`TRUNCATE TABLE ${table}`);
    }
}

async function rollUp(engine, weeks) {
    await clearFresh(engine);
    const parameters = { first: weeks[0], last: weeks.at(-1) };
    await runAll(engine, "steps/recent.sql", parameters);
    for (const name of rollups) {
        await runAll(engine, `steps/${name}.sql`, parameters);
        // The engine binds no partitions in lists; these are days that it has given itself.
        await engine.run(`ALTER TABLE daily_${name} ${weeks.map((week) =>
            `REPLACE PARTITION ID '${week.replaceAll("-", "")}' FROM fresh_${name}`).join(", ")}`);
    }
    await clearFresh(engine);
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
    await erase(engine);
    for (const weeks of neighbours(await column(engine, "SELECT week FROM weeks_to_roll_up ORDER BY week"))) {
        progress(weeks);
        const [[start]] = await engine.rows("SELECT now64(3)");
        await rollUp(engine, weeks);
        for (const week of weeks) {
            await engine.run("INSERT INTO weeks (week, rolled_up) VALUES ({week:Date}, {start:DateTime64(3)})",
                { week, start });
        }
    }
    await dropOld(engine);
}

async function erase(engine) {
    const [[count]] = await engine.rows("SELECT count() FROM erasing");
    if (count > 0) {
        await runAll(engine, "steps/erase.sql");
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
