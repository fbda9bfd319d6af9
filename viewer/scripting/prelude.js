// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// What is easier said in the script's own language. `__nerix` is CScriptHost.

function print() {
    __nerix.printLine(Array.prototype.map.call(arguments, String).join(" "));
}

function fail(text) {
    throw new Error(text);
}

function sleep(milliseconds) {
    __nerix.sleep(milliseconds);
}

function quit() {
    __nerix.quit();
}

function waitUntil(condition, timeoutMs, what) {
    if (typeof condition !== "function") {
        throw new TypeError("waitUntil: the condition is not a function");
    }
    var limit = timeoutMs === undefined ? 10000 : timeoutMs;
    var start = __nerix.milliseconds();
    while (!condition()) {
        if (__nerix.milliseconds() - start >= limit) {
            throw new Error("not within " + limit + " ms: " + (what || condition));
        }
        __nerix.sleep(5);
    }
}

var console = { log: print };
