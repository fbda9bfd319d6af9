// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
import { readdirSync, statSync } from "node:fs";
import { join } from "node:path";
import { UserError } from "./user-error.js";

const fileNames = /\.(jsonl?|ndjson|log)(\.gz)?$/;

function filesIn(folder) {
    return readdirSync(folder, { withFileTypes: true }).sort((a, b) => (a.name < b.name ? -1 : 1))
        .flatMap((entry) => {
            const path = join(folder, entry.name);
            if (entry.isDirectory()) {
                return filesIn(path);
            }
            return fileNames.test(entry.name) ? [path] : [];
        });
}

/** The files that `paths` name: folders stand for what is in them, by the ending of its name. */
export function filesOf(paths) {
    return paths.flatMap((path) => {
        try {
            return statSync(path).isDirectory() ? filesIn(path) : [path];
        } catch (error) {
            throw new UserError(`${path} cannot be read (${error.code}); look at the name and the rights`);
        }
    });
}
