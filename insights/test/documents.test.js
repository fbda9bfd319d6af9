// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// docs/insights.md and the README keep what they promise.

import assert from "node:assert/strict";
import { spawnSync } from "node:child_process";
import { existsSync, readFileSync, readdirSync } from "node:fs";
import path from "node:path";
import test from "node:test";
import { fileURLToPath } from "node:url";

import { questions } from "../lib/questions.js";
import { temporaryFolder } from "./support/fleets.js";

const document = readFileSync(new URL("../../docs/insights.md", import.meta.url), "utf8");
const program = fileURLToPath(new URL("../bin/nerix-insights", import.meta.url));

// Whoever has followed the page has these in the folder already.
const ignored = readFileSync(new URL("../.gitignore", import.meta.url), "utf8").split("\n");

function run(args, cwd) {
    return spawnSync(process.execPath, [program, ...args], { cwd, encoding: "utf8" });
}

test("the first commands of the page lead to a report", (context) => {
    const folder = temporaryFolder(context);
    const commands = /```console\n([^`]*)```/.exec(document)[1].split("\n")
        .filter((line) => line.startsWith("$ bin/nerix-insights "))
        .map((line) => line.replace("--clients 200 --weeks 12", "--clients 20 --weeks 3").split(" ").slice(2));
    assert.deepEqual(commands.map(([name]) => name), ["simulate", "load", "report"]);
    for (const args of commands) {
        for (const name of args.filter((arg) => /^(simulated|store|report\.html|fleet)$/.test(arg))) {
            assert.ok(!existsSync(new URL(`../${name}`, import.meta.url))
                || ignored.includes(`/${name}`), `insights has a "${name}" of its own`);
        }
        const { status, stderr } = run(args, folder);
        assert.equal(status, 0, stderr);
    }
    assert.ok(existsSync(path.join(folder, "report.html")));
});

test("every command is on the page", () => {
    const names = [...run(["help"]).stdout.matchAll(/^ {2}nerix-insights (\w+)/gm)].map(([, name]) => name);
    assert.ok(names.length >= 8);
    for (const name of names) {
        assert.match(document, new RegExp(`^\\| \`${name}[ \`]`, "m"));
    }
});

test("every question says in its header what it is, and list begins with its name", () => {
    const all = questions();
    assert.deepEqual(all.map(({ name }) => `${name}.sql`),
        readdirSync(new URL("../questions/", import.meta.url)).filter((file) => file.endsWith(".sql")).sort());
    for (const question of all) {
        for (const key of ["title", "sentence", "read", "order", "definition"]) {
            assert.ok(question[key], `${question.name}: ${key}`);
        }
        assert.match(question.sql, /speaks_for, left_out/);
    }
    assert.deepEqual(run(["list"]).stdout.trim().split("\n").map((line) => line.split(" ")[0]),
        all.map(({ name }) => name));
});

test("the typed views that the page names are there", () => {
    const schema = ["40-events.sql", "50-rollups.sql"].map((file) =>
        readFileSync(new URL(`../schema/${file}`, import.meta.url), "utf8")).join("");
    const named = /no question asks: ([^.]*)\. They/.exec(document)[1].match(/\w+(?=`)/g);
    assert.ok(named.length > 10);
    for (const view of named) {
        assert.match(schema, new RegExp(`CREATE OR REPLACE VIEW ${view} AS`));
    }
});
