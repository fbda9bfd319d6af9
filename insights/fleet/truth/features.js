// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// Questions about features: looked at, set, to which values, and not at all.

import { models } from "../models.js";
import { answer, keyRising, mostClients, othersLast, sortBy } from "./answer.js";
import { rangeOf } from "./ranges.js";
import { is, isFeatureName } from "./terms.js";
import { fold, foldBy, Groups, leaveOut } from "./threshold.js";

function countTouches({ clients, inPeriod, threshold }, category) {
    const groups = new Groups(() => ({ times: 0 }));
    for (const { client, events } of clients) {
        events.filter((event) => is(event, category) && inPeriod(event) && isFeatureName(event.name))
            .forEach((event) => groups.of(client, event.name).times++);
    }
    const order = sortBy(othersLast, mostClients, keyRising);
    return answer(fold(groups.list(), threshold), order, ({ key, who, times, isOthers }) => (
        { feature: isOthers ? "others" : key[0], clients: who.size, times }));
}

export function featuresChosen(fleet) {
    return countTouches(fleet, "FeatureChosen");
}

export function featuresChanged(fleet) {
    return countTouches(fleet, "ParameterValueChanged");
}

function namesIn(events) {
    const streams = new Set(events.filter((event) => is(event, "Camera", "Opened")
        || is(event, "Camera", "Closed")).map((event) => event.record.FeatureStreamStats));
    return new Set([...streams].flat().filter(isFeatureName));
}

export function featuresUntouched({ clients, inPeriod, threshold }) {
    const owners = new Groups();
    const users = new Groups();
    for (const { client, events } of clients) {
        const period = events.filter(inPeriod);
        namesIn(period).forEach((name) => owners.of(client, name));
        period.filter((event) => is(event, "FeatureChosen") || is(event, "ParameterValueChanged"))
            .forEach((event) => users.of(client, event.name));
    }
    const touched = new Set(users.list().filter((group) => group.who.size >= threshold)
        .map((group) => group.key[0]));
    const groups = owners.list().filter((group) => !touched.has(group.key[0]));
    return answer(leaveOut(groups, threshold), sortBy(mostClients, keyRising), ({ key, who }) => (
        { feature: key[0], clients: who.size }));
}

const known = new Map(models.flatMap((model) => model.features)
    .filter((feature) => !feature.odd).map((feature) => [feature.name, feature.kind]));

// {position, text} of a value that may be shown.
function shown(feature, value) {
    switch (known.get(feature)) {
    case "integer":
    case "real":
        return /^[+-]?(\d+\.?\d*|\.\d+)(e[+-]?\d{1,3})?$/i.test(value) ? rangeOf(Number(value))
            : undefined;
    case "enumeration":
        return /^\w{1,64}$/.test(value) ? { position: 0, text: value } : undefined;
    case "switch":
        return ["true", "false"].includes(value) ? { position: 0, text: value } : undefined;
    default:
        return undefined;
    }
}

export function valuesSet({ clients, inPeriod, threshold }) {
    const groups = new Groups(() => ({ times: 0 }));
    for (const { client, events } of clients) {
        for (const event of events.filter((entry) => is(entry, "ParameterValueChanged")
            && inPeriod(entry))) {
            const value = shown(event.name, event.record.ParameterValue);
            if (value !== undefined) {
                groups.of(client, event.name, value.position, value.text).times++;
            }
        }
    }
    const feature = (one, other) => Buffer.compare(Buffer.from(one.key[0]), Buffer.from(other.key[0]));
    const order = sortBy(feature, othersLast, keyRising);
    return answer(foldBy(1, groups.list(), threshold), order, ({ key, who, times, isOthers }) => ({
        feature: key[0],
        value: isOthers ? "others" : key[2],
        position: isOthers ? 0 : key[1],
        clients: who.size,
        times,
    }));
}
