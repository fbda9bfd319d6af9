// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// Looks at what a script gives to a function of the viewer before the function is called, so that
// every mistake is one line with the names of the function and of its argument, and the remedy.

// A rule says what an argument may be. It is found by the argument's name, else by its type.
var __rules = (function () {
    var largest = 2147483647;

    function isNumber(value) {
        return typeof value === "number" && value >= 0 && value <= largest;
    }
    function isCount(value) {
        return isNumber(value) && value === Math.floor(value);
    }
    function isText(value) {
        return ["string", "number", "boolean"].indexOf(typeof value) >= 0;
    }
    function isCamera(value) {
        return typeof value === "string"
            || (typeof value === "object" && value !== null && typeof value.identity === "string");
    }

    var count = "a whole number from 0 to " + largest;
    var camera = "a camera object, an identity or a display name";
    return {
        ms: { gives: "milliseconds from 0 to " + largest, allows: isNumber },
        camera: { gives: camera, allows: isCamera },
        cameraOrNull: {
            gives: camera + ", or null",
            allows: function (value) { return value === null || isCamera(value); }
        },
        numberOrPattern: {
            gives: count + ", or a pattern",
            allows: function (value) { return typeof value === "string" || isCount(value); }
        },
        condition: {
            gives: "a function",
            allows: function (value) { return typeof value === "function"; }
        },
        bool: {
            gives: "true or false",
            allows: function (value) { return typeof value === "boolean"; }
        },
        int: { gives: count, allows: isCount },
        QString: { gives: "a text", allows: isText }
    };
})();

// The function `name` of the script. `parameters` are maps with "name" and "type", `required` says
// how many must be given; `call` takes the arguments.
function __checked(name, required, parameters, call) {
    function textOf(value) {
        if (typeof value === "string") {
            return JSON.stringify(value);
        }
        if (typeof value === "function") {
            return "a function";
        }
        if (typeof value === "object" && value !== null) {
            return Array.isArray(value) ? "a list" : "an object";
        }
        return String(value);
    }

    function check(parameter, value, isRequired) {
        var rule = __rules[parameter.name] || __rules[parameter.type];
        if (value === undefined ? isRequired : !rule.allows(value)) {
            throw new Error(name + ": " + parameter.name + " is "
                + (value === undefined ? "missing" : textOf(value)) + ": give " + rule.gives);
        }
    }

    return function () {
        var given = Array.prototype.slice.call(arguments);
        while (given.length > 0 && given[given.length - 1] === undefined) {
            given.pop();
        }
        parameters.forEach(function (parameter, index) {
            check(parameter, given[index], index < required);
        });
        if (given.length > parameters.length) {
            var names = parameters.map(function (parameter) { return parameter.name; });
            throw new Error(name + ": too many arguments: give "
                + (names.length > 0 ? "only " + names.join(", ") : "none"));
        }
        return call(given);
    };
}

// What the script sees of `object` as `name`: `functions` as the viewer describes them. Its text
// stands in the engine's message for a function that is not there.
function __brought(name, object, functions) {
    var names = functions.map(function (entry) { return entry.name; }).sort().join(", ");
    var brought = {};
    Object.defineProperty(brought, "toString", {
        value: function () { return name + " (which has " + names + ")"; }
    });
    functions.forEach(function (entry) {
        brought[entry.name] = __checked(name + "." + entry.name, entry.required, entry.parameters,
            function (given) { return object[entry.name].apply(object, given); });
    });
    return brought;
}
