// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// A fleet of simulated clients, day by day, as a collector sees it.

import { day, makeClient, resourceOf, second, week } from "./client.js";
import { deliveriesOf, withdrawalOf } from "./delivery.js";
import { playSession } from "./session.js";

const weekendShare = 0.15;

function isWeekend(time) {
    const weekday = new Date(time / 1000).getUTCDay();
    return weekday === 0 || weekday === 6;
}

// Working hours, wherever in the world that is.
function withinDay(client, time) {
    const midnight = Math.floor(time / day) * day;
    const hour = 1 + client.chance.between(6, 17);
    return midnight + Math.round(hour * 3600 * second);
}

function nextSession(client, after) {
    const wait = client.chance.waiting(week / client.sessionsPerWeek);
    const time = withinDay(client, after + wait);
    const held = isWeekend(time) && !client.chance.is(weekendShare);
    const start = Math.max(held ? time + 2 * day : time, after + 60 * second);
    return start < client.leaves ? start : Infinity;
}

// Some who withdrew agree again later. The collector cannot connect the two.
function agreesAgain(client) {
    const { chance } = client;
    const consented = chance.is(0.3) ? client.withdraws + chance.waiting(3 * week) : Infinity;
    return { ...client, id: chance.uuid(), consented, withdraws: Infinity, lost: undefined,
        next: consented };
}

// All that a person sends because of what happens before this time.
function* sentBefore(person, time) {
    while (Math.min(person.client.next, person.client.withdraws) < time) {
        const { client } = person;
        if (client.withdraws <= client.next) {
            yield withdrawalOf(client, resourceOf(client, client.withdraws));
            person.client = agreesAgain(client);
        } else {
            const session = playSession(client, client.next);
            const last = session.events[session.events.length - 1];
            client.next = nextSession(client, last.time - session.events[0].time + client.next);
            yield* deliveriesOf(session);
        }
    }
}

function makePeople({ clients, ...options }) {
    return Array.from({ length: clients }, (_, number) => {
        const client = makeClient(number, options);
        client.next = withinDay(client, client.consented);
        client.withdraws = Math.max(client.withdraws, client.next + day);
        return { client };
    });
}

class Road {
    constructor() {
        this.days = new Map();
    }

    put(delivery) {
        const number = Math.floor(delivery.arrival / day);
        const list = this.days.get(number);
        if (list === undefined) {
            this.days.set(number, [delivery]);
        } else {
            list.push(delivery);
        }
    }

    take(time) {
        const list = this.days.get(Math.floor(time / day)) ?? [];
        this.days.delete(Math.floor(time / day));
        return list.sort((one, other) => one.arrival - other.arrival);
    }
}

// options: {clients, weeks, seed, end}; "end" is a midnight in microseconds, the first that is not
// in the fleet. Yields {day, deliveries} for each day, in the order of arrival.
export function* simulateFleet(options) {
    const start = options.end - options.weeks * week;
    const people = makePeople({ ...options, start });
    const road = new Road();
    for (let time = start; time < options.end; time += day) {
        for (const person of people) {
            for (const delivery of sentBefore(person, time + day)) {
                road.put(delivery);
            }
        }
        yield { day: time, deliveries: road.take(time) };
    }
}
