// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// The whole report: one HTML text that needs nothing from outside, and runs no script.

import { readFileSync } from "node:fs";

import { html, trusted } from "./html.js";
import { dayBefore, dayText, numberText, words } from "./numbers.js";
import { dark, light, variables } from "./palette.js";
import { section } from "./section.js";

const rules = readFileSync(new URL("style.css", import.meta.url), "utf8");

// Questions as a reader comes to them; those that are not listed come last.
const chapters = [
    { title: "Who uses the viewer", names: ["active-clients", "returning-clients", "consent", "versions",
        "not-updated"] },
    { title: "With which cameras", names: ["camera-models", "cameras-per-client", "packet-loss"] },
    { title: "How", names: ["session-funnel", "session-lengths", "first-image", "grab-lengths",
        "grab-rates", "features-chosen", "features-changed", "values-set", "features-untouched"] },
    { title: "What goes wrong", names: ["sessions-unended", "failures", "failure-texts",
        "events-lost"] },
];

function style() {
    return trusted(`<style>
:root { ${variables(light)} }
@media screen and (prefers-color-scheme: dark) { :root { ${variables(dark)} } }
${rules}</style>`);
}

// Keeps a page from asking for anything, whatever stands in it.
const policy = "default-src 'none'; style-src 'unsafe-inline'; base-uri 'none'; form-action 'none'";

function inChapters(answers) {
    const listed = chapters.flatMap(({ names }) => names);
    const more = { title: "More", names: answers.map(({ question }) => question.name)
        .filter((name) => !listed.includes(name)) };
    return [...chapters, more].map(({ title, names }) => ({ title, answers: names
        .map((name) => answers.find(({ question }) => question.name === name))
        .filter((answer) => answer !== undefined) })).filter((chapter) => chapter.answers.length > 0);
}

function contents(list) {
    return html`<nav aria-label="Contents">${list.map(({ title, answers }) => html`<div>
<h2>${title}</h2><ul>${answers.map(({ question }) => (
    html`<li><a href="#${question.name}">${question.title}</a></li>`))}</ul></div>`)}</nav>`;
}

// All who were active, as far as that may be told.
function clientsOf(answers, threshold) {
    const active = answers.find(({ question }) => question.name === "active-clients");
    return active === undefined || active.rows.length === 0 ? `fewer than ${threshold}`
        : numberText(active.speaksFor);
}

function facts({ since, until, made, threshold, answers }) {
    return html`<p class="facts"><strong>${dayText(since)} to ${dayText(dayBefore(until))}</strong>,
${clientsOf(answers, threshold)} clients. Made on ${dayText(made)}. A client is an installation whose
user has agreed. No number here speaks for fewer than ${threshold} clients.</p>`;
}

function dataQuality(findings) {
    const rows = findings.map(([what, number, explanation]) => html`<tr><td>${words(what)}</td>
<td class="number">${numberText(number)}</td><td>${explanation}</td></tr>`);
    return html`<h2 class="chapter">The data</h2><section id="data">
<h2>What was left out, and why</h2>
<p class="sentence">What arrived, whatever the period, what counts of it and what does not.</p>
<div class="scroll whole" tabindex="0" role="region" aria-label="What was left out, table">
<table><thead><tr><th scope="col">What</th><th scope="col" class="number">Number</th>
<th scope="col">Meaning</th></tr></thead><tbody>${rows}</tbody></table></div>
<p class="read">Groups of too few clients are left out too: each question says how many. Values of
texts, serial numbers and addresses are in no answer. Who withdrew is in no answer, and erased.</p>
</section>`;
}

// report: {since, until, made: days, threshold, answers: of lib/answers.js, findings: of the
// command "check"}. Returns the page.
export function page(report) {
    const list = inChapters(report.answers);
    return `<!DOCTYPE html>\n${html`<html lang="en"><head><meta charset="utf-8">
<meta http-equiv="Content-Security-Policy" content="${policy}">
<meta name="viewport" content="width=device-width, initial-scale=1">
<meta name="color-scheme" content="light dark">
<title>How the Nerix Viewer is used, ${dayText(report.since)} to ${dayText(dayBefore(report.until))}</title>
${style()}</head><body><header><h1>How the Nerix Viewer is used</h1>
${facts(report)}</header>
${contents(list)}<main>${list.map(({ title, answers }) => html`<h2 class="chapter">${title}</h2>
${answers.map((answer) => section(answer, report.threshold))}`)}
${dataQuality(report.findings)}</main></body></html>`}\n`;
}
