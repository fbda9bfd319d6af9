// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// In whatever order, however often and in however many pieces events come: the answers are those of
// the plain computation, which knows nothing of pieces.

import path from "node:path";
import test from "node:test";

import { Chance } from "../../fleet/chance.js";
import { Truth } from "../../fleet/truth/truth.js";
import { assertTrue } from "../support/compare.js";
import { answersOf, dateOf, load, mondayAgo, temporaryFolder, today } from "../support/fleets.js";
import { fleetLines, pieces, shuffled, writePieces } from "../support/lines.js";

const period = { since: mondayAgo(6), until: dateOf(today + 86400e6) };

// Each of the parts in a file, loaded by as many commands as there are groups.
function loadInGroups(data, files, groups) {
    const size = Math.ceil(files.length / groups);
    for (let at = 0; at < files.length; at += size) {
        load(data, ...files.slice(at, at + size));
    }
}

const ways = {
    "loading in any order gives the same answers": (lines, chance) => [shuffled(lines, chance)],
    "loading in pieces gives the same answers": (lines, chance) => pieces(lines, 12, chance),
    "loading everything twice gives the same answers": (lines, chance) => [lines,
        shuffled(lines, chance)],
    "a tenth of it again, in pieces of any order, changes nothing": (lines, chance) => pieces(
        shuffled([...lines, ...lines.filter(() => chance.is(0.1))], chance), 9, chance),
};

for (const [at, [rule, divide]] of Object.entries(ways).entries()) {
    test(rule, (context) => {
        const chance = new Chance(`${rule} ${process.env.NERIX_FLEET_SEED ?? ""}`);
        const { lines, seen } = fleetLines({ clients: 60, weeks: 6, seed: chance.integer(1, 1e6) });
        const folder = temporaryFolder(context);
        const data = path.join(folder, "data");
        loadInGroups(data, writePieces(folder, divide(lines, chance)), 1 + at);
        assertTrue(answersOf(data, period), new Truth(seen), period);
    });
}
