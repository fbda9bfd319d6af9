// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// A table in which a cell is the darker the larger its number is. The numbers stand in it.

import { draw, labelWidth, mainColour, narrow, Plot } from "./figure.js";
import { cellText, isNumeric, isShare, shortened, words } from "./numbers.js";
import { shortDay } from "./weeks.js";

const cellHeight = 24;

// Columns that a telephone has room for.
const mostColumns = { wide: 16, narrow: 6 };

// A cell's number without its unit, which stands above, and with no more digits than one compares.
function shortText(value, column) {
    const rounded = isNumeric(column.type) ? Number(Number(value).toPrecision(2)) : value;
    return cellText(rounded, column).replace(" %", "");
}

function heading(columns, { x, by }) {
    return `${words(x)}, and in the cells: ${by}${isShare(columns[by]) ? " in %" : ""}`;
}

function nameOf(value, column, width) {
    return /^Date/.test(column.type) ? shortDay(value)
        : shortened(cellText(value, column), width === narrow ? 18 : 30);
}

// All values of a column in their order; of counts also those that no row has.
function different(rows, column) {
    const values = [...new Set(rows.map((row) => row[column.name]))];
    if (isNumeric(column.type)) {
        return Array.from({ length: Math.max(...values) + 1 }, (_, at) => at);
    }
    const others = values.filter((value) => value === "others" || value === "");
    const named = values.filter((value) => !others.includes(value));
    return [...named.sort(), ...others];
}

function cellMarks(rows, { x, y, by }, columns) {
    const most = Math.max(...rows.map((row) => Number(row[by]))) || 1;
    const strength = (row) => 0.06 + 0.94 * (Number(row[by]) / most);
    return [
        Plot.cell(rows, { x, y, fill: mainColour, fillOpacity: strength, inset: 0.5, rx: 2 }),
        Plot.text(rows, { x, y, text: (row) => shortText(row[by], columns[by]),
            fill: (row) => (strength(row) > 0.55 ? "var(--page)" : "var(--ink)") }),
    ];
}

export function heat(rows, axes, columns, width) {
    const across = different(rows, columns[axes.x])
        .slice(0, width === narrow ? mostColumns.narrow : mostColumns.wide);
    const shown = rows.filter((row) => across.includes(row[axes.x]));
    const down = different(shown, columns[axes.y]);
    const names = down.map((value) => nameOf(value, columns[axes.y], width));
    return draw({
        width,
        height: down.length * cellHeight + 46,
        marginLeft: labelWidth(names) + 12,
        marginTop: 44,
        marginBottom: 2,
        x: { axis: "top", label: heading(columns, axes), labelAnchor: "left", labelArrow: "none", tickSize: 0,
            domain: across, tickFormat: (value) => nameOf(value, columns[axes.x], narrow) },
        y: { label: null, tickSize: 0, domain: down,
            tickFormat: (value) => nameOf(value, columns[axes.y], width) },
        marks: cellMarks(shown, axes, columns),
    });
}
