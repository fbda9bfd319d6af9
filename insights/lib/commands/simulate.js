// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
import { mkdirSync, readdirSync } from "node:fs";

import { writeFleet } from "../../fleet/write.js";
import { UserError } from "../user-error.js";

export const usage = "simulate --out DIRECTORY [--clients 2000] [--weeks 26] [--seed 1]"
    + " [--until YYYY-MM-DD] [--gzip]";

export const options = {
    out: { type: "string" },
    clients: { type: "string", default: "2000" },
    weeks: { type: "string", default: "26" },
    seed: { type: "string", default: "1" },
    until: { type: "string" },
    gzip: { type: "boolean", default: false },
};

function wholeNumber(name, text, from, to) {
    const number = Number(text);
    if (!/^\d+$/.test(text) || number < from || number > to) {
        throw new UserError(`--${name} ${text}: give a whole number from ${from} to ${to}`);
    }
    return number;
}

// Microseconds of the midnight that ends the last simulated day; that of today when none is given.
function midnight(text) {
    const date = text ?? new Date().toISOString().slice(0, 10);
    const time = /^\d{4}-\d\d-\d\d$/.test(date) ? Date.parse(`${date}T00:00:00Z`) : NaN;
    if (Number.isNaN(time)) {
        throw new UserError(`--until ${date}: give a day as YYYY-MM-DD`);
    }
    return time * 1000;
}

// Files of another fleet would be loaded along with these.
function makeFolder(folder) {
    if (folder === undefined) {
        throw new UserError("--out is missing: name a folder for the files");
    }
    try {
        mkdirSync(folder, { recursive: true });
    } catch (error) {
        throw new UserError(`--out ${folder}: no folder can be made there (${error.code})`);
    }
    if (readdirSync(folder).length > 0) {
        throw new UserError(`--out ${folder}: this folder is not empty; name another one`);
    }
}

export function run(values) {
    const options = {
        clients: wholeNumber("clients", values.clients, 1, 1e6),
        weeks: wholeNumber("weeks", values.weeks, 1, 520),
        seed: wholeNumber("seed", values.seed, 0, Number.MAX_SAFE_INTEGER),
        end: midnight(values.until),
        gzip: values.gzip,
    };
    makeFolder(values.out);
    const written = writeFleet(values.out, options);
    console.log(`${written.events} events of ${written.clients} clients in ${written.requests}`
        + ` requests, ${(written.bytes / 1e6).toFixed(0)} MB; ${written.records - written.events}`
        + " of the events come twice");
}
