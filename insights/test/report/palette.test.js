// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// Colours as people see them who lack one kind of cone, by the matrices of Machado, Oliveira and
// Fernandes (2009, severity 1), and their distances in CIE L*a*b*.

import assert from "node:assert/strict";
import test from "node:test";

import { dark, light } from "../../report/palette.js";

const sights = {
    everything: [[1, 0, 0], [0, 1, 0], [0, 0, 1]],
    "no red": [[0.152286, 1.052583, -0.204868], [0.114503, 0.786281, 0.099216],
        [-0.003882, -0.048116, 1.051998]],
    "no green": [[0.367322, 0.860646, -0.227968], [0.280085, 0.672501, 0.047413],
        [-0.01182, 0.04294, 0.968881]],
    "no blue": [[1.255528, -0.076749, -0.178779], [-0.078411, 0.930809, 0.147602],
        [0.004733, 0.691367, 0.3039]],
};

function linear(colour) {
    return [1, 3, 5].map((at) => parseInt(colour.slice(at, at + 2), 16) / 255)
        .map((part) => (part <= 0.04045 ? part / 12.92 : ((part + 0.055) / 1.055) ** 2.4));
}

function product(matrix, vector) {
    return matrix.map((row) => row.reduce((sum, value, at) => sum + value * vector[at], 0));
}

function lab(rgb) {
    const inRange = rgb.map((part) => Math.min(1, Math.max(0, part)));
    const [x, y, z] = product([[0.43389, 0.37622, 0.18990], [0.2126, 0.7152, 0.0722],
        [0.01773, 0.10947, 0.87294]], inRange)
        .map((part) => (part > 0.008856 ? Math.cbrt(part) : 7.787 * part + 16 / 116));
    return [116 * y - 16, 500 * (x - y), 200 * (y - z)];
}

function luminance(colour) {
    const [red, green, blue] = linear(colour);
    return 0.2126 * red + 0.7152 * green + 0.0722 * blue;
}

function contrast(one, other) {
    const [low, high] = [luminance(one), luminance(other)].sort((left, right) => left - right);
    return (high + 0.05) / (low + 0.05);
}

for (const [name, { page, series, others }] of Object.entries({ light, dark })) {
    for (const [sight, matrix] of Object.entries(sights)) {
        test(`any two colours of the ${name} page differ for who sees ${sight}`, () => {
            const colours = [...series, others].map((colour) => lab(product(matrix, linear(colour))));
            colours.forEach((one, at) => colours.slice(at + 1).forEach((other, next) => {
                const distance = Math.hypot(...one.map((part, axis) => part - other[axis]));
                assert.ok(distance > 14, `${at} and ${at + 1 + next}: ${distance}`);
            }));
        });
    }

    test(`each colour stands out from the ${name} page`, () => {
        for (const colour of [...series, others]) {
            assert.ok(contrast(colour, page) >= 3, `${colour}: ${contrast(colour, page)}`);
        }
    });
}
