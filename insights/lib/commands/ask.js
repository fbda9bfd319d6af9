// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
import { answer } from "../answers.js";
import { csvOf, tableOf } from "../text-table.js";
import { periodOf, periodOptions } from "../period.js";
import { questions } from "../questions.js";
import { openStore, storeOptions, storeUsage } from "../store.js";
import { thresholdOf } from "../threshold.js";
import { UserError } from "../user-error.js";

export const usage = `ask QUESTION ${storeUsage} [--since 90d|DAY] [--until DAY] [--threshold N] [--csv]`;
export const options = { ...storeOptions, ...periodOptions, threshold: { type: "string" },
    csv: { type: "boolean" } };

function questionNamed(name) {
    const question = questions().find((candidate) => candidate.name === name);
    if (!question) {
        throw new UserError(name === undefined ? `say which question; usage: nerix-insights ${usage}`
            : `there is no question "${name}"; "nerix-insights list" shows them`);
    }
    return question;
}

function print({ question, rows, speaksFor, leftOut }, { since, until }, threshold) {
    console.log(`${question.title}: ${question.sentence}`);
    console.log(`From ${since} until before ${until}.`);
    if (rows.length === 0) {
        console.log(`Nothing to tell: no group has ${threshold} clients.`);
        return;
    }
    console.log(tableOf(question.columns, rows));
    console.log(`Speaks for ${speaksFor} clients. Groups that are not shown because they have fewer`
        + ` than ${threshold}, or would tell of one that has: ${leftOut}.`);
    console.log(question.read);
}

export async function run(values, [name]) {
    const question = questionNamed(name);
    const period = periodOf(values);
    const threshold = thresholdOf(values.threshold);
    const store = await openStore(values);
    try {
        const told = await answer(store, question, { ...period, threshold });
        if (values.csv) {
            process.stdout.write(csvOf(question.columns, told.rows));
        } else {
            print(told, period, threshold);
        }
    } finally {
        await store.close();
    }
}
