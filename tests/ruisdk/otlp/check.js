// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// check.js DIRECTORY: reads every payload-*.json and mutant-*.json with the code that is generated
// from the standard's definitions. A payload must come back as it was; a mutant must not.
const assert = require('assert');
const fs = require('fs');
const path = require('path');
const root = require('@opentelemetry/otlp-transformer/build/src/generated/root.js');

const Request = root.opentelemetry.proto.collector.logs.v1.ExportLogsServiceRequest;
const options = { longs: String, enums: Number, json: true };

function comesBack(file) {
    try {
        const payload = JSON.parse(fs.readFileSync(file, 'utf8'));
        assert.deepStrictEqual(Request.toObject(Request.fromObject(payload), options), payload);
        return true;
    } catch (error) {
        return false;
    }
}

const directory = process.argv[2];
let wrong = 0;
const count = { payload: 0, mutant: 0 };
for (const name of fs.readdirSync(directory).filter((entry) => entry.endsWith('.json'))) {
    const kind = name.split('-')[0];
    count[kind] += 1;
    if (comesBack(path.join(directory, name)) !== (kind === 'payload')) {
        console.log(`${name}: ${kind === 'payload' ? 'refused' : 'accepted'}`);
        wrong += 1;
    }
}
console.log(`${count.payload} payloads, ${count.mutant} mutants, ${wrong} of them wrong`);
process.exit(wrong === 0 && count.payload > 0 && count.mutant >= 10 ? 0 : 1);
