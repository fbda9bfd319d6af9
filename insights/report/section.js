// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// One question of the report: sentence, picture, how to read it, table, for how many it speaks.

import { csvOf } from "../lib/text-table.js";
import { html, trusted, wellFormed } from "./html.js";
import { durationText, numberText } from "./numbers.js";
import { picturesOf } from "./pictures.js";
import { table } from "./table.js";

function svg(text, label, size) {
    return html`<div class="${size}" role="img" aria-label="${label}">${trusted(text)}</div>`;
}

function figure(picture, question) {
    const label = picture.title ?? question.title;
    const heading = picture.title === undefined ? "" : html`<figcaption>${picture.title}</figcaption>`;
    return html`<figure>${heading}${svg(picture.wide, label, "wide")}
${svg(picture.narrow, label, "narrow")}</figure>`;
}

function legendOf(entries) {
    return html`<ul class="legend">${entries.map(({ name, colour }) => (
        html`<li><span style="background:${trusted(colour)}"></span>${name}</li>`))}</ul>`;
}

function drawing(question, rows) {
    const { pictures, legend = [], note, isGrid } = picturesOf(question, rows);
    return html`${legend.length > 0 ? legendOf(legend) : ""}
<div class="${isGrid ? "pictures grid" : "pictures"}">${
    pictures.map((picture) => figure(picture, question))}</div>
${note === undefined ? "" : html`<p class="note">${note}</p>`}`;
}

function csvLink({ question, rows }) {
    const text = encodeURIComponent(wellFormed(csvOf(question.columns, rows)));
    const address = `data:text/csv;charset=utf-8,${text}`;
    return html`<a download="${question.name}.csv" href="${address}">Save as CSV</a>`;
}

// What is the same in each row is said once.
function median(rows) {
    const value = rows[0].median_seconds;
    return value === undefined ? "" : html` The median is ${durationText(value)}.`;
}

function basis({ speaksFor, leftOut }, threshold) {
    const groups = leftOut === 1 ? "group is" : "groups are";
    const hidden = leftOut === 0 ? "" : html` ${numberText(leftOut)} ${groups} not shown by name, so that
nothing tells of fewer than ${threshold} clients.`;
    return html`Speaks for ${numberText(speaksFor)} clients.${hidden}`;
}

const nothing = html`<p class="nothing">Nothing may be shown: no group of this period is large
enough.</p>`;

function content(answer, rows, threshold) {
    const { question } = answer;
    return rows.length === 0 ? nothing : html`${drawing(question, rows)}
<p class="read">${question.read}${median(rows)}</p>
${table(question, rows)}
<p class="basis">${basis(answer, threshold)} ${csvLink(answer)}</p>`;
}

// The answer's rows as objects, by the columns' names.
export function objectsOf({ question, rows }) {
    return rows.map((row) => Object.fromEntries(
        question.columns.map((column, at) => [column.name, row[at]])));
}

export function section(answer, threshold) {
    const { question } = answer;
    return html`<section id="${question.name}">
<h2>${question.title}</h2>
<p class="sentence">${question.sentence}</p>
${content(answer, objectsOf(answer), threshold)}
</section>`;
}
