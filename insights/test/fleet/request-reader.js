// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// Requests of the library, taken apart into the events of a simulated fleet (fleet/session.js), and
// no more of them than a simulated event has: what is made of them again shows what is missing.

const marker = /"StatusBarStats":"(\{[^{}]*\})","StreamStats":"(\{[^{}]*\})"\}$/;

function attributesOf({ attributes }) {
    return Object.fromEntries(attributes.map(({ key, value }) => [key, value.stringValue]));
}

function unescaped(text) {
    return text.replace(/\\(.)/g, (_, letter) => ({ t: "\t", n: "\n", r: "\r" }[letter] ?? letter));
}

function streamOf(text) {
    const [first, ...lines] = text.split("\n").slice(0, -1);
    const parts = lines.map((line) => [line.slice(0, line.indexOf("\t")),
        unescaped(line.slice(line.indexOf("\t") + 1))]);
    return { names: parts.map(([name]) => name), values: parts.map(([, value]) => value),
        unreadable: Number(/, (\d+) not readable/.exec(first)[1]) };
}

function stoppedOf(text) {
    const [tail, bar, stream] = marker.exec(text);
    const front = text.slice(0, -tail.length).replace(/,$/, "}");
    return { ...JSON.parse(front), StatusBarStats: JSON.parse(bar), StreamStats: JSON.parse(stream) };
}

function recordOf(text, kind) {
    const { EventCategory, EventName, ...record } = kind === "Grab Stopped" ? stoppedOf(text)
        : JSON.parse(text);
    if (record.FeatureStreamStats !== undefined) {
        record.FeatureStreamStats = streamOf(record.FeatureStreamStats);
    }
    return record;
}

function eventOf(logRecord) {
    const attributes = attributesOf(logRecord);
    const category = attributes["rui.event.category"];
    const name = attributes["rui.event.name"];
    const text = logRecord.body?.stringValue;
    return {
        time: Number(logRecord.timeUnixNano.slice(0, -3)),
        uid: attributes["log.record.uid"],
        run: attributes["rui.run.id"],
        category,
        name,
        record: text === undefined ? undefined : recordOf(text, `${category} ${name}`),
    };
}

// {resource, events} of each resource of one line.
export function readRequests(line) {
    return JSON.parse(line).resourceLogs.map(({ resource, scopeLogs: [{ logRecords }] }) => ({
        resource: attributesOf(resource),
        events: logRecords.map(eventOf),
    }));
}
