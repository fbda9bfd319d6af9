// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// From groups to the rows of an answer.

import { byKey, union } from "./threshold.js";

// Later rules count among those that earlier ones find equal.
export function sortBy(...rules) {
    return (one, other) => {
        for (const rule of rules) {
            const order = rule(one, other);
            if (order !== 0) {
                return order;
            }
        }
        return 0;
    };
}

export const othersLast = (one, other) => (one.isOthers ? 1 : 0) - (other.isOthers ? 1 : 0);
export const mostClients = (one, other) => other.who.size - one.who.size;
export const mostOf = (number) => (one, other) => other[number] - one[number];
export const keyRising = byKey;

// {rows, speaksFor, leftOut}: "row" makes one of a group.
export function answer({ shown, leftOut }, order, row) {
    const groups = [...shown].sort(order);
    return { rows: groups.map(row), speaksFor: union(groups).size, leftOut };
}
