// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// What no library of ours sends, among what one does: counted, kept out or shown as text, and the
// rest of the file counts.

import assert from "node:assert/strict";
import { readFileSync, writeFileSync } from "node:fs";
import path from "node:path";
import test from "node:test";

import { Chance } from "../../fleet/chance.js";
import { requestText } from "../../fleet/otlp.js";
import { parseHTML } from "linkedom";
import { answersOf, dateOf, load, mondayAgo, run, temporaryFolder, today } from "../support/fleets.js";

const chance = new Chance("bad input");
const hostile = "\"><script>alert(1)</script>'); DROP TABLE usage_logs; --";
const yesterday = today - 86400e6;

function resourceOf(number, traits = {}) {
    return { "service.name": "nerixViewer", "service.version": "7.1.0",
        "rui.client.id": `00000000-0000-4000-8000-00000000000${number}`, ...traits };
}

function event(traits = {}) {
    return { time: yesterday, uid: chance.ulid(yesterday / 1000), category: "FeatureChosen",
        name: "Gain", run: chance.uuid(), record: {}, ...traits };
}

function failure(text) {
    return event({ category: "Grab", name: "Failed",
        record: { CameraNr: 0, ExceptionCode: "0x00000001", ExceptionCount: 2, ExceptionText: text,
            Model: text } });
}

// Six clients who do the same, so that they may be told of.
const sixClients = [1, 2, 3, 4, 5, 6].map((number) => requestText(resourceOf(number),
    [event(), failure(hostile), event({ name: hostile })]));

const lines = {
    not_json: ["", "{", "[1, 2]", "null", "\"text\"", "\u0000", "[".repeat(100000),
        sixClients[0].slice(0, -2)],
    not_otlp: ["{}", "{\"resourceLogs\": 7}", "{\"resourceSpans\": []}"],
    foreign: [requestText(resourceOf(1, { "service.name": "another" }), [event()]),
        sixClients[0].replace("\"name\":\"ruiSDK\"", "\"name\":\"other\"")],
    no_identity: [requestText(resourceOf(1, { "rui.client.id": hostile }), [event()]),
        requestText(resourceOf(1), [event({ uid: "x" })]),
        requestText(resourceOf(1), [event({ category: "" })])],
    too_large: [requestText(resourceOf(1), [failure("x".repeat(10e6))])],
    absurd_time: [0, Date.UTC(2100, 0) * 1000].map((time) => requestText(resourceOf(1),
        [event({ time })])),
};
const empty = ["{\"resourceLogs\": []}", "{\"resourceLogs\": [7, null, {\"scopeLogs\": 3}]}"];

// Records that each kind is made of: a foreign line has the six clients' three.
const records = { not_json: 8, not_otlp: 3, foreign: 4, no_identity: 3, too_large: 1, absurd_time: 2 };

test("bad input is counted by its kind and spoils nothing", (context) => {
    const folder = temporaryFolder(context);
    const data = path.join(folder, "data");
    const file = path.join(folder, "mixed.jsonl");
    writeFileSync(file, [...Object.values(lines).flat(), ...empty, ...sixClients]
        .map((line) => `${line}\n`).join(""));
    const output = load(data, file);
    for (const [kind, number] of Object.entries(records)) {
        assert.match(output, new RegExp(`\\b${kind} ${number}\\b`), output);
    }
    assert.match(output, /\bkept 18\b/);
    const period = { since: mondayAgo(2), until: dateOf(today + 86400e6) };
    const answers = answersOf(data, period);
    assert.deepEqual(answers["features-chosen"].rows, [{ feature: "Gain", clients: 6, times: 6 }]);
    assert.deepEqual(answers["failure-texts"].rows,
        [{ code: "0x00000001", text: hostile, clients: 6, images: 12 }]);

    const report = path.join(folder, "report.html");
    assert.match(run("report", "--data", data, "--out", report), /report.html: \d+ of 21 questions/);
    const { document } = parseHTML(readFileSync(report, "utf8"));
    assert.equal(document.querySelectorAll("script").length, 0);
    assert.equal(document.querySelectorAll("#failure-texts td")[1].textContent, hostile);
    assert.match(document.getElementById("data").textContent, /Not json\s*8\s*lines kept out/);
});
