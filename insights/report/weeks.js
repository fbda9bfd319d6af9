// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// Weeks, named by their Mondays, as texts like "2026-11-02".

import { dayText } from "./numbers.js";

const week = 7 * 86400e3;

export function dateOf(text) {
    return new Date(`${text}T00:00:00Z`);
}

// Every week from the first to the last of these.
export function weeksBetween(texts) {
    const times = texts.map((text) => dateOf(text).getTime());
    const first = Math.min(...times);
    const count = times.length === 0 ? 0 : Math.round((Math.max(...times) - first) / week) + 1;
    return Array.from({ length: count }, (_, at) => (
        new Date(first + at * week).toISOString().slice(0, 10)));
}

// "2 Nov"
export function shortDay(text) {
    return dayText(text).split(" ").slice(0, 2).join(" ");
}

// At most this many of the weeks, the first among them, as an axis takes them.
export function weekTicks(weeks, most) {
    const step = Math.ceil(weeks.length / most);
    return {
        ticks: weeks.filter((_, at) => at % step === 0).map(dateOf),
        tickFormat: (date) => shortDay(date.toISOString()),
    };
}
