// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// The cameras of a simulated fleet, by the masked label that the viewer sends. "weight": how common
// the model is; "faults": the share of grabs in which images fail, with the first version that has
// mended it, if any; "loss": the share of packets that have to be sent again over a good cable.

import { areaFeatures, baseFeatures, colourFeatures, lineFeatures, ownFeatures } from "./features.js";

function model(label, weight, traits, ...features) {
    return { label, weight, faults: 0.02, loss: 2e-5, ...traits, features: features.flat() };
}

export const models = [
    model("Ostrand KUV-2040M", 22, {}, baseFeatures, areaFeatures, ownFeatures),
    model("Ostrand KUV-2040C", 18, {}, baseFeatures, areaFeatures, colourFeatures, ownFeatures),
    model("Ostrand TOG-5000M", 14, {}, baseFeatures, areaFeatures, ownFeatures),
    model("Ostrand TOG-5000C", 11, { faults: 0.12, mended: "7.2.1" }, baseFeatures, areaFeatures,
        colourFeatures, ownFeatures),
    model("Ostrand ***-2000", 9, {}, baseFeatures, areaFeatures),
    model("Ostrand ZAW-12000M", 7, { loss: 4e-4 }, baseFeatures, areaFeatures, ownFeatures),
    model("Ostrand YEL-4096L", 5, {}, baseFeatures, lineFeatures, ownFeatures),
    model("Ostrand YEL-8192L", 3, { faults: 0.07 }, baseFeatures, lineFeatures, ownFeatures),
    model("Brightline ***RT1", 6, { loss: 9e-4 }, baseFeatures, areaFeatures),
    model("Brightline ***RT2c", 4, { loss: 9e-4 }, baseFeatures, areaFeatures, colourFeatures),
    model("Kalmar Optik ***-61x", 2, {}, baseFeatures, areaFeatures),
    model('Kalmar Optik "Größe 2"', 0.6, {}, baseFeatures),
    model("Ostrand ***-0001 <lab>", 0.08, { faults: 0.4 }, baseFeatures, areaFeatures),
    model("Ostrand ***-0002", 0.04, {}, baseFeatures),
];

function usable(features, use) {
    return features.filter((feature) => feature[use] > 0)
        .map((feature) => ({ feature, weight: feature[use] }));
}

// The names of a model's features, in the order of its stream; one list for all who have the model.
for (const entry of models) {
    entry.names = entry.features.map((feature) => feature.name);
    entry.usable = {
        chosen: usable(entry.features, "chosen"),
        changed: usable(entry.features, "changed"),
    };
}
