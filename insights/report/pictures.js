// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// Which picture an answer gets. A picture is {title, wide, narrow}: SVG texts for the two widths.

import { bars, mostBars } from "./bars.js";
import { narrow, wide } from "./figure.js";
import { heat } from "./heat.js";
import { lines } from "./lines.js";
import { words } from "./numbers.js";
import { colourOf, seriesCount } from "./palette.js";
import { stackedBars, stackedWeeks } from "./stacked.js";

// Of an answer with bars for many things, those with the most clients get one picture each.
const mostPictures = 6;

function inBothWidths(drawn, title) {
    return { title, wide: drawn(wide), narrow: drawn(narrow) };
}

function seriesNames(rows, by) {
    const names = [...new Set(rows.map((row) => row[by]))];
    return [...names.filter((name) => name !== "others"), ...names.filter((name) => name === "others")];
}

function sumOf(rows, column) {
    return rows.reduce((sum, row) => sum + Number(row[column]), 0);
}

// The rest of too many series stands together, grey; their numbers may be added where they are
// parts.
function withFewSeries(rows, { x, y, by }) {
    const names = seriesNames(rows, by).filter((name) => name !== "others");
    const size = (name) => sumOf(rows.filter((row) => row[by] === name), y);
    const kept = new Set([...names].sort((one, other) => size(other) - size(one))
        .slice(0, seriesCount));
    const rest = new Map();
    const own = rows.filter((row) => kept.has(row[by]));
    for (const row of rows.filter((entry) => !kept.has(entry[by]))) {
        const sum = rest.get(row[x])?.[y] ?? 0;
        rest.set(row[x], { ...row, [by]: "others", [y]: sum + Number(row[y]) });
    }
    return [...own, ...rest.values()];
}

function legend(names) {
    return names.map((name, at) => ({ name, colour: colourOf(name, at) }));
}

function stackedPictures({ rows, axes, columns }) {
    const few = withFewSeries(rows, axes);
    const names = seriesNames(few, axes.by);
    const draw = /^Date/.test(columns[axes.x].type) ? stackedWeeks : stackedBars;
    const many = seriesNames(rows, axes.by).filter((name) => name !== "others").length - seriesCount;
    const note = many > 0 ? `Each ${words(axes.by).toLowerCase()} beyond the ${seriesCount} with the most`
        + ` ${axes.y} is drawn with "others".` : undefined;
    return { note, legend: legend(names),
        pictures: [inBothWidths((width) => draw(few, axes, width, names))] };
}

function linePictures({ rows, axes }) {
    const names = axes.by === undefined ? [] : seriesNames(rows, axes.by);
    return { legend: legend(names),
        pictures: [inBothWidths((width) => lines(rows, axes, width, names))] };
}

function barPictures({ rows, axes, columns }) {
    if (axes.by === undefined) {
        const note = rows.length > mostBars ? `The first ${mostBars} of ${rows.length} rows are drawn.`
            : undefined;
        return { note, pictures: [inBothWidths((width) => bars(rows, axes, columns, width))] };
    }
    const rowsOf = (name) => rows.filter((row) => row[axes.by] === name);
    const names = seriesNames(rows, axes.by);
    const largest = [...names].sort((one, other) => (
        sumOf(rowsOf(other), axes.y) - sumOf(rowsOf(one), axes.y))).slice(0, mostPictures);
    const note = names.length > mostPictures
        ? `The ${mostPictures} with the most ${axes.y} of ${names.length} are drawn.` : undefined;
    return { note, isGrid: true, pictures: largest.map((name) => inBothWidths(
        () => bars(rowsOf(name), axes, columns, narrow), name)) };
}

function heatPictures({ rows, axes, columns }) {
    return { pictures: [inBothWidths((width) => heat(rows, axes, columns, width))] };
}

const kinds = { bars: barPictures, heat: heatPictures, line: linePictures, stacked: stackedPictures };

// {pictures, legend, note, isGrid} of a question and the rows of its answer, as objects; no
// pictures for a question that is a table, or an answer without rows.
export function picturesOf(question, rows) {
    const { kind, ...axes } = question.picture;
    const columns = Object.fromEntries(question.columns.map((column) => [column.name, column]));
    return kinds[kind] === undefined || rows.length === 0 ? { pictures: [] }
        : kinds[kind]({ rows, axes, columns });
}
