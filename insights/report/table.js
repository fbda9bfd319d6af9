// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// The whole answer as a table.

import { html } from "./html.js";
import { cellText, isNumeric, words } from "./numbers.js";

function alignment(column) {
    return isNumeric(column.type) ? html` class="number"` : "";
}

function rowOf(row, columns) {
    return html`<tr>${columns.map((column) => (
        html`<td${alignment(column)}>${cellText(row[column.name], column)}</td>`))}</tr>`;
}

// The place in an order says nothing to a reader, and the median is the same in each row.
function shownColumns(columns) {
    return columns.filter(({ name }) => !["position", "median_seconds"].includes(name));
}

// Paper has no room for more rows: the style sheet leaves out the others there.
export const mostPrinted = 30;

function printed(rows) {
    return rows.length <= mostPrinted ? "" : html`<p class="printed">The first ${mostPrinted} of
${rows.length} rows are printed.</p>`;
}

export function table(question, rows) {
    const columns = shownColumns(question.columns);
    return html`<div class="scroll" tabindex="0" role="region" aria-label="${question.title}, table">
<table><thead><tr>${columns.map((column) => (
    html`<th scope="col"${alignment(column)}>${words(column.name)}</th>`))}</tr></thead>
<tbody>${rows.map((row) => rowOf(row, columns))}</tbody></table></div>${printed(rows)}`;
}
