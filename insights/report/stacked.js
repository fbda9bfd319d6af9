// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// Parts of a whole: bars over the weeks stand, others lie. Parts are told apart by colour and by a
// gap.

import { draw, labelWidth, narrow, Plot } from "./figure.js";
import { numberText, words } from "./numbers.js";
import { colourOf } from "./palette.js";
import { dateOf, weeksBetween, weekTicks } from "./weeks.js";

const gap = { stroke: "var(--page)", strokeWidth: 1 };

function parts(rows, { x, y, by }, names) {
    return rows.map((row) => ({ place: row[x] === "" ? "others" : row[x], value: Number(row[y]),
        part: row[by], rank: names.indexOf(row[by]) }))
        .sort((one, other) => one.rank - other.rank);
}

function fillOf(names) {
    return ({ part }) => colourOf(part, names.indexOf(part));
}

export function stackedWeeks(rows, axes, width, names) {
    const weeks = weeksBetween(rows.map((row) => row[axes.x]));
    return draw({
        width,
        height: 280,
        marginLeft: 46,
        marginTop: 26,
        x: { type: "band", label: null, domain: weeks, padding: 0.12,
            ticks: weekTicks(weeks, width === narrow ? 4 : 9).ticks.map((date) => (
                date.toISOString().slice(0, 10))),
            tickFormat: (week) => weekTicks([week], 1).tickFormat(dateOf(week)) },
        y: { label: words(axes.y), labelArrow: "none", grid: true, ticks: 5, tickFormat: numberText },
        marks: [
            Plot.barY(parts(rows, axes, names), { x: "place", y: "value", fill: fillOf(names), ...gap }),
            Plot.ruleY([0], { stroke: "var(--axis)" }),
        ],
    });
}

export function stackedBars(rows, axes, width, names) {
    const list = parts(rows, axes, names);
    const places = [...new Set(rows.map((row) => row[axes.x]))].map((place) => place || "others");
    const totals = places.map((place) => ({ place, value: list.filter((part) => part.place === place)
        .reduce((sum, part) => sum + part.value, 0) }));
    return draw({
        width,
        height: places.length * 30 + 26,
        marginLeft: labelWidth(places) + 14,
        marginRight: labelWidth(totals.map(({ value }) => numberText(value))) + 12,
        marginTop: 22,
        marginBottom: 4,
        x: { axis: null, domain: [0, Math.max(1, ...totals.map(({ value }) => value))] },
        y: { label: null, tickSize: 0, domain: places },
        marks: [
            Plot.barX(list, { x: "value", y: "place", fill: fillOf(names), ...gap, insetTop: 3,
                insetBottom: 3 }),
            Plot.text(totals, { x: "value", y: "place", text: ({ value }) => numberText(value),
                textAnchor: "start", dx: 5 }),
            Plot.ruleX([0], { stroke: "var(--axis)" }),
            Plot.text([words(axes.y)], { frameAnchor: "top-left", dy: -18, text: (text) => text,
                fill: "var(--quiet)" }),
        ],
    });
}
