// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// A load that is killed at any moment loses nothing and counts nothing twice. NERIX_KILL_ROUNDS
// gives another number of rounds.

import assert from "node:assert/strict";
import { spawn } from "node:child_process";
import { once } from "node:events";
import path from "node:path";
import test from "node:test";
import { setTimeout } from "node:timers";

import { Chance } from "../../fleet/chance.js";
import { Truth } from "../../fleet/truth/truth.js";
import { assertTrue } from "../support/compare.js";
import { answersOf, dateOf, load, mondayAgo, program, temporaryFolder, today }
    from "../support/fleets.js";
import { fleetLines, pieces, writePieces } from "../support/lines.js";

const rounds = Number(process.env.NERIX_KILL_ROUNDS ?? 4);
const period = { since: mondayAgo(6), until: dateOf(today + 86400e6) };

// Starts to load and kills after so many milliseconds; true if that came before the end.
async function killedLoad(data, files, milliseconds) {
    const child = spawn(process.execPath, [program, "load", ...files, "--data", data],
        { stdio: "ignore" });
    const timer = setTimeout(() => child.kill("SIGKILL"), milliseconds);
    const [, signal] = await once(child, "exit");
    clearTimeout(timer);
    return signal === "SIGKILL";
}

test(`a load that is killed ${rounds} times gives the same answers in the end`, async (context) => {
    const chance = new Chance(`kill ${process.env.NERIX_FLEET_SEED ?? Date.now()}`);
    const { lines, seen } = fleetLines({ clients: 60, weeks: 6, seed: chance.integer(1, 1e6) });
    const folder = temporaryFolder(context);
    const data = path.join(folder, "data");
    const files = writePieces(folder, pieces(lines, 2 * rounds, chance));
    const began = Date.now();
    load(data, files[0]);
    const whole = Date.now() - began;
    let killed = 0;
    for (let round = 0; round < rounds; ++round) {
        const some = files.slice(2 * round, 2 * round + 3);
        killed += await killedLoad(data, some, chance.between(0.2, 1.1) * whole) ? 1 : 0;
    }
    assert.ok(killed > 0, "none was killed");
    load(data, ...files);
    assertTrue(answersOf(data, period), new Truth(seen), period);
    context.diagnostic(`${killed} of ${rounds} loads were killed`);
});
