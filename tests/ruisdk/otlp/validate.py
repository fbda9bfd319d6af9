# SPDX-FileCopyrightText: 2026 Ostrand
# SPDX-License-Identifier: MIT
"""Checks that a JSON text is an ExportLogsServiceRequest of OTLP 1.5 in its JSON form.

validate.py FILE ends with status 0, or prints where the text leaves the standard and ends with 1.
Stricter than a server has to be: an unknown member is an error, and so is a 64-bit integer that is
not a string of decimal digits.
"""
import base64
import json
import re
import sys


class Wrong(Exception):
    pass


def message(members):
    """A message whose members have these checks; each may be missing."""

    def check(value, where):
        if not isinstance(value, dict):
            raise Wrong(f"{where}: not an object")
        for name, member in value.items():
            if name not in members:
                raise Wrong(f"{where}: no member '{name}' in the standard")
            members[name](member, f"{where}.{name}")

    return check


def repeated(element):
    def check(value, where):
        if not isinstance(value, list):
            raise Wrong(f"{where}: not an array")
        for index, entry in enumerate(value):
            element(entry, f"{where}[{index}]")

    return check


def text(value, where):
    if not isinstance(value, str):
        raise Wrong(f"{where}: not a string")


def boolean(value, where):
    if not isinstance(value, bool):
        raise Wrong(f"{where}: not a boolean")


def number(value, where):
    if isinstance(value, bool) or not isinstance(value, (int, float)):
        raise Wrong(f"{where}: not a number")


def whole(lowest, highest):
    def check(value, where):
        number(value, where)
        if not isinstance(value, int) or not lowest <= value <= highest:
            raise Wrong(f"{where}: not a whole number from {lowest} to {highest}")

    return check


def long(lowest, highest):
    def check(value, where):
        text(value, where)
        if not re.fullmatch(r"0|-?[1-9][0-9]*", value) or not lowest <= int(value) <= highest:
            raise Wrong(f"{where}: not the decimal digits of a 64-bit integer")

    return check


def hexadecimal(digits):
    def check(value, where):
        text(value, where)
        if value and not re.fullmatch(f"[0-9a-fA-F]{{{digits}}}", value):
            raise Wrong(f"{where}: not {digits} hexadecimal digits")

    return check


def octets(value, where):
    text(value, where)
    try:
        base64.b64decode(value, validate=True)
    except ValueError:
        raise Wrong(f"{where}: not base 64")


def any_value(value, where):
    alternatives = message(
        {
            "stringValue": text,
            "boolValue": boolean,
            "intValue": long(-(2**63), 2**63 - 1),
            "doubleValue": number,
            "arrayValue": message({"values": repeated(any_value)}),
            "kvlistValue": message({"values": repeated(key_value)}),
            "bytesValue": octets,
        }
    )
    alternatives(value, where)
    if len(value) > 1:
        raise Wrong(f"{where}: more than one value")


def key_value(value, where):
    message({"key": text, "value": any_value})(value, where)
    if not value.get("key"):
        raise Wrong(f"{where}: no key")


def attributes(value, where):
    repeated(key_value)(value, where)
    keys = [entry["key"] for entry in value]
    if len(set(keys)) != len(keys):
        raise Wrong(f"{where}: a key twice")


UINT32 = whole(0, 2**32 - 1)
TIME = long(0, 2**64 - 1)

LOG_RECORD = message(
    {
        "timeUnixNano": TIME,
        "observedTimeUnixNano": TIME,
        "severityNumber": whole(0, 24),
        "severityText": text,
        "body": any_value,
        "attributes": attributes,
        "droppedAttributesCount": UINT32,
        "flags": UINT32,
        "traceId": hexadecimal(32),
        "spanId": hexadecimal(16),
        "eventName": text,
    }
)
SCOPE = message(
    {"name": text, "version": text, "attributes": attributes, "droppedAttributesCount": UINT32}
)
SCOPE_LOGS = message({"scope": SCOPE, "logRecords": repeated(LOG_RECORD), "schemaUrl": text})
RESOURCE = message({"attributes": attributes, "droppedAttributesCount": UINT32})
RESOURCE_LOGS = message(
    {"resource": RESOURCE, "scopeLogs": repeated(SCOPE_LOGS), "schemaUrl": text}
)
REQUEST = message({"resourceLogs": repeated(RESOURCE_LOGS)})

try:
    with open(sys.argv[1], encoding="utf-8") as file:
        REQUEST(json.load(file), "request")
except (Wrong, ValueError) as error:
    print(error)
    sys.exit(1)
