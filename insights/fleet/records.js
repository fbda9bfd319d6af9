// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// The texts of the plug-in's records: flat JSON, keys in alphabetical order (docs/events.md).

function escaped(value) {
    return value.replace(/[\\\t\n\r]/g, (character) => (
        { "\\": "\\\\", "\t": "\\t", "\n": "\\n", "\r": "\\r" }[character]));
}

export function streamText(stream) {
    if (stream === null) {
        return "[...cut]";
    }
    const lines = stream.names.map((name, at) => `${name}\t${escaped(stream.values[at])}\n`);
    return `# nerix feature stream 1: ${lines.length} features, ${stream.unreadable} not readable\n`
        + lines.join("");
}

// Inner objects are texts within the text.
function plain(key, value) {
    if (key === "FeatureStreamStats") {
        return streamText(value);
    }
    return typeof value === "object" ? JSON.stringify(value) : value;
}

function sorted(record) {
    const keys = Object.keys(record).sort();
    return Object.fromEntries(keys.map((key) => [key, plain(key, record[key])]));
}

// "Stopped" loses its backslashes, as the plug-in's does. Undefined for an event without a record.
export function recordText({ category, name, record }) {
    if (record === undefined) {
        return undefined;
    }
    const text = JSON.stringify(sorted({ EventCategory: category, EventName: name, ...record }));
    return category === "Grab" && name === "Stopped" ? text.replaceAll("\\", "") : text;
}
