// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

import assert from "node:assert/strict";
import test from "node:test";

import { picturesOf } from "../../report/pictures.js";
import { objectsOf } from "../../report/section.js";
import { answerOf, documentOf } from "./sample.js";

function drawn(name, rows) {
    const answer = answerOf(name, rows);
    return picturesOf(answer.question, objectsOf(answer));
}

function svg(text) {
    return documentOf(`<html><body>${text}</body></html>`).querySelector("svg");
}

function numbers(elements, attribute) {
    return [...elements].map((element) => Number(element.getAttribute(attribute)));
}

test("lying bars begin at zero and are as long as their numbers", () => {
    const { pictures: [{ wide }] } = drawn("camera-models", [["a", 40, 1], ["b", 20, 1], ["c", 5, 1]]);
    const bars = svg(wide).querySelectorAll("rect");
    assert.equal(new Set(numbers(bars, "x")).size, 1);
    const [first, ...others] = numbers(bars, "width");
    others.forEach((width, at) => assert.ok(Math.abs(width / first - [0.5, 0.125][at]) < 1e-9));
    assert.equal(Number(svg(wide).querySelector("[aria-label=rule] line").getAttribute("x1")),
        numbers(bars, "x")[0]);
});

test("standing bars begin at zero and stand on one another", () => {
    const { pictures: [{ wide }] } = drawn("versions", [["2026-11-02", "7.1", 30],
        ["2026-11-02", "7.2", 10]]);
    const bars = svg(wide).querySelectorAll("rect");
    const [low, high] = numbers(bars, "height");
    assert.ok(Math.abs(low / high - 3) < 1e-9);
    const [lowTop, highTop] = numbers(bars, "y");
    assert.ok(Math.abs(highTop + high - lowTop) < 1e-9);
    // The axis: the height of the picture without the room below it.
    assert.ok(Math.abs(lowTop + low - (280 - 30)) < 1e-9);
});

test("a week that may not be shown breaks the line", () => {
    const weeks = ["2026-10-05", "2026-10-12", "2026-10-26", "2026-11-02"];
    const { pictures: [{ wide }] } = drawn("active-clients", weeks.map((week) => [week, 9, 90]));
    const path = svg(wide).querySelector("[aria-label=line] path").getAttribute("d");
    assert.equal(path.match(/M/g).length, 2);
    assert.equal(svg(wide).querySelectorAll("circle").length, 4);
});

test("a number over the weeks is drawn from zero", () => {
    const { pictures: [{ wide }] } = drawn("active-clients", [["2026-11-02", 900, 1],
        ["2026-11-09", 950, 1]]);
    const labels = [...svg(wide).querySelectorAll("text")].map((text) => text.textContent);
    assert.ok(labels.includes("0"), labels.join(" "));
});

test("the first sixteen of many bars are drawn, and it is said so", () => {
    const rows = Array.from({ length: 20 }, (_, at) => [`feature${at}`, 50 - at, 100]);
    const { pictures: [{ wide }], note } = drawn("features-chosen", rows);
    assert.equal(svg(wide).querySelectorAll("rect").length, 16);
    assert.equal(note, "The first 16 of 20 rows are drawn.");
});

test("versions beyond the six most used are drawn together", () => {
    const rows = Array.from({ length: 8 }, (_, at) => ["2026-11-02", `7.${at}`, 10 + at]);
    const { pictures: [{ wide }], legend, note } = drawn("versions", rows);
    assert.deepEqual(legend.map(({ name }) => name), ["7.2", "7.3", "7.4", "7.5", "7.6", "7.7", "others"]);
    assert.equal(legend.at(-1).colour, "var(--others)");
    assert.equal(svg(wide).querySelectorAll("rect").length, 7);
    assert.equal(note, "Each version beyond the 6 with the most clients is drawn with \"others\".");
});

test("each of the features that are set most has a picture of its own", () => {
    const rows = Array.from({ length: 9 }, (_, at) => [`Feature${at}`, "1 to 2", 20, 10 + at, 20]);
    const { pictures, note } = drawn("values-set", rows);
    assert.deepEqual(pictures.map(({ title }) => title), ["Feature8", "Feature7", "Feature6", "Feature5",
        "Feature4", "Feature3"]);
    assert.equal(note, "The 6 with the most clients of 9 are drawn.");
});

test("weeks that nobody came back in keep their place", () => {
    const { pictures: [{ wide }] } = drawn("returning-clients", [["2026-10-05", 0, 20, 20, 1],
        ["2026-10-05", 3, 10, 20, 0.5]]);
    const labels = [...svg(wide).querySelectorAll("text")].map((text) => text.textContent);
    assert.deepEqual(labels.filter((text) => /^\d$/.test(text)), ["0", "1", "2", "3"]);
    assert.ok(labels.includes("50"));
});

test("letters are as large on a telephone as on a wide page", () => {
    const { pictures: [{ wide, narrow }] } = drawn("camera-models", [["a", 40, 1]]);
    const sizes = [wide, narrow].map((text) => svg(text).getAttribute("font-size"));
    assert.deepEqual(sizes, ["12", "12"]);
    assert.deepEqual([wide, narrow].map((text) => svg(text).getAttribute("width")), ["760", "340"]);
});
