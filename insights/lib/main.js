// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
import { parseArgs } from "node:util";
import { UserError } from "./user-error.js";

// A command is a module that exports `usage` (a line), `options` (of parseArgs) and
// `run(values, positionals)`, which may be asynchronous and throws UserError.
// Loaded when called: the engine is 500 MB, and not every command needs it.
const commands = {
    load: () => import("./commands/load.js"),
    ask: () => import("./commands/ask.js"),
    check: () => import("./commands/check.js"),
    erase: () => import("./commands/erase.js"),
    list: () => import("./commands/list.js"),
    report: () => import("./commands/report.js"),
    schema: () => import("./commands/schema.js"),
    simulate: () => import("./commands/simulate.js"),
};

async function usage() {
    const lines = ["usage:"];
    for (const load of Object.values(commands)) {
        lines.push(`  nerix-insights ${(await load()).usage}`);
    }
    return lines.join("\n");
}

function parse(command, args) {
    try {
        return parseArgs({ args, options: command.options, allowPositionals: true });
    } catch (error) {
        throw new UserError(`${error.message.split(". ")[0]}; usage: nerix-insights ${command.usage}`);
    }
}

/** Runs the command that `args` name. Returns the exit code: 0, 1 for a failure, 2 for wrong use. */
export async function main(args) {
    const [name, ...rest] = args;
    if (name === undefined || name === "--help" || name === "help") {
        console.log(await usage());
        return name === undefined ? 2 : 0;
    }
    try {
        if (!Object.hasOwn(commands, name)) {
            throw new UserError(`there is no command "${name}"; one of: ${Object.keys(commands).join(", ")}`);
        }
        const command = await commands[name]();
        const { values, positionals } = parse(command, rest);
        await command.run(values, positionals);
        return process.exitCode ?? 0;
    } catch (error) {
        if (!(error instanceof UserError)) {
            throw error;
        }
        console.error(`nerix-insights: ${error.message}`);
        return 1;
    }
}
