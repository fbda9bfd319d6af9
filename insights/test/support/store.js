// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// Stores of this process, one after the other.

import { answer } from "../../lib/answers.js";
import { loadFile } from "../../lib/load.js";
import { questions } from "../../lib/questions.js";
import { refresh } from "../../lib/refresh.js";
import { openStore } from "../../lib/store.js";

export async function withStore(data, use) {
    const store = await openStore({ data });
    try {
        return await use(store);
    } finally {
        await store.close();
    }
}

export async function loadAll(store, files) {
    for (const file of files) {
        await loadFile(store, file);
    }
    await refresh(store);
}

export async function value(store, sql, parameters) {
    return (await store.rows(sql, parameters))[0]?.[0];
}

/** What `check` tells, by name. */
export async function counts(store) {
    const { findings } = await import("../../lib/commands/check.js");
    return Object.fromEntries((await findings(store)).map(([what, number]) => [what, number]));
}

export async function answers(store, period) {
    const told = {};
    for (const question of questions()) {
        const { rows, speaksFor, leftOut } = await answer(store, question, { threshold: 5, ...period });
        told[question.name] = { rows, speaksFor, leftOut };
    }
    return told;
}
