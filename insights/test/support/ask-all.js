// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// ask-all.js DATA SINCE UNTIL THRESHOLD: prints the answers to all questions as JSON, by name:
// {rows: objects, speaksFor, leftOut}. A process of its own, as one process works in one folder.

import { answer } from "../../lib/answers.js";
import { questions } from "../../lib/questions.js";
import { openStore } from "../../lib/store.js";

const [data, since, until, threshold] = process.argv.slice(2);

function objects({ question, rows }) {
    return rows.map((row) => Object.fromEntries(
        question.columns.map(({ name }, at) => [name, row[at]])));
}

const store = await openStore({ data });
const answers = {};
for (const question of questions()) {
    const told = await answer(store, question, { since, until, threshold: Number(threshold) });
    answers[question.name] = { rows: objects(told), speaksFor: told.speaksFor, leftOut: told.leftOut };
}
await store.close();
process.stdout.write(JSON.stringify(answers));
