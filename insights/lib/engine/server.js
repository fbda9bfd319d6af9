// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
import { createReadStream } from "node:fs";
import { createGunzip } from "node:zlib";

import { UserError } from "../user-error.js";
import { settings } from "./settings.js";

function environment(name, otherwise) {
    return process.env[`NERIX_INSIGHTS_${name}`] || otherwise;
}

function checkedUrl(text) {
    if (!/^https?:\/\/[^\s]+$/.test(text)) {
        throw new UserError(`--server ${text}: give an address such as https://clickhouse.example.com:8443`);
    }
    return new URL(text);
}

/**
 * A ClickHouse server, through its HTTP interface; the same operations as EmbeddedEngine. User and
 * password come from NERIX_INSIGHTS_USER and NERIX_INSIGHTS_PASSWORD, and another database than
 * nerix_insights from NERIX_INSIGHTS_DATABASE.
 */
export class ServerEngine {
    static async open(address) {
        const engine = new ServerEngine();
        engine.url = checkedUrl(address);
        await engine.request("CREATE DATABASE IF NOT EXISTS nerix_insights", {}, undefined, "default");
        return engine;
    }

    secondsUntilSeen = 600;

    readsFilesTogether = false;

    async request(sql, parameters, body, inDatabase = environment("DATABASE", "nerix_insights")) {
        const url = new URL(this.url);
        for (const [name, value] of Object.entries({ database: inDatabase, ...settings })) {
            url.searchParams.set(name, value);
        }
        for (const [name, value] of Object.entries(parameters)) {
            url.searchParams.set(`param_${name}`, value);
        }
        if (body) {
            url.searchParams.set("query", sql);
        }
        let response;
        try {
            response = await fetch(url, { method: "POST", body: body ?? sql, duplex: "half", headers: {
                "X-ClickHouse-User": environment("USER", "default"),
                "X-ClickHouse-Key": environment("PASSWORD", "") } });
        } catch (error) {
            throw new UserError(`${this.url.host} cannot be reached (${error.cause?.code ?? error.cause?.message ?? error.message});`
                + " look at --server and at the network");
        }
        const text = await response.text();
        if (!response.ok) {
            throw new UserError(`${this.url.host}: ${text.split("\n")[0].slice(0, 300)}`);
        }
        return text;
    }

    async rows(sql, parameters = {}) {
        const text = await this.request(`${sql}\nFORMAT JSONCompactEachRow`, parameters);
        return text.split("\n").filter(Boolean).map((line) => JSON.parse(line));
    }

    async run(sql, parameters = {}) {
        await this.request(sql, parameters);
    }

    async loadLines(folder, [{ load, file }]) {
        const lines = createReadStream(file);
        await this.request("INSERT INTO incoming SELECT {load:UInt64} AS load, line"
            + " FROM input('line String') FORMAT LineAsString", { load },
            file.endsWith(".gz") ? lines.pipe(createGunzip()) : lines);
    }

    /** The server removes files that are no longer needed by itself (old_parts_lifetime). */
    async sweep() {}

    async close() {}
}
