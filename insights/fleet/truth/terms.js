// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// The words that the questions share, as questions/DEFINITIONS.md has them. Days are counted from
// 1970, times are microseconds.

export function dayOf(time) {
    return Math.floor(time / 86400e6);
}

// The Monday of a day's week. Day 0 was a Thursday.
export function mondayOf(day) {
    return day - ((((day + 3) % 7) + 7) % 7);
}

export function weekOf(event) {
    return mondayOf(dayOf(event.time));
}

export function dateOf(day) {
    return new Date(day * 86400e3).toISOString().slice(0, 10);
}

export function dayNumber(date) {
    return Math.round(Date.parse(`${date}T00:00:00Z`) / 86400e3);
}

// Milliseconds from one event to another.
export function milliseconds(from, to) {
    return Math.floor(to.time / 1000) - Math.floor(from.time / 1000);
}

export function median(values) {
    return values.sort((one, other) => one - other)[Math.floor(values.length / 2)];
}

export function quotient(part, whole) {
    return whole === 0 ? 0 : part / whole;
}

export function is(event, category, name) {
    return event.category === category && (name === undefined || event.name === name);
}

export function isFeatureName(name) {
    return /^[A-Za-z_][A-Za-z0-9_:.]{0,127}$/.test(name);
}

// The place of a value among rising lower bounds, the first of them left out: 1 for the lowest.
export function placeOf(value, bounds) {
    return 1 + bounds.filter((bound) => bound <= value).length;
}

// The text of a grab's end is no JSON where a quote or a backslash stood in it.
function isBroken(record) {
    return /["\\]/.test(record.Model) || /["\\]/.test(record.GrabType);
}

// The camera's number, undefined for no camera.
export function numberOf(event) {
    const broken = is(event, "Grab", "Stopped") && isBroken(event.record);
    return broken ? undefined : event.record.CameraNr;
}

export function modelOf(event) {
    const broken = is(event, "Grab", "Stopped") && isBroken(event.record);
    return broken ? "unknown" : event.record.Model;
}

export function kindOf(stopped) {
    return isBroken(stopped.record) ? "unknown" : stopped.record.GrabType;
}

export function cut(text) {
    return [...text].slice(0, 200).join("");
}
