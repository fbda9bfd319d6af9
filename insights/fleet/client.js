// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// Who uses the viewer, with what, and how: drawn once for each client. Times are microseconds since
// 1970.

import { Chance } from "./chance.js";
import { models } from "./models.js";
import { releasesFor } from "./releases.js";
import { firstValues } from "./values.js";

export const second = 1e6;
export const day = 86400 * second;
export const week = 7 * day;

const languages = [{ name: "US English", weight: 55 }, { name: "German", weight: 18 },
    { name: "Japanese", weight: 12 }, { name: "Korean", weight: 7 }, { name: "Chinese", weight: 8 }];

// Ways to use the viewer: sessions a week, looks at features and changes a session, grabs a
// session.
const habits = [
    { name: "evaluates", weight: 25, sessions: 3, chosen: 14, changed: 6, grabs: 4, stays: 5 },
    { name: "integrates", weight: 30, sessions: 2.2, chosen: 6, changed: 5, grabs: 5, stays: 40 },
    { name: "watches", weight: 30, sessions: 1, chosen: 0.7, changed: 0.5, grabs: 2, stays: 200 },
    { name: "scripts", weight: 8, sessions: 4, chosen: 0, changed: 12, grabs: 9, stays: 100 },
    { name: "peeks", weight: 7, sessions: 0.3, chosen: 2, changed: 0, grabs: 0.4, stays: 30 },
];

// A clock that is wrong shifts all times of its client.
const clocks = [{ shift: 0, weight: 985 }, { shift: -31 * day, weight: 8 },
    { shift: 0.1 * day, weight: 4 }, { to: 2 * day, weight: 2 },
    { to: Date.UTC(2100, 1) * 1000, weight: 1 }];

function cameraOf(chance) {
    const model = chance.weighted(models);
    return {
        model,
        named: chance.is(0.3),
        badCable: chance.is(0.06),
        values: firstValues(model, chance),
    };
}

function joined(chance, start, end) {
    return chance.is(0.6) ? start + chance.fraction() * week
        : start + chance.fraction() * (end - start);
}

function withdrawal(chance, consented, end) {
    return chance.is(0.04) ? consented + chance.fraction() * (end - consented) : Infinity;
}

// Takes each new version this long after it was published; some never do.
function updateDelay(chance) {
    return chance.is(0.12) ? Infinity : chance.waiting(2.5 * week);
}

function clockOf(chance, consented) {
    const clock = chance.weighted(clocks);
    return clock.shift ?? clock.to - consented;
}

export function makeClient(number, { seed, start, end, weeks }) {
    const chance = new Chance(`fleet ${seed}, client ${number}`);
    const habit = chance.weighted(habits);
    const consented = joined(chance, start, end);
    return {
        number,
        chance,
        habit,
        id: chance.uuid(),
        language: chance.weighted(languages).name,
        consented,
        leaves: consented + chance.waiting(habit.stays * week),
        withdraws: withdrawal(chance, consented, end),
        sessionsPerWeek: chance.around(habit.sessions, 0.6),
        cameras: Array.from({ length: 1 + Math.min(5, chance.poisson(0.6)) }, () => cameraOf(chance)),
        updateDelay: updateDelay(chance),
        first: chance.integer(0, 2),
        releases: releasesFor(weeks).map((entry) => ({ ...entry, time: start + entry.week * week })),
        clock: clockOf(chance, consented),
        handsOver: chance.is(0.05),
    };
}

// The version that the client has at this time.
export function releaseOf(client, time) {
    const taken = client.releases.filter((release, index) => index === client.first
        || (index > client.first && release.time + client.updateDelay <= time));
    return taken[taken.length - 1];
}

export function resourceOf(client, time) {
    const release = releaseOf(client, time);
    return {
        "service.name": "nerixViewer",
        "service.version": release.version,
        "rui.product.id": "2026110001",
        "rui.product.build": release.build,
        "rui.product.edition": "Standard",
        "rui.product.language": client.language,
        "rui.client.id": client.id,
    };
}
