// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// Groups that are too small go into "others", and what is in there is large enough to hide in.

import assert from "node:assert/strict";
import path from "node:path";
import test from "node:test";

import { answer } from "../../lib/answers.js";
import { questions } from "../../lib/questions.js";
import { temporaryFolder } from "../support/fleets.js";
import { newClient, record, request, writeLines } from "../support/requests.js";
import { loadAll, value, withStore } from "../support/store.js";

// So many clients choose each feature: [letter, clients]. Nobody chooses two.
const cases = {
    "groups of five stay": [[["a", 5], ["b", 6]], [["b", 6], ["a", 5]], 0],
    "one of four takes the next larger one along": [[["a", 4], ["b", 5], ["c", 9]],
        [["c", 9], ["others", 9]], 2],
    "four and one are five": [[["a", 4], ["b", 1], ["c", 7]], [["c", 7], ["others", 5]], 2],
    "many small ones need no larger one": [[["a", 2], ["b", 2], ["c", 2], ["d", 8]],
        [["d", 8], ["others", 6]], 3],
    "of equal ones the first by name is taken": [[["a", 1], ["c", 5], ["b", 5], ["d", 5]],
        [["c", 5], ["d", 5], ["others", 6]], 2],
    "four clients in all are nobody": [[["a", 3], ["b", 1]], [], 0],
    "five clients in all, each alone": [[["a", 1], ["b", 1], ["c", 1], ["d", 1], ["e", 1]],
        [["others", 5]], 5],
};

async function told(context, groups, threshold) {
    const folder = temporaryFolder(context);
    const file = writeLines(path.join(folder, "lines.jsonl"), groups.flatMap(([name, clients]) =>
        Array.from({ length: clients }, () => request(newClient(), [record({ name })]))));
    return withStore(path.join(folder, "data"), async (store) => {
        await loadAll(store, [file]);
        assert.equal(await value(store, "SELECT uniqExact(client) FROM daily_activity"),
            groups.reduce((sum, [, clients]) => sum + clients, 0));
        return answer(store, questions().find(({ name }) => name === "features-chosen"),
            { since: "2025-01-06", until: "2100-01-01", threshold });
    });
}

test("no row speaks for fewer clients than the threshold, and no rest does", async (context) => {
    for (const [name, [groups, expected, leftOut]] of Object.entries(cases)) {
        await context.test(name, async (inner) => {
            const { rows, ...rest } = await told(inner, groups, 5);
            assert.deepEqual(rows.map(([feature, clients]) => [feature, clients]), expected);
            assert.deepEqual([rest.speaksFor, rest.leftOut],
                [expected.reduce((sum, [, clients]) => sum + clients, 0), leftOut]);
        });
    }
});

test("a higher threshold folds more", async (context) => {
    const { rows } = await told(context, [["a", 9], ["b", 6], ["c", 5]], 7);
    assert.deepEqual(rows, [["a", 9, 9], ["others", 11, 11]]);
});
