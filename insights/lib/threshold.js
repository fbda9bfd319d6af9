// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
import { UserError } from "./user-error.js";

/** The fewest clients that a row of an answer speaks for. An option raises it, nothing lowers it. */
export const smallestGroup = 5;

/** The threshold to use where `--threshold` was given as `text`, or was not (undefined). */
export function thresholdOf(text) {
    const threshold = text === undefined ? smallestGroup : Number(text);
    if (!Number.isInteger(threshold) || threshold < smallestGroup || threshold > 1e6) {
        throw new UserError(`--threshold ${text}: give a whole number of ${smallestGroup} or more`);
    }
    return threshold;
}
