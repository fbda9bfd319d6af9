// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

import assert from "node:assert/strict";
import test from "node:test";

import { fold, foldBy, Groups, leaveOut } from "../../../fleet/truth/threshold.js";

// Groups by name, each of the clients that the letters stand for.
function groupsOf(clients) {
    const groups = new Groups(() => ({ times: 0 }));
    for (const [name, letters] of Object.entries(clients)) {
        for (const letter of letters) {
            groups.of(letter, ...name.split("/")).times += 10;
        }
    }
    return groups.list();
}

function shownOf({ shown, leftOut }) {
    return { shown: shown.map((group) => [group.isOthers ? "others" : group.key.at(-1),
        group.who.size, group.times]), leftOut };
}

const rows = [
    ["nothing is folded where all groups are large enough", { a: "ABCDE", b: "FGHIJ" },
        { shown: [["a", 5, 50], ["b", 5, 50]], leftOut: 0 }],
    ["small groups together are enough", { a: "ABCDE", b: "FGH", c: "IJ" },
        { shown: [["a", 5, 50], ["others", 5, 50]], leftOut: 2 }],
    ["the smallest large group is folded with too small a rest", { a: "ABCDEFG", b: "ABCDE", c: "H" },
        { shown: [["a", 7, 70], ["others", 6, 60]], leftOut: 2 }],
    ["a client in two small groups counts once", { a: "ABCDE", b: "FGH", c: "FGH" },
        { shown: [["others", 8, 110]], leftOut: 3 }],
    ["too few clients in all are not shown", { a: "ABCD", b: "AB" }, { shown: [], leftOut: 2 }],
    ["of equal groups the first by bytes is folded first", { B: "ABCDE", a: "FGHIJ", c: "K" },
        { shown: [["a", 5, 50], ["others", 6, 60]], leftOut: 2 }],
];

for (const [rule, clients, expected] of rows) {
    test(rule, () => assert.deepEqual(shownOf(fold(groupsOf(clients), 5)), expected));
}

test("each parent folds for itself", () => {
    const groups = groupsOf({ "x/a": "ABCDE", "x/b": "FGHIJ", "y/a": "ABC", "y/b": "DE" });
    assert.deepEqual(shownOf(foldBy(1, groups, 5)),
        { shown: [["a", 5, 50], ["b", 5, 50], ["others", 5, 50]], leftOut: 2 });
});

test("leaving out keeps no others", () => {
    assert.deepEqual(shownOf(leaveOut(groupsOf({ a: "ABCDE", b: "FGHI" }), 5)),
        { shown: [["a", 5, 50]], leftOut: 1 });
});
