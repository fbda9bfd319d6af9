// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

import assert from "node:assert/strict";

import { questionNames } from "../../fleet/truth/truth.js";

// An answer without rows tells nothing of what it leaves out.
function told({ rows, speaksFor, leftOut }) {
    return rows.length === 0 ? { rows, speaksFor: 0, leftOut: 0 } : { rows, speaksFor, leftOut };
}

// Every question's answer is that of the plain computation: rows, their order, and for how many
// clients they speak.
export function assertTrue(answers, truth, period) {
    assert.deepEqual(Object.keys(answers).sort(), [...questionNames].sort());
    for (const name of questionNames) {
        assert.deepEqual(answers[name], told(truth.answer(name, { threshold: 5, ...period })), name);
    }
}
