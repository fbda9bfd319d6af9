// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// The events of a simulated fleet that count, taken from the deliveries themselves and not from
// their bytes. An event keeps {time, uid, run, category, name, record, version, client}; times are
// microseconds, and of a feature stream only the names are kept.

const earliest = Date.UTC(2025, 0) * 1000;
const ahead = 2 * 86400e6;

function withoutValues(record) {
    if (record?.FeatureStreamStats === undefined) {
        return record ?? {};
    }
    return { ...record, FeatureStreamStats: record.FeatureStreamStats?.names ?? [] };
}

function byTime(one, other) {
    return one.time - other.time || (one.uid < other.uid ? -1 : 1);
}

export class Seen {
    // "loaded": the moment of loading, in microseconds.
    constructor(loaded) {
        this.latest = loaded + ahead;
        this.clients = new Map();
        this.withdrawals = new Map();
        this.keptOut = { absurdTime: 0 };
    }

    add({ client, resource, events }) {
        for (const event of events) {
            if (event.category === "ruiSDK" && event.name === "OptOut") {
                this.withdraw(client.id, event.time);
            } else if (!this.isInBounds(event.time)) {
                this.keptOut.absurdTime += 1;
            } else {
                this.keep(client.id, event, resource["service.version"]);
            }
        }
    }

    keep(client, event, version) {
        let events = this.clients.get(client);
        if (events === undefined) {
            this.clients.set(client, events = new Map());
        }
        if (!events.has(event.uid)) {
            events.set(event.uid, { ...event, record: withoutValues(event.record), version, client });
        }
    }

    // The earliest of several counts.
    withdraw(client, time) {
        this.withdrawals.set(client, Math.min(this.withdrawals.get(client) ?? Infinity, time));
    }

    isInBounds(time) {
        return time >= earliest && time <= this.latest;
    }

    withdrawalsInBounds() {
        return [...this.withdrawals].filter(([, time]) => this.isInBounds(time));
    }

    // Each client's events in the order of time; nothing of those who have withdrawn.
    *byClient() {
        for (const [client, events] of this.clients) {
            if (!this.withdrawals.has(client)) {
                yield { client, events: [...events.values()].sort(byTime) };
            }
        }
    }
}
