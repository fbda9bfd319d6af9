// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// captured/session.jsonl is what the analytics library sent after a session of the real viewer with
// a simulated camera.

import assert from "node:assert/strict";
import { readFileSync } from "node:fs";
import test from "node:test";

import { requestText } from "../../fleet/otlp.js";
import { readRequests } from "./request-reader.js";

const captured = readFileSync(new URL("captured/session.jsonl", import.meta.url), "utf8").trimEnd();

// Simulated times are whole microseconds.
function rounded(text) {
    return text.replace(/("(?:observedT|t)imeUnixNano":"\d+)\d{3}"/g, "$1000\"");
}

test("a simulated request has the bytes of one of the library", () => {
    const lines = captured.split("\n");
    assert.ok(lines.length > 0);
    for (const line of lines) {
        const [{ resource, events }] = readRequests(line);
        assert.equal(requestText(resource, events), rounded(line));
    }
});

test("the captured session has every kind of event of the plug-in", () => {
    const kinds = new Set(captured.split("\n").flatMap((line) => readRequests(line))
        .flatMap(({ events }) => events).map(({ category, name }) => `${category} ${name}`));
    assert.deepEqual([...kinds].sort(), ["Camera Closed", "Camera Connected", "Camera Opened",
        "Camera Removed", "FeatureChosen ExposureTime", "GeneralEvent InitialCameraCount",
        "GeneralEvent SessionEnded", "GeneralEvent SessionStarted", "Grab Failed", "Grab Started",
        "Grab Stopped", "Model Ostrand ***-2000", "ParameterValueChanged ExposureTime"]);
});

const resource = { "service.name": "nerixViewer", "service.version": "7.1.0",
    "rui.product.id": "2026110001", "rui.product.build": "11271", "rui.product.edition": "Standard",
    "rui.product.language": "US English", "rui.client.id": "f81d4fae-7dec-41d0-a765-00a0c91e6bf6" };

function recordBytes(event) {
    const text = requestText(resource, [{ time: 1795199937000000, uid: "01M7X3PKPZ0XS3T5BFDHPJZ4DJ",
        ...event }]);
    return text.slice(text.indexOf('"logRecords":[') + 14, -6);
}

test("a withdrawal has no text and no run", () => {
    assert.equal(recordBytes({ category: "ruiSDK", name: "OptOut" }),
        '{"timeUnixNano":"1795199937000000000","observedTimeUnixNano":"1795199937000000000",'
        + '"severityNumber":9,"eventName":"rui.ruiSDK.OptOut","attributes":['
        + '{"key":"log.record.uid","value":{"stringValue":"01M7X3PKPZ0XS3T5BFDHPJZ4DJ"}},'
        + '{"key":"rui.event.category","value":{"stringValue":"ruiSDK"}},'
        + '{"key":"rui.event.name","value":{"stringValue":"OptOut"}},'
        + '{"key":"rui.session.id","value":{"stringValue":""}}]}');
});

test("a loss is told by its reasons, in alphabetical order", () => {
    assert.match(recordBytes({ category: "ruiSDK", name: "EventsLost",
        record: { storage: 2, maxAge: 3 } }), new RegExp(String.raw`"body":\{"stringValue":"`
        + String.raw`\{\\"EventCategory\\":\\"ruiSDK\\",\\"EventName\\":\\"EventsLost\\",`
        + String.raw`\\"maxAge\\":3,\\"storage\\":2\}"\}`));
});

test("a grab's end loses its backslashes", () => {
    const record = { CameraNr: 0, GrabType: "Continuous", Model: 'Kalmar "2\\3"',
        StatusBarStats: { FPS: 29 }, StreamStats: { TotalBufferCount: 1 } };
    const { body } = JSON.parse(recordBytes({ category: "Grab", name: "Stopped", record }));
    assert.equal(body.stringValue, '{"CameraNr":0,"EventCategory":"Grab","EventName":"Stopped",'
        + '"GrabType":"Continuous","Model":"Kalmar "23"","StatusBarStats":"{"FPS":29}",'
        + '"StreamStats":"{"TotalBufferCount":1}"}');
});

test("a value keeps to its line of the feature stream", () => {
    const stream = { names: ["A", "B"], values: ["1", "x\\y\tz\nq\r"], unreadable: 1 };
    const { body } = JSON.parse(recordBytes({ category: "Camera", name: "Opened",
        record: { CameraNr: 0, Model: "m", FeatureStreamStats: stream } }));
    assert.equal(JSON.parse(body.stringValue).FeatureStreamStats,
        "# nerix feature stream 1: 2 features, 1 not readable\nA\t1\nB\tx\\\\y\\tz\\nq\\r\n");
});
