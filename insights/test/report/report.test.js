// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

import assert from "node:assert/strict";
import { spawnSync } from "node:child_process";
import { existsSync } from "node:fs";
import path from "node:path";
import test from "node:test";

import { program, temporaryFolder } from "../support/fleets.js";

function report(...options) {
    return spawnSync(process.execPath, [program, "report", ...options], { encoding: "utf8" });
}

const wrong = [
    ["a report needs a file", [], /--out is missing: name a file for the report, such as report.html/],
    ["a threshold is raised, never lowered", ["--out", "r.html", "--threshold", "4"],
        /--threshold 4: give a whole number of 5 or more/],
    ["a period does not end before it begins", ["--out", "r.html", "--since", "2026-11-16", "--until",
        "2026-11-02"], /--since 2026-11-16 is not before --until 2026-11-02/],
];

for (const [rule, options, message] of wrong) {
    test(rule, (context) => {
        const data = path.join(temporaryFolder(context), "data");
        const { status, stderr } = report("--data", data, ...options);
        assert.equal(status, 1);
        assert.match(stderr, message);
        assert.equal(stderr.trimEnd().split("\n").length, 1);
        assert.equal(existsSync(data), false);
    });
}

test("a file that cannot be written is told", (context) => {
    const folder = temporaryFolder(context);
    const { status, stderr } = report("--data", path.join(folder, "data"), "--out",
        path.join(folder, "no", "report.html"));
    assert.equal(status, 1);
    assert.match(stderr, /report.html: cannot be written \(ENOENT\); name another file/);
});
