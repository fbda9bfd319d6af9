// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
import { refresh } from "./refresh.js";
import { UserError } from "./user-error.js";

const clientId = /^[0-9a-f]{8}(-[0-9a-f]{4}){3}-[0-9a-f]{12}$/i;

/** Erases everything of a client, and keeps out what may come of it later. */
export async function eraseClient(engine, client) {
    if (!clientId.test(client)) {
        throw new UserError(`--client ${client}: give the random number of the installation, such as`
            + " f81d4fae-7dec-41d0-a765-00a0c91e6bf6");
    }
    // First the order, then the deed: an interruption is made good by the next command.
    await engine.run("INSERT INTO erased SELECT client_hash(toUUID({client:String})), toDate(0)", { client });
    await engine.run("INSERT INTO erasing SELECT toUUID({client:String})", { client });
    await refresh(engine);
}
