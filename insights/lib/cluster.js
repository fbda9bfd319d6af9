// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
import { filesOf, statementsOf } from "./statements.js";

// What only the machine that rolls up needs; the others get the result as parts.
const ofOneMachine = /^(recent|fresh_\w+)$/;

function nameIn(statement) {
    return /^CREATE (?:TABLE IF NOT EXISTS|OR REPLACE VIEW|OR REPLACE FUNCTION|MATERIALIZED VIEW IF NOT EXISTS) (\w+)/m
        .exec(statement)[1];
}

function onCluster(statement, name, cluster) {
    return statement.replace(new RegExp(`^(CREATE .*?\\b${name}\\b)`, "m"), `$1 ON CLUSTER '${cluster}'`);
}

// Who withdrew is known on every shard: a client may come to another one when shards are added.
function replicated(statement, name) {
    if (ofOneMachine.test(name)) {
        return statement;
    }
    const place = name === "erased" ? "('/clickhouse/tables/nerix_insights/erased', '{shard}-{replica}')" : "";
    return statement.replace(/\bENGINE = (\w*MergeTree)/, `ENGINE = Replicated$1${place}`);
}

// "CREATE TABLE fresh AS daily" would be replicated as daily is: take the text of daily instead.
function spelledOut(statement, all) {
    const copy = /^CREATE TABLE IF NOT EXISTS (fresh_\w+) AS (daily_\w+)$/m.exec(statement);
    return copy ? all.find((other) => nameIn(other) === copy[2]).replace(copy[2], copy[1]) : statement;
}

/**
 * The statements that make the schema on a cluster, from the same files as everywhere: with ON CLUSTER
 * and replicated tables, then what schema/cluster adds. An operator runs them once, in this order.
 */
export function clusterStatements(cluster) {
    const all = filesOf("./").flatMap(statementsOf);
    const local = all.map((statement) => {
        const text = spelledOut(statement, all);
        const name = nameIn(text);
        return onCluster(replicated(text, name), name, cluster);
    });
    const added = filesOf("cluster/").flatMap(statementsOf)
        .map((statement) => statement.replaceAll("{cluster}", cluster));
    return [`CREATE DATABASE IF NOT EXISTS nerix_insights ON CLUSTER '${cluster}'`,
        "USE nerix_insights", ...local, ...added];
}
