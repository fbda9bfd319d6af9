// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// Bars that lie, so that their names can be read: from zero to the number, which stands at the end.

import { draw, labelWidth, mainColour, narrow, Plot } from "./figure.js";
import { cellText, shortened, words } from "./numbers.js";

const barHeight = 24;
export const mostBars = 16;

function labelled(rows, { x, y }, columns, width) {
    const length = width === narrow ? 20 : 40;
    return rows.map((row, at) => ({
        // Two long names may be cut to the same.
        key: at,
        name: shortened(cellText(row[x], columns[x]), length),
        value: Number(row[y]),
        text: cellText(row[y], columns[y]),
        others: row[x] === "others",
    }));
}

function marks(bars) {
    return [
        Plot.barX(bars, { y: "key", x: "value", insetTop: 3, insetBottom: 3,
            fill: (bar) => (bar.others ? "var(--others)" : mainColour) }),
        Plot.text(bars, { y: "key", x: "value", text: "text", textAnchor: "start", dx: 5 }),
        Plot.ruleX([0], { stroke: "var(--axis)" }),
    ];
}

// rows: objects; axes: {x, y}; columns: by name. "most" is the length of the longest bar of all
// pictures that are compared.
export function bars(rows, axes, columns, width, most = 0) {
    const list = labelled(rows.slice(0, mostBars), axes, columns, width);
    const names = new Map(list.map((bar) => [bar.key, bar.name]));
    return draw({
        width,
        height: list.length * barHeight + 26,
        marginLeft: labelWidth([...names.values()]) + 14,
        marginRight: labelWidth(list.map((bar) => bar.text)) + 12,
        marginTop: 22,
        marginBottom: 4,
        x: { axis: null, domain: [0, Math.max(most, ...list.map((bar) => bar.value)) || 1] },
        y: { label: null, tickSize: 0, tickFormat: (key) => names.get(key), domain: [...names.keys()] },
        marks: [...marks(list), Plot.text([words(axes.y)], { frameAnchor: "top-left", dy: -18,
            text: (text) => text, fill: "var(--quiet)" })],
    });
}
