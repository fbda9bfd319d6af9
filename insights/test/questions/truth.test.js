// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// Every question against the plain computation, over whole simulated fleets. NERIX_FLEET_CLIENTS
// and NERIX_FLEET_WEEKS give other sizes ("npm run full-fleets": 2,000 clients, 26 weeks).

import path from "node:path";
import test from "node:test";

import { assertTrue } from "../support/compare.js";
import { assertDiscreet } from "../support/discretion.js";
import { answersOf, dateOf, load, mondayAgo, temporaryFolder, today, writeKnownFleet }
    from "../support/fleets.js";

const clients = Number(process.env.NERIX_FLEET_CLIENTS ?? 120);
const weeks = Number(process.env.NERIX_FLEET_WEEKS ?? 14);
const day = 86400e6;

const periods = [
    { since: mondayAgo(weeks), until: dateOf(today + day) },
    { since: mondayAgo(5), until: mondayAgo(1) },
    { since: mondayAgo(8), until: dateOf(today - 2 * day), threshold: 12 },
];

for (const seed of [1, 2, 3]) {
    const size = `${clients} clients, ${weeks} weeks, seed ${seed}`;
    test(`every question is right and tells of nobody over ${size}`, (context) => {
        const folder = temporaryFolder(context);
        const [files, data] = ["files", "data"].map((name) => path.join(folder, name));
        const { truth } = writeKnownFleet(files, { clients, weeks, seed });
        load(data, files);
        for (const period of periods) {
            const answers = answersOf(data, period);
            assertTrue(answers, truth, period);
            assertDiscreet(answers, period.threshold ?? 5);
        }
    });
}
