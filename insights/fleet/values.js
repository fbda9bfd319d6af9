// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// Values of features, as the viewer writes them.

// Users like round numbers: an exposure of 5000, a gain of 3.
function roundish(value) {
    const unit = 10 ** Math.max(0, Math.floor(Math.log10(Math.abs(value) || 1)) - 1);
    return Math.round(value / unit) * unit;
}

function realText(value) {
    return String(Number(value.toPrecision(6)));
}

const texts = ["line 4 left", "Prüfstand 2", 'cam "A"', "x'; DROP TABLE events; --", "<img src=x>"];

// A value that a user sets.
export function valueToSet(feature, chance) {
    switch (feature.kind) {
    case "integer":
        return String(Math.round(Math.max(feature.from,
            roundish(chance.between(feature.from, feature.to)))));
    case "real":
        return realText(chance.is(0.8) ? roundish(chance.between(feature.from, feature.to))
            : chance.between(feature.from, feature.to));
    case "switch":
        return chance.is(0.7) ? "true" : "false";
    case "enumeration":
        return feature.entries[Math.floor(chance.fraction() ** 2 * feature.entries.length)];
    case "command":
        return "Execute";
    default:
        return chance.pick(texts);
    }
}

// What the features of a camera hold when it is first opened. Commands have no value.
export function firstValues(model, chance) {
    return model.features.map((feature) => {
        switch (feature.kind) {
        case "text":
            return `${feature.name.slice(6)} ${chance.hex(6)}`;
        case "command":
            return "";
        default:
            return feature.kind === "enumeration" ? feature.entries[0] : valueToSet(feature, chance);
        }
    });
}
