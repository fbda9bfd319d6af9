// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// search-tables.js DATA: reads texts, one a line, and prints how many rows of each table hold one
// of them in any column, as JSON; tables without such a row are left out.

import { readFileSync } from "node:fs";

import { openStore } from "../../lib/store.js";

const texts = readFileSync(0, "utf8").split("\n").filter(Boolean);
const store = await openStore({ data: process.argv[2] });
const found = {};
const tables = await store.rows("SELECT name FROM system.tables WHERE database = currentDatabase()"
    + " AND engine LIKE '%MergeTree'");
for (const [table] of tables) {
    const [[count]] = await store.rows(`SELECT countIf(multiSearchAny(toString(tuple(*)),`
        + ` {texts:Array(String)})) FROM ${table}`, { texts });
    if (count > 0) {
        found[table] = count;
    }
}
await store.close();
process.stdout.write(JSON.stringify(found));
