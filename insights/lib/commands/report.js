// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
import { writeFileSync } from "node:fs";

import { answer } from "../answers.js";
import { periodOf, periodOptions } from "../period.js";
import { questions } from "../questions.js";
import { openStore, storeOptions, storeUsage } from "../store.js";
import { thresholdOf } from "../threshold.js";
import { UserError } from "../user-error.js";
import { findings } from "./check.js";
import { page } from "../../report/page.js";

export const usage = `report ${storeUsage} --out FILE [--since 90d|DAY] [--until DAY] [--threshold N]`;
export const options = { ...storeOptions, ...periodOptions, out: { type: "string" },
    threshold: { type: "string" } };

async function allAnswers(store, parameters) {
    const answers = [];
    for (const question of questions()) {
        answers.push(await answer(store, question, parameters));
    }
    return answers;
}

async function collect(values, parameters) {
    const store = await openStore(values);
    try {
        return { answers: await allAnswers(store, parameters), findings: await findings(store) };
    } finally {
        await store.close();
    }
}

function write(file, text) {
    try {
        writeFileSync(file, text);
    } catch (error) {
        throw new UserError(`--out ${file}: cannot be written (${error.code}); name another file`);
    }
}

export async function run(values) {
    if (values.out === undefined) {
        throw new UserError("--out is missing: name a file for the report, such as report.html");
    }
    const parameters = { ...periodOf(values), threshold: thresholdOf(values.threshold) };
    const collected = await collect(values, parameters);
    const made = new Date().toISOString().slice(0, 10);
    write(values.out, page({ ...parameters, made, ...collected }));
    const told = collected.answers.filter(({ rows }) => rows.length > 0).length;
    console.log(`${values.out}: ${told} of ${collected.answers.length} questions are answered`);
}
