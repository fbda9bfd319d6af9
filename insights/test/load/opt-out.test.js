// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// A withdrawal at any place of the order erases its client, whatever came before or comes after.

import assert from "node:assert/strict";
import { spawnSync } from "node:child_process";
import path from "node:path";
import test from "node:test";
import { fileURLToPath } from "node:url";

import { Chance } from "../../fleet/chance.js";
import { requestText } from "../../fleet/otlp.js";
import { Truth } from "../../fleet/truth/truth.js";
import { assertTrue } from "../support/compare.js";
import { answersOf, dateOf, load, mondayAgo, temporaryFolder, today } from "../support/fleets.js";
import { fleetLines, pieces, writePieces } from "../support/lines.js";

const period = { since: mondayAgo(5), until: dateOf(today + 86400e6) };
const search = fileURLToPath(new URL("../support/search-tables.js", import.meta.url));

// How many rows of all tables hold one of the texts.
function rowsWith(data, texts) {
    const { status, stdout, stderr } = spawnSync(process.execPath, [search, data],
        { input: texts.join("\n"), encoding: "utf8", maxBuffer: 1 << 28 });
    assert.equal(status, 0, stderr);
    return JSON.parse(stdout);
}

function withdrawalOf({ client, resource }, chance) {
    const time = today - 86400e6;
    return { client, resource,
        events: [{ time, uid: chance.ulid(time / 1000), category: "ruiSDK", name: "OptOut" }] };
}

const places = { first: () => 0, last: (length) => length,
    "in the middle": (length, chance) => chance.integer(1, length - 1) };

for (const [name, placeIn] of Object.entries(places)) {
    test(`withdrawals that come ${name} leave no trace of their clients`, (context) => {
        const chance = new Chance(`opt-out ${name} ${process.env.NERIX_FLEET_SEED ?? ""}`);
        const { lines, deliveries, seen } = fleetLines({ clients: 60, weeks: 5, seed: 7 });
        const all = [...new Map(deliveries.map((entry) => [entry.client.id, entry])).values()];
        const leaving = all.filter(() => chance.is(0.15));
        const stays = all.find((entry) => !leaving.includes(entry) && !seen.withdrawals.has(
            entry.client.id));
        for (const entry of leaving) {
            const withdrawal = withdrawalOf(entry, chance);
            seen.add(withdrawal);
            lines.splice(placeIn(lines.length, chance), 0,
                requestText(withdrawal.resource, withdrawal.events));
        }
        const folder = temporaryFolder(context);
        const data = path.join(folder, "data");
        const [early, late] = pieces(lines, 2, chance);
        writePieces(folder, [early, late]).forEach((file) => load(data, file));
        assertTrue(answersOf(data, period), new Truth(seen), period);
        const gone = [...leaving.map(({ client }) => client.id), ...seen.withdrawals.keys()];
        assert.deepEqual(rowsWith(data, [...new Set(gone)]), {});
        assert.notDeepEqual(rowsWith(data, [stays.client.id]), {});
    });
}
