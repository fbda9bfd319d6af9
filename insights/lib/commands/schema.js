// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
import { clusterStatements } from "../cluster.js";
import { UserError } from "../user-error.js";

export const usage = "schema --cluster NAME";
export const options = { cluster: { type: "string" } };

export function run({ cluster = "" }) {
    if (!/^\w+$/.test(cluster)) {
        throw new UserError(`--cluster "${cluster}": give the name of a cluster in the server's configuration`);
    }
    console.log(clusterStatements(cluster).map((statement) => `${statement.trim()};\n`).join("\n"));
}
