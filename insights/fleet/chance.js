// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// Everything that a simulated fleet leaves to chance. Two of the same name give the same numbers
// for ever; a client has one of its own, so that a larger fleet has the smaller one in it.

import { createHash } from "node:crypto";

import { randomExponential, randomLogNormal, randomPoisson } from "d3-random";
import { xoroshiro128plusFromState } from "pure-rand/generator/xoroshiro128plus";

const base32 = "0123456789ABCDEFGHJKMNPQRSTVWXYZ";

export class Chance {
    constructor(name) {
        const hash = createHash("sha256").update(name).digest();
        this.generator = xoroshiro128plusFromState([0, 4, 8, 12].map((at) => hash.readInt32LE(at)));
        this.fraction = () => (this.generator.next() >>> 0) / 2 ** 32;
    }

    // True in this share of the cases.
    is(share) {
        return this.fraction() < share;
    }

    // A whole number, both limits among them.
    integer(from, to) {
        return from + Math.floor(this.fraction() * (to - from + 1));
    }

    between(from, to) {
        return from + this.fraction() * (to - from);
    }

    pick(list) {
        return list[Math.floor(this.fraction() * list.length)];
    }

    // One of the list, each as often as its "weight" says.
    weighted(list) {
        let left = this.fraction() * list.reduce((sum, entry) => sum + entry.weight, 0);
        return list.find((entry) => (left -= entry.weight) < 0) ?? list[list.length - 1];
    }

    poisson(mean) {
        return randomPoisson.source(this.fraction)(mean)();
    }

    // Around the median; a spread of 1 means that two thirds lie within a factor of 2.7.
    around(median, spread) {
        return randomLogNormal.source(this.fraction)(Math.log(median), spread)();
    }

    waiting(mean) {
        return randomExponential.source(this.fraction)(1 / mean)();
    }

    hex(digits) {
        let text = "";
        while (text.length < digits) {
            text += (this.generator.next() >>> 0).toString(16).padStart(8, "0");
        }
        return text.slice(0, digits);
    }

    // A random UUID, version 4.
    uuid() {
        const digits = this.hex(32);
        const variant = "89ab"[this.integer(0, 3)];
        return `${digits.slice(0, 8)}-${digits.slice(8, 12)}-4${digits.slice(13, 16)}-`
            + `${variant}${digits.slice(17, 20)}-${digits.slice(20)}`;
    }

    // An identifier of an event: ten characters of time, sixteen of chance.
    ulid(milliseconds) {
        let text = "";
        for (let rest = milliseconds, i = 0; i < 10; ++i, rest = Math.floor(rest / 32)) {
            text = base32[rest % 32] + text;
        }
        for (let word = 0; word < 4; ++word) {
            const bits = this.generator.next() >>> 0;
            text += base32[bits >>> 27] + base32[(bits >>> 22) & 31] + base32[(bits >>> 17) & 31]
                + base32[(bits >>> 12) & 31];
        }
        return text;
    }
}
