// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

import assert from "node:assert/strict";

// What users of a simulated fleet write into their cameras, and what their cameras tell of
// themselves (fleet/values.js): a serial number of six hexadecimal digits behind the feature's
// name.
const secrets = new RegExp("line 4 left|Prüfstand|cam \\\\\"A|DROP TABLE|<img"
    + "|(VendorName|SerialNumber|UserID|MACAddress|Label) [0-9a-f]{6}");
const clientId = /[0-9a-f]{8}-[0-9a-f]{4}-4[0-9a-f]{3}-/;

// No row speaks for fewer clients than allowed, and nothing that is a single client's is in an
// answer, whatever the answers are.
export function assertDiscreet(answers, threshold) {
    for (const [name, { rows, speaksFor }] of Object.entries(answers)) {
        assert.ok(rows.length === 0 || speaksFor >= threshold, name);
        for (const row of rows) {
            assert.ok(row.clients >= threshold, `${name}: ${JSON.stringify(row)}`);
        }
        assert.doesNotMatch(JSON.stringify(rows), secrets, name);
        assert.doesNotMatch(JSON.stringify(rows), clientId, name);
    }
}
