// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

/**
 * The answer to a question (of questions()) from an open store, for the period from the day `since`
 * until before the day `until` (texts, YYYY-MM-DD) and a threshold (thresholdOf()).
 *
 * Returns {question, rows, speaksFor, leftOut}: rows are arrays in the order of question.columns;
 * whole numbers are numbers, days are texts. No row means that nothing may be told: speaksFor and
 * leftOut are 0 then.
 */
export async function answer(store, question, { since, until, threshold }) {
    const rows = await store.rows(question.sql, { since, until, threshold });
    const width = question.columns.length;
    return {
        question,
        rows: rows.map((row) => row.slice(0, width)),
        speaksFor: rows.length > 0 ? rows[0][width] : 0,
        leftOut: rows.length > 0 ? rows[0][width + 1] : 0,
    };
}
