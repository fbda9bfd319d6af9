# SPDX-FileCopyrightText: 2026 Ostrand
# SPDX-License-Identifier: MIT
"""compare.py PRINTED EVENTS...: what a collector's debug exporter printed against what was tracked.

EVENTS are files of `rui-events --json`. Status 0 if each event arrived just once, with its name,
its text (if it has one), its category and its session; otherwise the differences are printed.
"""
import collections
import json
import re
import sys

ATTRIBUTES = {"log.record.uid": "uid", "rui.event.category": "category",
              "rui.event.name": "name", "rui.session.id": "session"}


def text_of(printed):
    return re.fullmatch(r"Str\((.*)\)", printed, re.DOTALL).group(1)


def arrived(path):
    record = None
    with open(path, encoding="utf-8") as file:
        for line in file:
            line = line.removesuffix("\n")
            if line.startswith("LogRecord #"):
                if record:
                    yield record
                record = {}
            elif line.startswith("EventName: "):
                record["eventName"] = line.removeprefix("EventName: ")
            elif line.startswith("Body: Str("):
                record["text"] = text_of(line.removeprefix("Body: "))
            elif line.startswith("     -> "):
                key, _, value = line.removeprefix("     -> ").partition(": ")
                if record is not None and key in ATTRIBUTES:
                    record[ATTRIBUTES[key]] = text_of(value)
    if record:
        yield record


def tracked(path):
    with open(path, encoding="utf-8") as file:
        for event in map(json.loads, file):
            record = {key: event[key] for key in (*ATTRIBUTES.values(), "text")}
            if record["text"] is None:
                del record["text"]
            yield {"eventName": f"rui.{event['category']}.{event['name']}", **record}


def counted(records):
    return collections.Counter(tuple(sorted(record.items())) for record in records)


def main(printed, *files):
    there = counted(arrived(printed))
    here = counted(event for path in files for event in tracked(path))
    for record in (here - there).keys():
        print("did not arrive:", dict(record))
    for record in (there - here).keys():
        print("arrived, but was not tracked so or not so often:", dict(record))
    print(f"{sum(here.values())} tracked, {sum(there.values())} arrived")
    return 0 if here and there == here else 1


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
