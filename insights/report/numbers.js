// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// Numbers, days and texts as people read them.

import { visible } from "./html.js";

const months = ["Jan", "Feb", "Mar", "Apr", "May", "Jun", "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"];

export function isNumeric(type) {
    return /^(U?Int|Float|Decimal)/.test(type.replace(/^Nullable\(/, ""));
}

// A share is a fraction of one; its name says so.
export function isShare(column) {
    return /(^|_)(share|rate)$/.test(column.name) && /^Float/.test(column.type);
}

export function words(name) {
    const text = name.replaceAll("_", " ");
    return text[0].toUpperCase() + text.slice(1);
}

// "1234567" as "1,234,567"; of fractions three digits that tell something.
export function numberText(value) {
    if (!Number.isFinite(value)) {
        return "–";
    }
    const digits = Number.isInteger(value) || Math.abs(value) >= 1000 ? 0
        : Math.min(8, Math.max(0, 2 - Math.floor(Math.log10(Math.abs(value)))));
    return value.toLocaleString("en-US", { maximumFractionDigits: digits });
}

export function durationText(seconds) {
    const whole = Math.round(seconds);
    return seconds < 60 ? `${numberText(seconds)} s` : `${Math.floor(whole / 60)} min ${whole % 60} s`;
}

export function shareText(value) {
    return Number.isFinite(value) ? `${numberText(Number((value * 100).toPrecision(3)))} %` : "–";
}

// "2026-11-02" as "2 Nov 2026".
export function dayText(date) {
    const [year, month, day] = String(date).slice(0, 10).split("-").map(Number);
    return `${day} ${months[month - 1]} ${year}`;
}

export function dayBefore(date) {
    return new Date(Date.parse(`${date}T00:00:00Z`) - 86400e3).toISOString().slice(0, 10);
}

export function cellText(value, column) {
    if (value === null || value === undefined) {
        return "–";
    }
    if (/^Date/.test(column.type)) {
        return dayText(value);
    }
    if (!isNumeric(column.type)) {
        return visible(value);
    }
    return isShare(column) ? shareText(Number(value)) : numberText(Number(value));
}

export function shortened(text, length) {
    const characters = [...visible(text)];
    return characters.length <= length ? characters.join("")
        : `${characters.slice(0, length - 1).join("")}…`;
}
