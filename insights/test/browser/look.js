// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// look.js REPORT DIRECTORY: opens a report in a real Chromium at three widths, light and dark, and
// on paper, and keeps what it looks like in DIRECTORY. Fails if the page says something to the
// console or asks for anything. Needs the program "chromium"; NERIX_CHROMIUM names another one.

import { spawnSync } from "node:child_process";
import { mkdirSync, mkdtempSync, readFileSync, rmSync } from "node:fs";
import { tmpdir } from "node:os";
import path from "node:path";
import { pathToFileURL } from "node:url";

const widths = { telephone: 390, tablet: 820, desk: 1280 };
// No picture of a page may be higher.
const height = 16000;

const quiet = ["--headless", "--no-sandbox", "--disable-gpu", "--no-first-run", "--hide-scrollbars",
    "--disable-background-networking", "--disable-component-update", "--disable-sync",
    "--no-default-browser-check", "--host-resolver-rules=MAP * ~NOTFOUND",
    "--enable-logging=stderr"];

function browse(page, ...options) {
    const folder = mkdtempSync(path.join(tmpdir(), "look-"));
    try {
        const log = path.join(folder, "net.json");
        const { status, stderr } = spawnSync(process.env.NERIX_CHROMIUM ?? "chromium", [...quiet,
            `--user-data-dir=${path.join(folder, "profile")}`, `--log-net-log=${log}`, ...options, page],
            { encoding: "utf8", timeout: 120000 });
        if (status !== 0) {
            throw new Error(`chromium failed (${status}): ${stderr}`);
        }
        return { messages: stderr.split("\n").filter((line) => line.includes(":CONSOLE")),
            requests: requestsIn(readFileSync(log, "utf8")) };
    } finally {
        rmSync(folder, { recursive: true, force: true });
    }
}

// Addresses that the page asked for; what the browser asks for on its own account has no origin.
// The page itself is a file.
function requestsIn(log) {
    return log.split("\n").filter((line) => line.includes('"initiator":"')
        && !line.includes('"initiator":"not an origin"'))
        .flatMap((line) => [...line.matchAll(/"url":"((?:https?|wss?|ftp):[^"]*)"/g)])
        .map(([, url]) => url);
}

const [report, directory] = process.argv.slice(2);
mkdirSync(directory, { recursive: true });
const page = pathToFileURL(report).href;
const looks = Object.entries(widths).flatMap(([name, width]) => ["light", "dark"].map((theme) => [
    `--window-size=${width},${height}`, `--screenshot=${path.join(directory, `${name}-${theme}.png`)}`,
    ...(theme === "dark" ? ["--blink-settings=preferredColorScheme=0"] : [])]));
looks.push(["--no-pdf-header-footer", `--print-to-pdf=${path.join(directory, "paper.pdf")}`]);

const problems = looks.map((options) => browse(page, ...options))
    .flatMap(({ messages, requests }) => [...messages, ...requests]);
problems.forEach((problem) => console.log(problem));
console.log(`${looks.length} looks, ${problems.length} messages and requests: ${directory}`);
process.exitCode = problems.length > 0 ? 1 : 0;
