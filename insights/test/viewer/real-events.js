// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// real-events.js BUILD_DIR DIRECTORY: the whole road of real events. The demo's two sessions of the
// viewer that was built in BUILD_DIR, handed over by rui-events, loaded and reported; what is made
// goes to DIRECTORY, which must not exist. A single client may not be told of, so the same is done
// once more with five others who have done the same.

import assert from "node:assert/strict";
import { spawnSync } from "node:child_process";
import { mkdirSync, readFileSync, writeFileSync } from "node:fs";
import path from "node:path";
import { fileURLToPath } from "node:url";

import { requestText } from "../../fleet/otlp.js";
import { Seen } from "../../fleet/truth/seen.js";
import { Truth } from "../../fleet/truth/truth.js";
import { readRequests } from "../fleet/request-reader.js";
import { assertTrue } from "../support/compare.js";
import { answersOf, dateOf, load, mondayAgo, run, today } from "../support/fleets.js";

const demo = fileURLToPath(new URL("../../../viewer/demo/run-demo.sh", import.meta.url));
const [build, directory] = process.argv.slice(2).map((argument) => path.resolve(argument));
const period = { since: mondayAgo(1), until: dateOf(today + 86400e6) };

function program(name, ...args) {
    const { status, stdout, stderr } = spawnSync(name, args, { encoding: "utf8" });
    assert.equal(status, 0, `${name}: ${stdout}${stderr}`);
    return stdout;
}

function handedOver() {
    const sessions = path.join(directory, "demo");
    program(demo, build, sessions);
    const file = path.join(directory, "handed-over.jsonl");
    program(path.join(build, "bin", "rui-events"), "export", "--otlp", file,
        path.join(sessions, "with-consent", "data", "Ostrand", "nerix-viewer"));
    return file;
}

// Simulated times are whole microseconds.
function rounded(text) {
    return text.replace(/("(?:observedT|t)imeUnixNano":"\d+)\d{3}"/g, "$1000\"");
}

function checkBytes(lines) {
    for (const line of lines) {
        const [{ resource, events }] = readRequests(line);
        assert.equal(requestText(resource, events), rounded(line));
    }
}

function checkOneClient(file, records) {
    const data = path.join(directory, "one");
    assert.match(load(data, file), new RegExp(`kept ${records}, lines \\d+`));
    const report = path.join(directory, "one.html");
    assert.match(run("report", "--data", data, "--out", report), /: 0 of \d+ questions are answered/);
}

// Times of a request are cut to microseconds by the reader, and the loaded bytes likewise.
function checkSixClients(lines) {
    const data = path.join(directory, "six");
    const id = readRequests(lines[0])[0].resource["rui.client.id"];
    const seen = new Seen(Date.now() * 1000);
    const copies = [0, 1, 2, 3, 4, 5].flatMap((number) => lines.map((line) => (
        rounded(line).replaceAll(id, `${id.slice(0, -1)}${number}`))));
    for (const { resource, events } of copies.flatMap(readRequests)) {
        seen.add({ client: { id: resource["rui.client.id"] }, resource, events });
    }
    const file = path.join(directory, "six.jsonl");
    writeFileSync(file, copies.map((line) => `${line}\n`).join(""));
    load(data, file);
    const answers = answersOf(data, period);
    assertTrue(answers, new Truth(seen), period);
    assert.deepEqual(answers["camera-models"].rows,
        [{ model: "Ostrand ***-2000", clients: 6, cameras: 6 }]);
    const report = path.join(directory, "six.html");
    return run("report", "--data", data, "--out", report, "--since", "7d");
}

mkdirSync(directory);
const file = handedOver();
const lines = readFileSync(file, "utf8").trimEnd().split("\n");
const records = lines.flatMap(readRequests).flatMap(({ events }) => events).length;
checkBytes(lines);
checkOneClient(file, records);
process.stdout.write(`${records} events in ${lines.length} requests\n${checkSixClients(lines)}`);
