// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
import { readFileSync, readdirSync } from "node:fs";

const folder = new URL("../schema/", import.meta.url);

/** The statements of an SQL file of schema/: each ends with a semicolon at the end of a line. */
export function statementsOf(file) {
    return readFileSync(new URL(file, folder), "utf8")
        .split(/;\n/)
        .filter((text) => text.replace(/--.*/g, "").trim() !== "");
}

/** The SQL files of a folder in schema/, in the order in which they are applied. */
export function filesOf(subfolder) {
    return readdirSync(new URL(subfolder, folder))
        .filter((file) => file.endsWith(".sql"))
        .sort()
        .map((file) => `${subfolder}${file}`);
}
