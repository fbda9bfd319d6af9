// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// What is easier said in the script's own language. `__nerix` is CScriptHost.

function print() {
    __nerix.printLine(Array.prototype.map.call(arguments, String).join(" "));
}

var console = { log: print };

var fail = __checked("fail", 1, [{ name: "text", type: "QString" }], function (given) {
    throw new Error(given[0]);
});

var sleep = __checked("sleep", 1, [{ name: "ms" }], function (given) {
    __nerix.sleep(given[0]);
});

var quit = __checked("quit", 0, [], function () {
    __nerix.quit();
});

var waitUntil = (function () {
    var parameters = [{ name: "condition" }, { name: "ms" }, { name: "what", type: "QString" }];

    return __checked("waitUntil", 1, parameters, function (given) {
        var condition = given[0];
        var limit = given[1] === undefined ? 10000 : given[1];
        var what = given[2] || "the condition of waitUntil (its third argument names it here)";
        var start = __nerix.milliseconds();
        while (!condition()) {
            if (__nerix.milliseconds() - start >= limit) {
                throw new Error("not within " + limit + " ms: " + what);
            }
            __nerix.sleep(5);
        }
    });
})();
