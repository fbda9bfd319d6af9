// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// Answers to draw, without an engine.

import { parseHTML } from "linkedom";

import { questions } from "../../lib/questions.js";
import { page } from "../../report/page.js";

export function questionNamed(name) {
    return questions().find((question) => question.name === name);
}

export function answerOf(name, rows, { speaksFor = 42, leftOut = 3 } = {}) {
    return { question: questionNamed(name), rows, speaksFor, leftOut };
}

// One row for each type of column, for questions of which the numbers do not matter.
function anyRow({ columns }, text, at) {
    return columns.map(({ type }) => {
        if (type === "Date") {
            return ["2026-11-02", "2026-11-09"][at];
        }
        return type === "String" ? text : at + 7;
    });
}

// An answer of two rows to every question; each text in it is "text".
export function answersWith(text) {
    return questions().map((question) => ({ question, speaksFor: 42, leftOut: 0,
        rows: [anyRow(question, text, 0), anyRow(question, text === "" ? "b" : `${text} 2`, 1)] }));
}

export function pageOf(answers, more = {}) {
    return page({ since: "2026-08-24", until: "2026-11-23", made: "2026-11-22", threshold: 5, answers,
        findings: [["lines", 1234, "lines of files that were requests"]], ...more });
}

export function documentOf(text) {
    return parseHTML(text).document;
}
