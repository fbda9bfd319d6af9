// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// The colours of pictures, for light and for dark pages. Any two of a page can be told apart by
// people who see no red, no green or no blue, and each stands out from the page; a test measures
// both.

export const light = {
    page: "#ffffff",
    series: ["#1a5fb4", "#e66100", "#26a269", "#80131f", "#d070c0", "#2b1055"],
    others: "#8b929a",
};

export const dark = {
    page: "#14181d",
    series: ["#4f9df0", "#f5a02a", "#2fbf9b", "#d6402b", "#d9b3ff", "#fbeaa0"],
    others: "#767e87",
};

export const seriesCount = light.series.length;

// The style sheet's names for them.
export function variables({ page, series, others }) {
    const list = series.map((colour, at) => `--series-${at + 1}: ${colour};`);
    return `--page: ${page}; --others: ${others}; ${list.join(" ")}`;
}

// The colour of the series at this place; "others" is grey.
export function colourOf(name, at) {
    return name === "others" ? "var(--others)" : `var(--series-${at + 1})`;
}
