// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// Requests that are written by hand, for what no fleet sends. Times are of this week.

import { randomUUID } from "node:crypto";
import { writeFileSync } from "node:fs";

export const clientA = "aaaaaaaa-0000-4000-8000-000000000001";
export const clientB = "bbbbbbbb-0000-4000-8000-000000000002";

// A time of yesterday, so that all events of a test are in the past and of two days at most.
const start = Date.now() - 24 * 3600 * 1000;

let counter = 0;

/** An identifier that no other event has. */
export function uid() {
    counter += 1;
    return `01M7X3PKPZ${counter.toString(8).padStart(16, "0")}`;
}

function attributes(values) {
    return Object.entries(values).map(([key, value]) => ({ key, value: { stringValue: value } }));
}

/** A record: {category, name, text, run, uid, at (milliseconds), nanoseconds (a text)}. */
export function record({ category = "FeatureChosen", name = "Gain", text, run = "r1", uid: id = uid(),
    at = start, nanoseconds = `${Math.floor(at)}000000` } = {}) {
    return {
        timeUnixNano: nanoseconds, observedTimeUnixNano: nanoseconds, severityNumber: 9,
        eventName: `rui.${category}.${name}`,
        ...(text === undefined ? {} : { body: { stringValue: text } }),
        attributes: attributes({ "log.record.uid": id, "rui.event.category": category,
            "rui.event.name": name, "rui.session.id": "", "rui.run.id": run }),
    };
}

export const optOut = (at) => record({ category: "ruiSDK", name: "OptOut", ...(at ? { at } : {}) });

/** One line: a request with these records of a client. */
export function request(client, records, { service = "nerixViewer", scope = "ruiSDK" } = {}) {
    return JSON.stringify({ resourceLogs: [{
        resource: { attributes: attributes({ "service.name": service, "service.version": "7.1.0",
            "rui.client.id": client }) },
        scopeLogs: [{ scope: { name: scope, version: "7.1.0" }, logRecords: records }] }] });
}

export function writeLines(path, lines) {
    writeFileSync(path, lines.map((line) => `${line}\n`).join(""));
    return path;
}

export const newClient = () => randomUUID();
