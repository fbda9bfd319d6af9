// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// What happens from the start of the viewer until its end, as the plug-in tells it. An event has
// {time, run, category, name, record}: the time in microseconds, and the record as an object with
// the keys of docs/events.md; a feature stream is {names, values, unreadable} there. The event
// without a record has none.

import { releaseOf, resourceOf, second } from "./client.js";
import { grab } from "./grab.js";
import { valueToSet } from "./values.js";

class Session {
    constructor(client, start) {
        this.client = client;
        this.chance = client.chance;
        this.time = Math.round(start + client.clock);
        this.run = this.chance.uuid();
        this.events = [];
    }

    wait(microseconds) {
        this.time += Math.max(1, Math.round(microseconds));
    }

    // Two events never have the same time: one thread tells of them.
    add(category, name, record) {
        this.wait(this.chance.integer(20, 900));
        const { time, run } = this;
        const uid = this.chance.ulid(Math.max(0, Math.floor(time / 1000)));
        this.events.push({ time, run, uid, category, name, record });
    }

    addCamera(name, number, model, more) {
        this.add("Camera", name, { CameraNr: number, Model: model.label, ...more });
    }
}

function streamOf(camera, chance) {
    return {
        names: camera.model.names,
        values: camera.values.slice(),
        unreadable: chance.is(0.1) ? 1 : 0,
    };
}

function choose(session, camera) {
    const { feature } = session.chance.weighted(camera.model.usable.chosen);
    session.wait(session.chance.waiting(8 * second));
    session.add("FeatureChosen", feature.name, {});
    return feature;
}

function change(session, number, camera, before) {
    const { feature } = session.chance.weighted(camera.model.usable.changed);
    const value = valueToSet(feature, session.chance);
    session.wait(session.chance.waiting(6 * second));
    session.add("ParameterValueChanged", feature.name, {
        CameraNr: number,
        InitialValue: before.get(feature.name) ?? "",
        ParameterName: feature.name,
        ParameterValue: value,
    });
    before.set(feature.name, value);
    if (feature.kind !== "command") {
        camera.values[camera.model.names.indexOf(feature.name)] = value;
    }
}

// Looks, changes and grabs come mixed.
function actions(session, number, camera, version) {
    const { chance, client: { habit } } = session;
    const before = new Map();
    const list = [
        ...Array(chance.poisson(habit.chosen)).fill(() => choose(session, camera)),
        ...Array(chance.poisson(habit.changed)).fill(() => change(session, number, camera, before)),
        ...Array(chance.poisson(habit.grabs)).fill(() => grab(session, number, camera, version)),
    ];
    const order = list.map((act) => ({ act, rank: chance.fraction() }));
    return order.sort((one, other) => one.rank - other.rank).map(({ act }) => act);
}

function useCamera(session, number, camera, version) {
    const { chance } = session;
    session.wait(chance.around(15, 1) * second);
    const cut = chance.is(0.005);
    session.addCamera("Opened", number, camera.model,
        { FeatureStreamStats: cut ? null : streamOf(camera, chance) });
    for (const act of actions(session, number, camera, version)) {
        session.wait(chance.waiting(20 * second));
        act();
    }
    session.wait(chance.waiting(120 * second));
    session.addCamera("Closed", number, camera.model,
        { FeatureStreamStats: streamOf(camera, chance) });
}

function connect(session, cameras) {
    cameras.forEach((camera, number) => {
        session.add("Model", camera.model.label);
        session.addCamera("Connected", number, camera.model);
    });
    session.add("GeneralEvent", "InitialCameraCount", { InitialCameraCount: cameras.length });
}

function finish(session, cameras) {
    const { chance } = session;
    const gone = cameras.length > 0 && chance.is(0.1) ? 1 : 0;
    if (gone) {
        session.addCamera("Removed", 0, cameras[0].model);
    }
    session.wait(chance.waiting(60 * second));
    session.add("GeneralEvent", "SessionEnded",
        { FinalCameraCount: cameras.length - gone, TotalUsedCameraCount: cameras.length });
}

// A session that crashes ends with whatever happened last, and sometimes with nothing but its
// start.
function crash(session) {
    session.events.length = session.chance.integer(1, session.events.length - 1);
}

export function playSession(client, start) {
    const session = new Session(client, start);
    const { chance } = session;
    const release = releaseOf(client, start);
    const cameras = client.cameras.filter(() => chance.is(0.8));
    session.add("GeneralEvent", "SessionStarted", {});
    session.wait(chance.around(2, 0.5) * second);
    if (cameras.length > 0) {
        connect(session, cameras);
    }
    cameras.forEach((camera, number) => {
        if (chance.is(0.85)) {
            useCamera(session, number, camera, release.version);
        }
    });
    finish(session, cameras);
    if (chance.is(release.crashes)) {
        crash(session);
    }
    return { client, resource: resourceOf(client, start), start, events: session.events };
}
