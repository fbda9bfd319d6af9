// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

import assert from "node:assert/strict";
import { spawnSync } from "node:child_process";
import { mkdtempSync, readdirSync, readFileSync, rmSync, writeFileSync } from "node:fs";
import { tmpdir } from "node:os";
import path from "node:path";
import test, { afterEach, beforeEach } from "node:test";
import { fileURLToPath } from "node:url";
import { gunzipSync } from "node:zlib";

const program = fileURLToPath(new URL("../../bin/nerix-insights", import.meta.url));

let folder;
beforeEach(() => { folder = mkdtempSync(path.join(tmpdir(), "insights-simulate-")); });
afterEach(() => rmSync(folder, { recursive: true }));

function simulate(...options) {
    return spawnSync(process.execPath, [program, "simulate", ...options], { encoding: "utf8" });
}

const small = ["--clients", "10", "--weeks", "2", "--until", "2026-11-16"];

test("each line of each file is a request", () => {
    const out = path.join(folder, "fleet");
    const { status, stdout } = simulate(...small, "--out", out);
    assert.equal(status, 0);
    assert.match(stdout, /^\d+ events of \d+ clients in \d+ requests, \d+ MB; \d+ of the events/);
    const files = readdirSync(out);
    assert.ok(files.includes("events-2026-11-09.jsonl"), files.join(" "));
    for (const file of files) {
        const lines = readFileSync(path.join(out, file), "utf8").trimEnd().split("\n");
        assert.ok(lines.every((line) => JSON.parse(line).resourceLogs.length === 1));
    }
});

test("--gzip writes the same, compressed", () => {
    const [plain, packed] = ["plain", "packed"].map((name) => path.join(folder, name));
    simulate(...small, "--out", plain);
    simulate(...small, "--out", packed, "--gzip");
    const files = readdirSync(plain);
    assert.deepEqual(readdirSync(packed), files.map((file) => `${file}.gz`));
    for (const file of files) {
        assert.deepEqual(gunzipSync(readFileSync(path.join(packed, `${file}.gz`))),
            readFileSync(path.join(plain, file)));
    }
});

const wrong = [
    ["a folder is asked for", [], /--out is missing: name a folder/],
    ["no client is none", ["--clients", "0"], /--clients 0: give a whole number from 1 to 1000000/],
    ["weeks are whole", ["--weeks", "1.5"], /--weeks 1.5: give a whole number/],
    ["a seed is a number", ["--seed", "x"], /--seed x: give a whole number/],
    ["a day is a day", ["--until", "tomorrow"], /--until tomorrow: give a day as YYYY-MM-DD/],
    ["an unknown option is told", ["--size", "3"], /Unknown option '--size'.*usage: nerix-insights/],
];

for (const [rule, options, message] of wrong) {
    test(rule, () => {
        const out = rule === "a folder is asked for" ? [] : ["--out", path.join(folder, "new")];
        const { status, stderr } = simulate(...options, ...out);
        assert.equal(status, 1);
        assert.match(stderr, message);
        assert.equal(stderr.trimEnd().split("\n").length, 1);
        assert.deepEqual(readdirSync(folder), []);
    });
}

test("nothing is written to a folder that holds something", () => {
    writeFileSync(path.join(folder, "mine.txt"), "mine");
    const { status, stderr } = simulate(...small, "--out", folder);
    assert.equal(status, 1);
    assert.match(stderr, /this folder is not empty; name another one/);
    assert.deepEqual(readdirSync(folder), ["mine.txt"]);
});

test("a file is no folder", () => {
    const file = path.join(folder, "mine.txt");
    writeFileSync(file, "mine");
    const { status, stderr } = simulate(...small, "--out", file);
    assert.equal(status, 1);
    assert.match(stderr, /mine.txt: no folder can be made there \(EEXIST\)/);
});
