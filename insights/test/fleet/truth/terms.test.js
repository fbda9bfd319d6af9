// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

import assert from "node:assert/strict";
import test from "node:test";

import { rangeOf } from "../../../fleet/truth/ranges.js";
import { dateOf, dayNumber, median, mondayOf, placeOf } from "../../../fleet/truth/terms.js";

test("a week is that of its Monday", () => {
    const monday = (date) => dateOf(mondayOf(dayNumber(date)));
    assert.equal(monday("2026-11-16"), "2026-11-16");
    assert.equal(monday("2026-11-22"), "2026-11-16");
    assert.equal(monday("2026-11-23"), "2026-11-23");
    assert.equal(monday("1970-01-01"), "1969-12-29");
});

test("a number stands in the range of its amount", () => {
    const rows = [["0", 0, "0"], ["5000", 31, "5000 to 10000"], ["4999.9", 30, "2000 to 5000"],
        ["1", 20, "1 to 2"], ["-1", -20, "minus 1 to 2"], ["0.000001", 2, "0.000001 to 0.000002"],
        ["1e-7", 1, "under 0.000001"], ["1e12", 56, "from 1000000000000"],
        ["0.3", 18, "0.2 to 0.5"]];
    for (const [value, position, text] of rows) {
        assert.deepEqual(rangeOf(Number(value)), { position, text }, value);
    }
});

test("a lower bound belongs to the place that it begins", () => {
    assert.deepEqual([0, 9, 10, 19, 20].map((value) => placeOf(value, [10, 20])), [1, 1, 2, 2, 3]);
});

test("the median of an even number of values is the upper one of the two in the middle", () => {
    assert.equal(median([4, 1, 3, 2]), 3);
    assert.equal(median([10, 9, 100]), 10);
});
