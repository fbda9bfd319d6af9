// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
import { UserError } from "./user-error.js";

export const periodOptions = { since: { type: "string" }, until: { type: "string" } };

const day = 24 * 3600 * 1000;

function textOf(milliseconds) {
    return new Date(milliseconds).toISOString().slice(0, 10);
}

function dayOf(option, text) {
    const milliseconds = /^\d{4}-\d{2}-\d{2}$/.test(text) ? Date.parse(text) : NaN;
    if (Number.isNaN(milliseconds) || textOf(milliseconds) !== text) {
        throw new UserError(`--${option} ${text}: give a day such as 2026-11-30`);
    }
    return milliseconds;
}

function mondayOnOrBefore(milliseconds) {
    return milliseconds - ((new Date(milliseconds).getUTCDay() + 6) % 7) * day;
}

/**
 * The period {since, until} (days as texts) that the options give: since is a day or a number of days
 * before until ("90d", the default), and goes back to a Monday; until is excluded, tomorrow if not
 * given. Days are those of UTC.
 */
export function periodOf({ since = "90d", until }, now = Date.now()) {
    const end = until === undefined ? Math.floor(now / day) * day + day : dayOf("until", until);
    const days = /^(\d{1,4})d$/.exec(since);
    const begin = mondayOnOrBefore(days ? end - Number(days[1]) * day : dayOf("since", since));
    if (begin >= end) {
        throw new UserError(`--since ${since} is not before --until ${textOf(end)}`);
    }
    return { since: textOf(begin), until: textOf(end) };
}
