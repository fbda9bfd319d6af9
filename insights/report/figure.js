// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// What all pictures have in common: drawn to SVG without a browser, in colours that the page gives,
// once for a wide page and once for a telephone.

import * as Plot from "@observablehq/plot";
import { parseHTML } from "linkedom";

const { document } = parseHTML("<html><body></body></html>");

// Widths in pixels. Letters keep their size in both.
export const wide = 760;
export const narrow = 340;

export const mainColour = "var(--series-1)";

const letterSize = 12;

// How much room labels need: there is no browser to measure them.
export function labelWidth(texts) {
    const width = (text) => [...text].reduce((sum, letter) => (
        sum + letterSize * (letter.codePointAt(0) > 0x2e80 ? 1 : 0.62)), 0);
    return Math.ceil(Math.max(0, ...texts.map(width)));
}

// The SVG text of a plot. The page has one style sheet for all of them.
export function draw(options) {
    const svg = Plot.plot({ document, className: "plot", ...options });
    svg.querySelectorAll("style").forEach((style) => style.remove());
    svg.setAttribute("font-size", String(letterSize));
    svg.setAttribute("role", "img");
    return svg.outerHTML;
}

export { Plot };
