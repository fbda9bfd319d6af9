// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

import assert from "node:assert/strict";
import test from "node:test";

import { cellText, dayText, durationText, shortened } from "../../report/numbers.js";

const cells = [
    ["a whole number has commas", 1234567, "UInt64", "n", "1,234,567"],
    ["a fraction has three digits that tell", 0.0123456, "Float64", "seconds", "0.0123"],
    ["a large number has no fraction", 12345.678, "Float64", "seconds", "12,346"],
    ["a rate is a percentage", 0.41666, "Float64", "rate", "41.7 %"],
    ["a small rate keeps its digits", 0.0000061524, "Float64", "lost_rate", "0.000615 %"],
    ["a rate that is a range is a text", "1 to 5", "String", "rate", "1 to 5"],
    ["a day is written out", "2026-11-02", "Date", "week", "2 Nov 2026"],
    ["what is missing is a dash", null, "Float64", "rate", "–"],
    ["zero is zero", 0, "UInt64", "n", "0"],
];

for (const [rule, value, type, name, text] of cells) {
    test(rule, () => assert.equal(cellText(value, { name, type }), text));
}

test("a duration is in seconds or in minutes", () => {
    assert.deepEqual([1.5, 59.4, 93.2, 3600].map(durationText),
        ["1.5 s", "59.4 s", "1 min 33 s", "60 min 0 s"]);
});

test("a long name is cut between characters", () => {
    assert.equal(shortened("a😀bcd", 3), "a😀…");
    assert.equal(shortened("a😀b", 3), "a😀b");
    assert.equal(dayText("2027-01-31"), "31 Jan 2027");
});
