// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// Work with a ClickHouse server. Its HTTP interface is played here, in front of the embedded engine.

import assert from "node:assert/strict";
import { once } from "node:events";
import { createWriteStream } from "node:fs";
import { createServer } from "node:http";
import path from "node:path";
import test from "node:test";
import { pipeline } from "node:stream/promises";

import { Session } from "chdb";

import { openStore } from "../../lib/store.js";
import { temporaryFolder } from "../support/fleets.js";
import { clientA, clientB, optOut, record, request, writeLines } from "../support/requests.js";
import { answers, counts, loadAll, value } from "../support/store.js";

async function textOf(stream) {
    const parts = [];
    for await (const part of stream) {
        parts.push(part);
    }
    return Buffer.concat(parts).toString();
}

// What a server does with an INSERT that reads input(), with the body in a file.
async function withInput(sql, parameters, requested, folder) {
    const file = path.join(folder, "body.jsonl");
    await pipeline(requested, createWriteStream(file));
    return [sql.replace("input('line String') FORMAT LineAsString",
        "file({file:String}, 'LineAsString', 'line String')"), { ...parameters, file }];
}

async function carryOut(session, requested, folder) {
    const url = new URL(requested.url, "http://x");
    assert.equal(requested.headers["x-clickhouse-user"], "analyst");
    assert.equal(requested.headers["x-clickhouse-key"], "secret");
    let parameters = {};
    for (const [name, text] of url.searchParams) {
        if (name.startsWith("param_")) {
            parameters[name.slice(6)] = text;
        }
    }
    let sql = url.searchParams.get("query");
    if (sql === null) {
        sql = await textOf(requested);
    } else {
        [sql, parameters] = await withInput(sql, parameters, requested, folder);
    }
    if (url.searchParams.get("database") !== "default") {
        session.query("USE nerix_insights");
    }
    for (const name of ["mutations_sync", "optimize_on_insert", "allow_replace_partition_from_empty_source",
        "output_format_json_quote_64bit_integers"]) {
        session.query(`SET ${name} = ${url.searchParams.get(name)}`);
    }
    const format = /\nFORMAT (\w+)$/.exec(sql);
    return session.queryBind(sql.replace(/\nFORMAT \w+$/, ""), parameters, format ? format[1] : "Null");
}

async function serve(context) {
    const folder = temporaryFolder(context);
    const session = new Session(path.join(folder, "data"));
    const server = createServer(async (requested, response) => {
        try {
            response.end(await carryOut(session, requested, folder));
        } catch (error) {
            response.writeHead(500).end(error.message);
        }
    }).listen(0, "127.0.0.1");
    await once(server, "listening");
    context.after(() => {
        server.close();
        server.closeAllConnections();
        session.close();
    });
    Object.assign(process.env, { NERIX_INSIGHTS_USER: "analyst", NERIX_INSIGHTS_PASSWORD: "secret" });
    return { folder, address: `http://127.0.0.1:${server.address().port}` };
}

test("a server is filled, asked and cleared as the embedded engine is", async (context) => {
    const { folder, address } = await serve(context);
    const store = await openStore({ server: address });
    const files = [[request(clientA, [record(), record()]), request(clientB, [record()])],
        [request(clientB, [optOut()]), "no JSON"]]
        .map((lines, i) => writeLines(path.join(folder, `${i}.jsonl`), lines));
    await loadAll(store, files);
    assert.equal(await value(store, "SELECT sum(events) FROM daily_activity"), 2);
    assert.equal(await value(store, "SELECT count() FROM usage_logs WHERE client = {client:UUID}",
        { client: clientB }), 0);
    assert.equal((await counts(store)).not_json, 1);
    assert.deepEqual((await answers(store, { since: "2025-01-06", until: "2100-01-01" }))["active-clients"].rows, []);
    await assert.rejects(store.run("SELECT nonsense"), { message: /^127\.0\.0\.1:\d+: .*nonsense/ });
});

test("a server that is not there is named in one line", async () => {
    const server = createServer().listen(0, "127.0.0.1");
    await once(server, "listening");
    const host = `127.0.0.1:${server.address().port}`;
    server.close();
    await assert.rejects(openStore({ server: `http://${host}` }),
        { message: `${host} cannot be reached (ECONNREFUSED); look at --server and at the network` });
});
