// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// A number over the weeks. A week that is not shown breaks the line; numbers begin at zero.

import { draw, mainColour, narrow, Plot } from "./figure.js";
import { dateOf, weeksBetween, weekTicks } from "./weeks.js";
import { numberText, words } from "./numbers.js";
import { colourOf } from "./palette.js";

const height = 250;

// One point for each week, undefined where the answer has none.
function points(rows, { x, y }) {
    const known = new Map(rows.map((row) => [row[x], Number(row[y])]));
    return weeksBetween([...known.keys()]).map((week) => ({ week: dateOf(week),
        value: known.get(week) ?? NaN }));
}

function lineOf(list, colour) {
    return [
        Plot.line(list, { x: "week", y: "value", stroke: colour, strokeWidth: 2.2 }),
        Plot.dot(list.filter(({ value }) => !Number.isNaN(value)),
            { x: "week", y: "value", fill: colour, r: 3 }),
    ];
}

// "names" are the values of axes.by, each with a line of its own; none for a single line.
export function lines(rows, axes, width, names = []) {
    const marks = names.length === 0 ? lineOf(points(rows, axes), mainColour)
        : names.flatMap((name, at) => lineOf(points(rows.filter((row) => row[axes.by] === name), axes),
            colourOf(name, at)));
    const weeks = weeksBetween(rows.map((row) => row[axes.x]));
    return draw({
        width,
        height,
        marginLeft: 46,
        marginRight: 22,
        marginTop: 26,
        x: { type: "utc", label: null, domain: [dateOf(weeks[0]), dateOf(weeks.at(-1))],
            ...weekTicks(weeks, width === narrow ? 4 : 9) },
        y: { label: words(axes.y), labelArrow: "none", zero: true, grid: true, ticks: 5,
            tickFormat: numberText, nice: true },
        marks: [Plot.ruleY([0], { stroke: "var(--axis)" }), ...marks],
    });
}
