// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// Markup in which whatever is filled in is text, unless it is markup made here.

class Markup {
    constructor(text) {
        this.text = text;
    }

    toString() {
        return this.text;
    }
}

const entities = { "&": "&amp;", "<": "&lt;", ">": "&gt;", '"': "&quot;", "'": "&#39;" };

// Characters that a page must not hold, or that turn the order of what is read: shown as a box.
const unprintable = new RegExp("[\\u0000-\\u0008\\u000b-\\u001f\\u007f-\\u009f\\u200e\\u200f"
    + "\\u202a-\\u202e\\u2066-\\u2069\\ufffe\\uffff]", "g");

// Halves of characters become boxes too.
export function wellFormed(text) {
    return Buffer.from(text).toString();
}

export function visible(text) {
    return wellFormed(String(text)).replace(unprintable, "\ufffd");
}

function filled(value) {
    if (Array.isArray(value)) {
        return value.map(filled).join("");
    }
    return value instanceof Markup ? value.text
        : visible(value).replace(/[&<>"']/g, (character) => entities[character]);
}

// html`<p>${text}</p>`: markup with the text escaped.
export function html(parts, ...values) {
    return new Markup(String.raw({ raw: parts.raw }, ...values.map(filled)));
}

// Marks text as markup already. For pictures and the style sheet alone.
export function trusted(text) {
    return new Markup(text);
}
