// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
import { readFileSync, readdirSync } from "node:fs";

const folder = new URL("../questions/", import.meta.url);

function parseHeader(text) {
    const header = {};
    let key;
    for (const line of text.split("\n")) {
        const start = /^-- ([A-Za-z-]+): (.*)$/.exec(line);
        const more = /^-- {3}(.*)$/.exec(line);
        if (start) {
            key = start[1];
            header[key] = start[2];
        } else if (more && key) {
            header[key] += ` ${more[1]}`;
        } else {
            return header;
        }
    }
    return header;
}

function parsePicture(text) {
    const [kind, ...axes] = text.split(" ");
    return { kind, ...Object.fromEntries(axes.map((axis) => axis.split("="))) };
}

function parseColumns(text) {
    return text.split(", ").map((column) => {
        const [name, type] = column.split(" ");
        return { name, type };
    });
}

function parse(text) {
    const header = parseHeader(text);
    return { ...header, sql: text, picture: parsePicture(header.picture),
        columns: parseColumns(header.columns) };
}

/**
 * All questions, by name: name, title, sentence, read, order and definition as in the header
 * (questions/DEFINITIONS.md), picture {kind, x, y, by}, columns [{name, type}], and the whole sql.
 */
export function questions() {
    return readdirSync(folder)
        .filter((file) => file.endsWith(".sql"))
        .sort()
        .map((file) => parse(readFileSync(new URL(file, folder), "utf8")));
}
