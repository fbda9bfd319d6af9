// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// The schema of a cluster, as far as one engine without a coordination service can try it: every
// statement is parsed; all of them are executed without replication; and the questions are asked
// through the tables over all shards, of which there is one, this engine.

import assert from "node:assert/strict";
import { writeFileSync } from "node:fs";
import path from "node:path";
import test from "node:test";

import { Session } from "chdb";

import { clusterStatements } from "../../lib/cluster.js";
import { settings } from "../../lib/engine/settings.js";
import { questions } from "../../lib/questions.js";
import { temporaryFolder } from "../support/fleets.js";

const configuration = `<clickhouse><tcp_port>9000</tcp_port><remote_servers><insights><shard><replica>
<host>127.0.0.1</host><port>9000</port></replica></shard></insights></remote_servers></clickhouse>`;

function open(context) {
    const folder = temporaryFolder(context);
    const file = path.join(folder, "config.xml");
    writeFileSync(file, configuration);
    const session = new Session(path.join(folder, "data"), { connectionArgs: [`--config-file=${file}`,
        ...Object.entries(settings).map(([name, value]) => `--${name}=${value}`)] });
    context.after(() => session.close());
    return session;
}

// Without a coordination service there is neither replication nor ON CLUSTER.
function alone(statement) {
    return statement.replace(/ ON CLUSTER 'insights'/g, "")
        .replace(/ENGINE = Replicated(\w+)(\('[^)]*\))?/g, "ENGINE = $1");
}

test("every statement of the cluster is understood, executed, and its tables answer", (context) => {
    const session = open(context);
    const statements = clusterStatements("insights");
    assert.ok(statements.length > 80);
    for (const statement of statements) {
        session.query(`EXPLAIN AST ${statement}`);
    }
    for (const statement of statements) {
        session.query(alone(statement));
    }
    assert.equal(session.query("SELECT is_local FROM system.clusters WHERE cluster = 'insights'", "TSV").trim(), "1");
    session.query("USE nerix_insights_all");
    session.query("INSERT INTO nerix_insights.daily_activity SELECT today(), generateUUIDv4(), '7.1.0', 3"
        + " FROM numbers(6)");
    for (const { name, sql } of questions()) {
        const parameters = { since: "2025-01-06", until: "2100-01-01", threshold: 5 };
        const rows = session.queryBind(sql, parameters, "JSONCompactEachRow").trim();
        assert.equal(rows !== "", ["active-clients", "consent", "returning-clients", "versions"].includes(name),
            `${name}: ${rows}`);
    }
});

test("everything that changes is made on the whole cluster, and what is kept is replicated", () => {
    const statements = clusterStatements("insights").filter((statement) => statement !== "USE nerix_insights");
    for (const statement of statements) {
        assert.match(statement, /ON CLUSTER 'insights'/);
    }
    const plain = statements.map((statement) => /^CREATE TABLE IF NOT EXISTS (\w+) ON CLUSTER[^;]*ENGINE = \w*MergeTree/m
        .exec(statement)?.[1] && !/ENGINE = Replicated/.test(statement)
        && /^CREATE TABLE IF NOT EXISTS (\w+)/m.exec(statement)[1]).filter(Boolean);
    assert.deepEqual(plain.sort(), ["activity", "cameras", "failures", "features", "grabs", "losses", "runs",
        "streams", "values"].map((name) => `fresh_${name}`).concat("recent").sort());
});
