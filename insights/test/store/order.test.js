// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// However events are loaded, the answers are those of the plain computation.

import assert from "node:assert/strict";
import { spawn } from "node:child_process";
import { once } from "node:events";
import { readFileSync, readdirSync } from "node:fs";
import path from "node:path";
import test from "node:test";
import { setTimeout } from "node:timers/promises";
import { fileURLToPath } from "node:url";

import { assertTrue } from "../support/compare.js";
import { answersOf, dateOf, load, mondayAgo, temporaryFolder, today, writeKnownFleet }
    from "../support/fleets.js";
import { writeLines } from "../support/requests.js";

const program = fileURLToPath(new URL("../../bin/nerix-insights", import.meta.url));
const period = { since: mondayAgo(4), until: dateOf(today + 86400e6) };
const rounds = Number(process.env.NERIX_KILL_ROUNDS ?? 20);

function linesOf(folder) {
    return readdirSync(folder).sort().flatMap((file) =>
        readFileSync(path.join(folder, file), "utf8").split("\n").filter(Boolean));
}

// A generator with a seed: a failure can be repeated.
function chance(seed) {
    let state = seed;
    return () => {
        state = (Math.imul(state, 1664525) + 1013904223) >>> 0;
        return state / 2 ** 32;
    };
}

function shuffled(list, random) {
    return list.map((item) => [random(), item]).sort(([a], [b]) => a - b).map(([, item]) => item);
}

test("in pieces, in any order, and many of them twice", (context) => {
    const folder = temporaryFolder(context);
    const files = path.join(folder, "files");
    const { truth } = writeKnownFleet(files, { clients: 60, weeks: 4, seed: 7 });
    const random = chance(7);
    const pieces = Array.from({ length: 4 }, () => []);
    for (const line of shuffled(linesOf(files), random)) {
        for (let times = random() < 0.3 ? 2 : 1; times > 0; times -= 1) {
            pieces[Math.floor(random() * pieces.length)].push(line);
        }
    }
    const data = path.join(folder, "data");
    for (const [index, lines] of pieces.entries()) {
        load(data, writeLines(path.join(folder, `piece-${index}.jsonl`), lines));
    }
    assertTrue(answersOf(data, period), truth, period);
    load(data, files);
    const answers = answersOf(data, period);
    assertTrue(answers, truth, period);
    assertNobodyStandsOut(answers);
});

// Each client has one version a week: what the versions of a week leave of its clients would be seen
// by subtraction.
function assertNobodyStandsOut(answers) {
    const weeks = answers["active-clients"].rows;
    assert.ok(weeks.length > 1);
    for (const { week, clients } of weeks) {
        const versions = answers.versions.rows.filter((row) => row.week === week);
        assert.equal(versions.reduce((sum, row) => sum + row.clients, 0), clients, week);
    }
    for (const [name, { rows }] of Object.entries(answers)) {
        assert.ok(rows.every((row) => row.clients >= 5), name);
    }
}

function startLoad(data, file) {
    return spawn(process.execPath, [program, "load", file, "--data", data], { stdio: "ignore" });
}

test(`killed ${rounds} times in the middle of a load`, async (context) => {
    const folder = temporaryFolder(context);
    const files = path.join(folder, "files");
    const { truth } = writeKnownFleet(files, { clients: 60, weeks: 4, seed: 8 });
    const begin = Date.now();
    load(path.join(folder, "undisturbed"), files);
    const duration = Date.now() - begin;
    const random = chance(8);
    let killed = 0;
    let data = path.join(folder, "data");
    for (let round = 0; killed < rounds && round < 3 * rounds; round += 1) {
        const child = startLoad(data, files);
        const ended = once(child, "exit");
        await Promise.race([ended, setTimeout(random() * duration)]);
        child.kill("SIGKILL");
        const [, signal] = await ended;
        killed += signal === "SIGKILL" ? 1 : 0;
        if (signal === null) {
            assertTrue(answersOf(data, period), truth, period);
            data = path.join(folder, `data-${round}`);
        }
    }
    assert.equal(killed, rounds);
    load(data, files);
    assertTrue(answersOf(data, period), truth, period);
});
