// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

// What a terminal or a table program would take for an order of its own.
function plain(value) {
    return String(value).replace(/[\u0000-\u001f\u007f-\u009f\u202a-\u202e\u2066-\u2069]/g, "\ufffd");
}

/** Rows under their headings, for a terminal. */
export function tableOf(columns, rows) {
    const lines = [columns.map(({ name }) => name), ...rows.map((row) => row.map(plain))];
    const widths = columns.map((_, i) => Math.max(...lines.map((line) => line[i].length)));
    return lines.map((line) => line.map((cell, i) => (columns[i].type === "String"
        ? cell.padEnd(widths[i]) : cell.padStart(widths[i]))).join("  ").trimEnd()).join("\n");
}

function csvCell(value) {
    const text = String(value);
    // A table program calculates a text that begins like this: the apostrophe makes it a text.
    const safe = typeof value === "string" && /^[=+\-@\t\r]/.test(text) ? `'${text}` : text;
    return /[",\r\n]/.test(safe) ? `"${safe.replaceAll('"', '""')}"` : safe;
}

/** The same as CSV (RFC 4180, with headings). */
export function csvOf(columns, rows) {
    return [columns.map(({ name }) => name), ...rows]
        .map((row) => `${row.map(csvCell).join(",")}\r\n`).join("");
}
