// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
import { questions } from "../questions.js";

export const usage = "list";
export const options = {};

export function run() {
    for (const { name, sentence } of questions()) {
        console.log(`${name.padEnd(20)} ${sentence}`);
    }
}
