// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// The bytes that the analytics library sends: one export request for a list of events of one
// client. A test compares them with a request of the library itself.

import { recordText } from "./records.js";

function attribute(key, value) {
    return `{"key":"${key}","value":{"stringValue":${JSON.stringify(value)}}}`;
}

function head(resource) {
    const attributes = Object.entries(resource).map(([key, value]) => attribute(key, value));
    return `{"resource":{"attributes":[${attributes.join(",")}]},"scopeLogs":[{"scope":`
        + `{"name":"ruiSDK","version":${JSON.stringify(resource["service.version"])}},"logRecords":[`;
}

function recordOf(event) {
    const text = recordText(event);
    const body = text === undefined ? "" : `"body":{"stringValue":${JSON.stringify(text)}},`;
    return `{"timeUnixNano":"${event.time}000","observedTimeUnixNano":"${event.time}000",`
        + '"severityNumber":9,'
        + `"eventName":${JSON.stringify(`rui.${event.category}.${event.name}`)},${body}"attributes":[`
        + `${attribute("log.record.uid", event.uid)},`
        + `${attribute("rui.event.category", event.category)},`
        + `${attribute("rui.event.name", event.name)},`
        + `${attribute("rui.session.id", "")}`
        + `${event.run === undefined ? "" : `,${attribute("rui.run.id", event.run)}`}]}`;
}

// A request begins anew with each resource; the events of one come together.
export function requestText(resource, events) {
    return `{"resourceLogs":[${head(resource)}${events.map(recordOf).join(",")}]}]}]}`;
}
