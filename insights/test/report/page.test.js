// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

import assert from "node:assert/strict";
import test from "node:test";

import { questions } from "../../lib/questions.js";
import { csvOf } from "../../lib/text-table.js";
import { mostPrinted } from "../../report/table.js";
import { answerOf, answersWith, documentOf, pageOf } from "./sample.js";

const hostile = {
    "an element": "<script>alert(1)</script><img src=x onerror=alert(1)>",
    "the end of an attribute": "\" onmouseover=\"alert(1)",
    "the end of the style sheet": "</style><iframe src=\"//example.com\"></iframe>",
    "the end of a picture": "</text></svg><a href=javascript:alert(1)>x</a>",
    "an entity": "&lt;script&gt; &#x3c;b>",
    "an address in a style": "url(//example.com/x) @import '//example.com'",
    "a template": "${alert(1)} {{alert(1)}}",
    "SQL": "'); DROP TABLE usage_logs; --",
};

const allowedElements = new Set(["a", "body", "div", "figcaption", "figure", "g", "h1", "h2", "head",
    "header", "html", "li", "line", "main", "meta", "nav", "p", "path", "circle", "rect", "section",
    "span", "strong", "style", "svg", "table", "tbody", "td", "text", "th", "thead", "title", "tr",
    "ul"]);

function assertHarmless(document) {
    for (const element of document.querySelectorAll("*")) {
        assert.ok(allowedElements.has(element.tagName.toLowerCase()), element.outerHTML.slice(0, 200));
        for (const { name, value } of element.attributes) {
            assert.ok(!name.startsWith("on") && !["src", "srcset", "xlink:href"].includes(name), name);
            assert.ok(name !== "href" || /^(#[a-z-]+|data:text\/csv;)/.test(value), value);
            assert.ok(!["style", "fill", "stroke", "filter", "mask", "class"].includes(name)
                || !/url|[;<"]/.test(value), value);
        }
    }
}

for (const [kind, text] of Object.entries(hostile)) {
    test(`text that is ${kind} stays text`, () => {
        const document = documentOf(pageOf(answersWith(text)));
        assertHarmless(document);
        assert.equal(document.querySelectorAll("style").length, 1);
        const cells = [...document.querySelectorAll("#camera-models td")].map((cell) => cell.textContent);
        assert.deepEqual(cells.slice(0, 1), [text]);
    });
}

test("control and bidirectional characters are shown as boxes", () => {
    const document = documentOf(pageOf([answerOf("camera-models",
        [["a\u0000b\u202ec\u001bd\ud800", 9, 9]])]));
    assert.equal(document.querySelector("td").textContent, "a\ufffdb\ufffdc\ufffdd\ufffd");
});

test("the page asks for nothing from outside, and forbids it", () => {
    const text = pageOf(answersWith("Ostrand KUV-2040M"));
    assert.doesNotMatch(text.replace(/href="data:[^"]*"/g, ""), /(https?:)?\/\/\w|url\(|@import|<script/);
    assert.match(text, /Content-Security-Policy" content="default-src &#39;none&#39;; style-src &#39;un/);
});

test("every question has its section, with a table under its picture and the answer as CSV", () => {
    const answers = answersWith("x");
    const document = documentOf(pageOf(answers));
    for (const { question, rows } of answers) {
        const section = document.getElementById(question.name);
        assert.equal(section.querySelector("h2").textContent, question.title);
        assert.equal(section.querySelectorAll("tbody tr").length, rows.length, question.name);
        const pictures = question.picture.kind === "table" ? 0 : 1;
        assert.equal(section.querySelectorAll(".wide svg").length >= pictures, true, question.name);
        assert.equal(section.querySelectorAll(".narrow svg").length,
            section.querySelectorAll(".wide svg").length);
        const link = section.querySelector("a[download]");
        assert.equal(link.getAttribute("download"), `${question.name}.csv`);
        assert.equal(decodeURIComponent(link.getAttribute("href").split(",").slice(1).join(",")),
            csvOf(question.columns, rows));
    }
    assert.equal(document.querySelectorAll("nav a").length, questions().length);
});

test("an answer that may tell nothing says so", () => {
    const document = documentOf(pageOf([answerOf("versions", [], { speaksFor: 0, leftOut: 0 })]));
    assert.match(document.getElementById("versions").textContent, /Nothing may be shown/);
    assert.equal(document.querySelectorAll("svg").length, 0);
});

test("the page tells its period, its clients and what was left out", () => {
    const document = documentOf(pageOf([answerOf("active-clients", [["2026-11-16", 42, 900]])]));
    assert.match(document.querySelector("header").textContent,
        /24 Aug 2026 to 22 Nov 2026,\s+42 clients\. Made on 22 Nov 2026\./);
    assert.match(document.querySelector(".basis").textContent,
        /Speaks for 42 clients\. 3 groups are not shown by name, so that\s+nothing tells of fewer than 5/);
    assert.match(document.getElementById("data").textContent, /Lines\s*1,234\s*lines of files/);
});

test("a number of clients that may not be told is not", () => {
    const document = documentOf(pageOf([answerOf("active-clients", [], { speaksFor: 0 })]));
    assert.match(document.querySelector("header").textContent, /fewer than 5 clients\. Made/);
});

test("paper gets the first rows of a long table, and is told so", () => {
    const rows = Array.from({ length: 31 }, (_, at) => [`feature${at}`, 40, 40]);
    const text = pageOf([answerOf("features-chosen", rows)]);
    assert.match(documentOf(text).querySelector(".printed").textContent,
        /The first 30 of\s+31 rows are printed\./);
    assert.match(text, new RegExp(`tbody tr:nth-child\\(n \\+ ${mostPrinted + 1}\\) \\{ display: none; \\}`));
    assert.equal(documentOf(pageOf([answerOf("features-chosen", rows.slice(1))]))
        .querySelector(".printed"), null);
});
