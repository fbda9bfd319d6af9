// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// Small groups of clients are not shown. A group has "key", the list of texts or numbers that name
// it, "who", the set of its clients, and sums of its own.

function compared(one, other) {
    return typeof one === "number" ? one - other : Buffer.compare(Buffer.from(one), Buffer.from(other));
}

export function byKey(one, other) {
    for (let at = 0; at < one.key.length; ++at) {
        const order = compared(one.key[at], other.key[at]);
        if (order !== 0) {
            return order;
        }
    }
    return 0;
}

export function union(groups) {
    const all = new Set();
    for (const group of groups) {
        group.who.forEach((client) => all.add(client));
    }
    return all;
}

// Groups as they come up, each with the sums that "blank" makes.
export class Groups {
    constructor(blank = () => ({})) {
        this.blank = blank;
        this.byName = new Map();
    }

    // The group of this key, with the client in it.
    of(client, ...key) {
        const name = JSON.stringify(key);
        let group = this.byName.get(name);
        if (group === undefined) {
            this.byName.set(name, group = { key, who: new Set(), ...this.blank() });
        }
        group.who.add(client);
        return group;
    }

    list() {
        return [...this.byName.values()];
    }
}

// Shows the groups that are large enough.
export function leaveOut(groups, threshold) {
    const shown = groups.filter((group) => group.who.size >= threshold);
    return { shown, leftOut: groups.length - shown.length };
}

// The number of groups to fold, from the smallest on.
function foldedCount(ordered, threshold) {
    let count = ordered.filter((group) => group.who.size < threshold).length;
    if (count > 0) {
        while (count < ordered.length && union(ordered.slice(0, count)).size < threshold) {
            ++count;
        }
    }
    return count;
}

function merged(groups) {
    const numbers = Object.keys(groups[0]).filter((name) => typeof groups[0][name] === "number");
    const sums = numbers.map((name) => [name, groups.reduce((sum, group) => sum + group[name], 0)]);
    return { ...Object.fromEntries(sums), key: groups[0].key, who: union(groups), isOthers: true };
}

// Shows the small groups of one parent together, their numbers added up.
export function fold(groups, threshold) {
    const ordered = [...groups].sort((one, other) => one.who.size - other.who.size
        || byKey(one, other));
    const count = foldedCount(ordered, threshold);
    const shown = ordered.slice(count);
    const others = count > 0 ? [merged(ordered.slice(0, count))] : [];
    return { shown: [...shown, ...others.filter((group) => group.who.size >= threshold)],
        leftOut: count };
}

// The same for each parent: the part of the key before "depth".
export function foldBy(depth, groups, threshold) {
    const parents = new Map();
    for (const group of groups) {
        const name = JSON.stringify(group.key.slice(0, depth));
        parents.set(name, [...(parents.get(name) ?? []), group]);
    }
    const parts = [...parents.values()].map((list) => fold(list, threshold));
    return { shown: parts.flatMap((part) => part.shown),
        leftOut: parts.reduce((sum, part) => sum + part.leftOut, 0) };
}
